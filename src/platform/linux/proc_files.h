#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ferrow {

// The text without the spaces, tabs and line ends around it: a sysfs value, a desktop entry's line.
std::string_view trimmedText(std::string_view text);

// A file relative to an open folder (AT_FDCWD for a path) opened for reading, where a pipe cannot
// hold the reading up; -1 where it cannot be opened.
int openFileAt(int folder, const char *path);
// An open file read from its start into buffer: the bytes read, which fill the buffer when the
// file is longer. Absent when it cannot be read: a folder, a process's file once it has ended.
std::optional<std::size_t> readFile(int file, char *buffer, std::size_t capacity);
// The two, closing the file after.
std::optional<std::size_t> readFileAt(int folder, const char *path, char *buffer, std::size_t capacity);

// What a process's <pid>/stat says about it, in clock ticks.
struct ProcStat {
    std::string_view name; // the kernel's own bytes, which may hold spaces, ')' and newlines
    std::uint64_t cpuTicks = 0;   // user and system
    std::uint64_t startTicks = 0; // since boot
    bool kernelThread = false;
};
// Absent for a file cut short or with anything but a number where a number belongs.
std::optional<ProcStat> parseProcStat(std::string_view text);

// Seconds since boot, the first figure of /proc/uptime.
std::optional<double> parseUptime(std::string_view text);

// All processors' time since boot from the first ("cpu ") line of /proc/stat.
struct CpuTicks {
    std::uint64_t busy = 0;
    std::uint64_t total = 0;
};
std::optional<CpuTicks> parseCpuTicks(std::string_view text);

// The desktop application a process runs as, from its <pid>/cgroup: the application id in the
// innermost systemd unit a launcher made for it ("app-gnome-org.gnome.Terminal-3412.scope",
// "app-org.gnome.Nautilus@1a2b.service", "app-org.gnome.Terminal.slice"). Empty outside any, or
// where the id could not name a file.
QString applicationIdFromCgroup(std::string_view text);

// Bytes of unknown origin as a name to show: invalid UTF-8 replaced, control characters as
// spaces, no space around it. Empty when nothing printable is left.
QString printableName(std::string_view bytes);

} // namespace ferrow

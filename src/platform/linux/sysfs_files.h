#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ferrow {

// Every file the Linux backend reads goes through here, under one root folder: "/" for this
// machine, a copied tree (ROOT/sys/class/...) for tests and bug reports. With a copy folder set,
// each file that is read is also written there, so that the copy holds exactly what was used.
class SysfsFiles {
public:
    explicit SysfsFiles(std::string root = "/");

    // The root joined with a path relative to it, such as "sys/class/power_supply".
    std::string path(std::string_view relative) const;

    // The file's text without surrounding white space; absent when it cannot be read or is empty.
    std::optional<std::string> readText(const std::string &path);
    // A whole decimal number making up the whole file; absent when unreadable, empty, not a number
    // or beyond 64 bits.
    std::optional<std::int64_t> readInteger(const std::string &path);
    // Why the file cannot be read ("Permission denied"); empty when it can be opened.
    std::string openError(const std::string &path) const;
    // The names in a folder, sorted; empty when it cannot be listed.
    std::vector<std::string> list(const std::string &folder) const;

    // From now on, also writes every file read to the same place under folder.
    void copyReadsTo(std::string folder);
    const QString &copyError() const { return m_copyError; }

private:
    // Bytes read into buffer, or absent when the file cannot be opened or read.
    std::optional<std::size_t> readRaw(const std::string &path, char *buffer, std::size_t capacity);
    void copy(const std::string &path, const char *bytes, std::size_t size);

    std::string m_root;
    std::string m_copyRoot;
    QString m_copyError;
};

} // namespace ferrow

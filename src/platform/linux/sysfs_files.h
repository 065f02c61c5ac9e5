#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace ferrow {

// Every file the Linux backend reads goes through here, under one root folder: "/" for this
// machine, a copied tree (ROOT/sys/class/...) for tests and bug reports. With a copy folder set,
// each file that is read is also written there, so that the copy holds exactly what was used.
//
// A file once opened stays open and is read again from its start: opening is most of a read's
// cost. It is opened afresh only when it went away (its device was removed, or in a copied tree
// the file was replaced). Only regular files of one page at most are read, so a tree with
// devices, pipes or huge files linked in costs one page per file and nothing more.
class SysfsFiles {
public:
    explicit SysfsFiles(std::string root = "/");
    ~SysfsFiles();
    SysfsFiles(const SysfsFiles &) = delete;
    SysfsFiles &operator=(const SysfsFiles &) = delete;

    // The root joined with a path relative to it, such as "sys/class/power_supply".
    std::string path(std::string_view relative) const;

    // The file's one line of text without surrounding white space; absent when it cannot be read,
    // is empty or holds more than one line.
    std::optional<std::string> readText(const std::string &path);
    // A whole decimal number making up the whole file; absent when unreadable, empty, not a number
    // or beyond 64 bits.
    std::optional<std::int64_t> readInteger(const std::string &path);
    // Why the file cannot be read ("Permission denied"); empty when it can be opened.
    std::string openError(const std::string &path) const;
    // The names in a folder, sorted, at most kMostNames of them; empty when it cannot be listed.
    std::vector<std::string> list(const std::string &folder) const;

    // From now on, also writes every file read to the same place under folder.
    void copyReadsTo(std::string folder);
    const QString &copyError() const { return m_copyError; }

    static constexpr std::size_t kMostNames = 1024;

private:
    // Bytes read into buffer, or absent when the file cannot be opened or read, or fills it.
    std::optional<std::size_t> readRaw(const std::string &path, char *buffer, std::size_t capacity);
    // The open descriptor for path, opening it if needed; -1 when it cannot be read.
    int descriptor(const std::string &path);
    void forget(const std::string &path);

    struct OpenFile {
        int descriptor = -1;
        bool onSysfs = false; // sysfs reports a removed file by failing reads; elsewhere it is unlinked
    };
    void copy(const std::string &path, const char *bytes, std::size_t size);

    std::string m_root;
    std::string m_copyRoot;
    QString m_copyError;
    std::unordered_map<std::string, OpenFile> m_openFiles;
};

} // namespace ferrow

#include "platform/linux/sysfs_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace ferrow {
namespace {

// A sysfs attribute is at most a page; anything longer is not one of ours.
constexpr std::size_t kMaximumFileSize = 4096;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view space = " \t\r\n";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(space) - first + 1);
}

} // namespace

SysfsFiles::SysfsFiles(std::string root)
    : m_root(std::move(root))
{
    if (m_root.empty() || m_root.back() != '/')
        m_root += '/';
}

std::string SysfsFiles::path(std::string_view relative) const
{
    return m_root + std::string(relative);
}

std::optional<std::size_t> SysfsFiles::readRaw(const std::string &path, char *buffer, std::size_t capacity)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return std::nullopt;
    std::size_t size = 0;
    bool failed = false;
    while (size < capacity) {
        const ssize_t count = ::read(descriptor, buffer + size, capacity - size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failed = true; // a driver's error (EIO, ENODATA, EBUSY): the value is not there now
        if (count <= 0)
            break;
        size += static_cast<std::size_t>(count);
    }
    ::close(descriptor);
    if (failed)
        return std::nullopt;
    if (!m_copyRoot.empty())
        copy(path, buffer, size);
    return size;
}

std::string SysfsFiles::openError(const std::string &path) const
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return std::strerror(errno);
    ::close(descriptor);
    return {};
}

std::optional<std::string> SysfsFiles::readText(const std::string &path)
{
    char buffer[kMaximumFileSize];
    const std::optional<std::size_t> size = readRaw(path, buffer, sizeof buffer);
    if (!size)
        return std::nullopt;
    const std::string_view text = trimmed(std::string_view(buffer, *size));
    return text.empty() ? std::nullopt : std::optional(std::string(text));
}

std::optional<std::int64_t> SysfsFiles::readInteger(const std::string &path)
{
    const std::optional<std::string> text = readText(path);
    if (!text)
        return std::nullopt;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), value);
    if (error != std::errc() || end != text->data() + text->size())
        return std::nullopt;
    return value;
}

std::vector<std::string> SysfsFiles::list(const std::string &folder) const
{
    std::vector<std::string> names;
    DIR *directory = ::opendir(folder.c_str());
    if (!directory)
        return names;
    while (const dirent *entry = ::readdir(directory)) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    ::closedir(directory);
    std::sort(names.begin(), names.end());
    return names;
}

void SysfsFiles::copyReadsTo(std::string folder)
{
    m_copyRoot = std::move(folder);
    if (!m_copyRoot.empty() && m_copyRoot.back() != '/')
        m_copyRoot += '/';
}

void SysfsFiles::copy(const std::string &path, const char *bytes, std::size_t size)
{
    if (!m_copyError.isEmpty() || path.compare(0, m_root.size(), m_root) != 0)
        return;
    const QString target = QFile::decodeName(QByteArray::fromStdString(m_copyRoot + path.substr(m_root.size())));
    QFile file(target);
    if (!QDir().mkpath(QFileInfo(target).path()) || !file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || file.write(bytes, static_cast<qint64>(size)) != static_cast<qint64>(size)) {
        m_copyError = QStringLiteral("%1: cannot be written: %2").arg(target, file.errorString());
    }
}

} // namespace ferrow

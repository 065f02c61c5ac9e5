#include "platform/linux/sysfs_files.h"

#include "platform/linux/proc_files.h"

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
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace ferrow {
namespace {

// A sysfs attribute is at most a page; anything longer is not one of ours.
constexpr std::size_t kMaximumFileSize = 4096;
constexpr long kSysfsMagic = 0x62656572; // SYSFS_MAGIC of <linux/magic.h>

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

SysfsFiles::~SysfsFiles()
{
    for (const auto &[path, file] : m_openFiles)
        ::close(file.descriptor);
}

int SysfsFiles::descriptor(const std::string &path)
{
    if (const auto found = m_openFiles.find(path); found != m_openFiles.end()) {
        struct stat status {};
        if (found->second.onSysfs || (::fstat(found->second.descriptor, &status) == 0 && status.st_nlink > 0))
            return found->second.descriptor;
        forget(path); // replaced or removed in a copied tree: read what is there now
    }
    // Non-blocking, so that a pipe in a hostile tree cannot hold the reading up.
    const int opened = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (opened < 0)
        return -1;
    struct stat status {};
    struct statfs filesystem {};
    if (::fstat(opened, &status) != 0 || !S_ISREG(status.st_mode) || ::fstatfs(opened, &filesystem) != 0) {
        ::close(opened);
        return -1;
    }
    m_openFiles[path] = {opened, static_cast<long>(filesystem.f_type) == kSysfsMagic};
    return opened;
}

void SysfsFiles::forget(const std::string &path)
{
    if (const auto found = m_openFiles.find(path); found != m_openFiles.end()) {
        ::close(found->second.descriptor);
        m_openFiles.erase(found);
    }
}

std::optional<std::size_t> SysfsFiles::readRaw(const std::string &path, char *buffer, std::size_t capacity)
{
    std::size_t size = 0;
    for (int attempt = 0; attempt < 2; ++attempt) {
        const int file = descriptor(path);
        if (file < 0)
            return std::nullopt;
        size = 0;
        int error = 0;
        while (size < capacity) {
            const ssize_t count = ::pread(file, buffer + size, capacity - size, static_cast<off_t>(size));
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                error = errno;
            if (count <= 0)
                break;
            size += static_cast<std::size_t>(count);
        }
        if (error == ENODEV && attempt == 0) {
            forget(path); // its device went away; the same path may belong to a new one
            continue;
        }
        if (error != 0 || size == capacity)
            return std::nullopt; // a driver's error (EIO, ENODATA, EBUSY), or no attribute at that size
        break;
    }
    if (!m_copyRoot.empty())
        copy(path, buffer, size);
    return size;
}

std::string SysfsFiles::openError(const std::string &path) const
{
    const int opened = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (opened < 0)
        return std::strerror(errno);
    ::close(opened);
    return {};
}

std::optional<std::string> SysfsFiles::readText(const std::string &path)
{
    char buffer[kMaximumFileSize];
    const std::optional<std::size_t> size = readRaw(path, buffer, sizeof buffer);
    if (!size)
        return std::nullopt;
    const std::string_view text = trimmedText(std::string_view(buffer, *size));
    if (text.empty() || text.find_first_of("\r\n") != std::string_view::npos)
        return std::nullopt;
    return std::string(text);
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
        if (names.size() == kMostNames)
            break;
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

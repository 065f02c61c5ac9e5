#include "platform/linux/desktop_entries.h"

#include "platform/linux/proc_files.h"

#include <QFile>
#include <QStandardPaths>

#include <memory>
#include <string_view>

#include <fcntl.h>

namespace ferrow {
namespace {

// The [Desktop Entry] group comes first; a few kilobytes hold it even in entries with many
// translations.
constexpr std::size_t kMostRead = 64 * 1024;
// Enough for every application a desktop has installed; past it, some process is inventing ids.
constexpr qsizetype kMostIds = 512;

// A value's \s, \n, \t, \r and \\ escapes.
QByteArray unescapedValue(std::string_view value)
{
    QByteArray text;
    text.reserve(static_cast<qsizetype>(value.size()));
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        switch (value[++i]) {
        case 's': text += ' '; break;
        case 'n': text += '\n'; break;
        case 't': text += '\t'; break;
        case 'r': text += '\r'; break;
        default: text += value[i]; break;
        }
    }
    return text;
}

DesktopEntries::Entry parsedEntry(std::string_view text)
{
    DesktopEntries::Entry entry;
    bool inMainGroup = false;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view line = trimmedText(text.substr(start, end - start));
        start = end + 1;
        if (line.starts_with('[')) {
            if (line != "[Desktop Entry]")
                break; // the actions' groups follow it, with names of their own
            inMainGroup = true;
            continue;
        }
        const std::size_t equals = line.find('=');
        if (!inMainGroup || equals == std::string_view::npos)
            continue;
        const std::string_view key = trimmedText(line.substr(0, equals));
        const QByteArray value = unescapedValue(trimmedText(line.substr(equals + 1)));
        if (key == "Name")
            entry.name = printableName(std::string_view(value.constData(), static_cast<std::size_t>(value.size())));
        else if (key == "Icon")
            entry.icon = QString::fromUtf8(value).trimmed();
    }
    return entry;
}

} // namespace

DesktopEntries::DesktopEntries(QStringList dataFolders)
    : m_folders(std::move(dataFolders))
{
}

QStringList DesktopEntries::standardDataFolders()
{
    return QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
}

std::optional<DesktopEntries::Entry> DesktopEntries::find(const QString &id)
{
    if (const auto found = m_found.constFind(id); found != m_found.constEnd())
        return *found;
    if (m_found.size() >= kMostIds)
        m_found.clear();
    return *m_found.insert(id, read(id));
}

std::optional<DesktopEntries::Entry> DesktopEntries::read(const QString &id) const
{
    const auto buffer = std::make_unique<char[]>(kMostRead);
    for (const QString &folder : m_folders) {
        const QByteArray path = QFile::encodeName(folder + QStringLiteral("/applications/") + id + QStringLiteral(".desktop"));
        if (const std::optional<std::size_t> size = readFileAt(AT_FDCWD, path.constData(), buffer.get(), kMostRead))
            return parsedEntry(std::string_view(buffer.get(), *size));
    }
    return std::nullopt;
}

} // namespace ferrow

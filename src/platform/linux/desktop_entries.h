#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace ferrow {

// The desktop's application entries, <id>.desktop in the applications/ folder of each data
// folder, the first folder's first. Each id is looked up once.
class DesktopEntries {
public:
    struct Entry {
        QString name; // the unlocalised Name=, printable; empty where it has none
        QString icon; // Icon= as it stands: a theme's icon name or an image's path
    };

    explicit DesktopEntries(QStringList dataFolders);
    // XDG_DATA_HOME's folder, then XDG_DATA_DIRS's.
    static QStringList standardDataFolders();

    // Absent where no folder holds a readable entry for the id.
    std::optional<Entry> find(const QString &id);

private:
    std::optional<Entry> read(const QString &id) const;

    QStringList m_folders;
    QHash<QString, std::optional<Entry>> m_found;
};

} // namespace ferrow

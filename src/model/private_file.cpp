#include "model/private_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

namespace ferrow {

namespace {

constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

} // namespace

bool keepPrivate(const QString &path, QString *why)
{
    const QFileInfo info(path);
    if (info.exists()) {
        QFile::setPermissions(path, kOwnerOnly); // a read-only disk refuses, and the file stays as it is
        return true;
    }
    const QString folder = info.absolutePath();
    // Only a folder made here: the one given may be a shared one such as /tmp.
    if (!QFileInfo::exists(folder)) {
        if (!QDir().mkpath(folder)) {
            if (why)
                *why = QStringLiteral("the folder %1 cannot be made").arg(folder);
            return false;
        }
        QFile::setPermissions(folder, kOwnerOnly | QFile::ExeOwner);
    }
    // Made with its final permissions, so that it is never readable by others, not even briefly.
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, kOwnerOnly)) {
        if (why)
            *why = file.errorString();
        return false;
    }
    return true;
}

QString diskTrouble(const QString &path)
{
    QFileInfo nearest(path);
    while (!nearest.exists() && !nearest.isRoot())
        nearest = QFileInfo(nearest.absolutePath());
    const QStorageInfo disk(nearest.absoluteFilePath());
    if (!disk.isValid())
        return {};
    if (disk.isReadOnly())
        return QStringLiteral("the disk is read-only");
    if (disk.bytesAvailable() <= 0)
        return QStringLiteral("the disk is full");
    return {};
}

} // namespace ferrow

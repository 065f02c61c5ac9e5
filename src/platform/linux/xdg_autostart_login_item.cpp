#include "platform/linux/xdg_autostart_login_item.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

namespace ferrow {

XdgAutostartLoginItem::XdgAutostartLoginItem(QString autostartFolder, QString executable)
    : m_folder(autostartFolder.isEmpty()
                   ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/autostart")
                   : std::move(autostartFolder))
    , m_executable(executable.isEmpty() ? launchCommand() : std::move(executable))
{
}

QString XdgAutostartLoginItem::launchCommand()
{
    // An installed copy is started by name, as its desktop entry does, so that the entry survives
    // a move of the binary; a copy in a build tree keeps its full path.
    const QString self = QCoreApplication::applicationFilePath();
    const QString name = QFileInfo(self).fileName();
    const QString onPath = QStandardPaths::findExecutable(name);
    if (!onPath.isEmpty() && QFileInfo(onPath).canonicalFilePath() == QFileInfo(self).canonicalFilePath())
        return name;
    return self;
}

QString XdgAutostartLoginItem::entryPath() const
{
    return m_folder + QStringLiteral("/ferrow.desktop");
}

LoginItemState XdgAutostartLoginItem::state() const
{
    QFile entry(entryPath());
    if (!entry.open(QIODevice::ReadOnly))
        return LoginItemState::disabled;
    // An entry the user switched off in the desktop's settings does not count.
    const QByteArray text = entry.read(64 * 1024);
    const bool switchedOff = text.contains("Hidden=true") || text.contains("X-GNOME-Autostart-enabled=false");
    return switchedOff ? LoginItemState::disabled : LoginItemState::enabled;
}

bool XdgAutostartLoginItem::setEnabled(bool enabled)
{
    if (!enabled)
        return !QFile::exists(entryPath()) || QFile::remove(entryPath());
    if (!QDir().mkpath(m_folder))
        return false;
    QSaveFile entry(entryPath());
    if (!entry.open(QIODevice::WriteOnly))
        return false;
    // Quoted only when it has to be, so that an installed copy writes the same Exec as its desktop entry.
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9/._+-]+$"));
    QString quoted = m_executable;
    if (!plain.match(quoted).hasMatch()) {
        quoted.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
        quoted = u'"' + quoted + u'"';
    }
    const QString text = QStringLiteral("[Desktop Entry]\nType=Application\nName=Ferrow\nComment=Power monitor\n"
                                        "Exec=%1\nTerminal=false\nX-GNOME-Autostart-enabled=true\n")
                             .arg(quoted);
    entry.write(text.toUtf8());
    return entry.commit();
}

} // namespace ferrow

#pragma once

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

namespace ferrow::testing {

// Everything a started program keeps goes under home: its preferences, data, cache and runtime
// folders; it shows its windows offscreen rather than falling back to the terminal view, and its
// session bus is one that is not there, so it never reaches the user's panel or desktop portal.
inline void usePrivateHome(QProcessEnvironment &environment, const QDir &home)
{
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const auto &[variable, folder] : {std::pair{"XDG_CONFIG_HOME", "config"}, std::pair{"XDG_DATA_HOME", "data"},
                                           std::pair{"XDG_CACHE_HOME", "cache"}, std::pair{"XDG_RUNTIME_DIR", "runtime"}})
        environment.insert(QString::fromLatin1(variable), home.filePath(QString::fromLatin1(folder)));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=") + home.filePath(QStringLiteral("runtime/no-bus")));
    home.mkpath(QStringLiteral("runtime"));
    QFile::setPermissions(home.filePath(QStringLiteral("runtime")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace ferrow::testing

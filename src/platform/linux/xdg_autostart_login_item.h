#pragma once

#include "platform/login_item.h"

#include <QString>

namespace ferrow {

// Launch at login on Linux desktops: an entry in the user's XDG autostart folder.
class XdgAutostartLoginItem final : public LoginItem {
public:
    // The user's autostart folder and this program, unless given.
    explicit XdgAutostartLoginItem(QString autostartFolder = QString(), QString executable = QString());

    LoginItemState state() const override;
    bool setEnabled(bool enabled) override;
    QString entryPath() const;
    // This program's name when the search path finds this very file, else its full path.
    static QString launchCommand();

private:
    QString m_folder;
    QString m_executable;
};

} // namespace ferrow

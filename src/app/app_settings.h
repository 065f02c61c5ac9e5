#pragma once

#include <QSettings>
#include <QString>

namespace ferrow {

// Every preference the application keeps, with its default. Values someone else wrote into the
// file are read defensively: anything that is not clearly a boolean gives the default.
namespace AppSetting {
inline const QString showPowerInMenuBar = QStringLiteral("showPowerInMenuBar"); // default true
inline const QString reduceMotion = QStringLiteral("reduceMotion");             // default false
inline const QString appearance = QStringLiteral("appearance");                 // "system" (default), "light", "dark"
} // namespace AppSetting

bool readBoolSetting(const QSettings &settings, const QString &key, bool defaultValue);

// The names preferences are stored under (the defaults domain app.ferrow.Ferrow on macOS,
// ~/.config/Ferrow/Ferrow.conf on Linux): the application and ferrow-cli share them, so both
// keep a battery's lifetime extremes in one place.
void setApplicationIdentity();

} // namespace ferrow

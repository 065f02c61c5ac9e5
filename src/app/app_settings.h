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

} // namespace ferrow

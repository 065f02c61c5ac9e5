#pragma once

#include "alerts/alert_settings.h"

#include <QSettings>
#include <QString>

namespace ferrow {

enum class Appearance { system, light, dark };

// Every preference the programs keep, each with its type and its default.
struct Preferences {
    bool showPowerInMenuBar = true;
    bool reduceMotion = false;     // where the system has no setting of its own
    bool increaseContrast = false; // likewise
    Appearance appearance = Appearance::system;
    bool keepHistory = true; // the energy history database
    AlertSettings alerts{};

    bool operator==(const Preferences &) const = default;
};

// The names they are stored under.
namespace PreferenceKey {
inline const QString showPowerInMenuBar = QStringLiteral("showPowerInMenuBar");
inline const QString reduceMotion = QStringLiteral("reduceMotion");
inline const QString increaseContrast = QStringLiteral("increaseContrast");
inline const QString appearance = QStringLiteral("appearance"); // "system", "light" or "dark"
inline const QString keepHistory = QStringLiteral("keepHistory");
inline const QString alertChargerCannotKeepUp = QStringLiteral("alertChargerCannotKeepUp");
inline const QString alertChargingSlowly = QStringLiteral("alertChargingSlowly");
inline const QString alertBatteryHot = QStringLiteral("alertBatteryHot");
inline const QString alertCellsOutOfBalance = QStringLiteral("alertCellsOutOfBalance");
inline const QString alertChargeLevelReached = QStringLiteral("alertChargeLevelReached");
inline const QString alertHotWhileChargingCelsius = QStringLiteral("alertHotWhileChargingCelsius");
inline const QString alertHotCelsius = QStringLiteral("alertHotCelsius");
inline const QString alertChargeLevelPercent = QStringLiteral("alertChargeLevelPercent"); // a whole number
} // namespace PreferenceKey

// Values someone else wrote into the file are read defensively: anything that is not clearly of
// the preference's type gives its default.
Preferences readPreferences(const QSettings &settings);
// Saves at once; false when the file cannot be written (said once on stderr, see savePreferences).
bool writePreferences(QSettings &settings, const Preferences &preferences);

// The names preferences are stored under (the defaults domain app.ferrow.Ferrow on macOS,
// ~/.config/Ferrow/Ferrow.conf on Linux): the application and ferrow-cli share them, so both
// keep a battery's lifetime extremes in one place.
void setApplicationIdentity();

} // namespace ferrow

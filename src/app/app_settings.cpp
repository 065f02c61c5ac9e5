#include "app/app_settings.h"

#include "platform/common/settings_key_value_store.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <utility>

namespace ferrow {
namespace {

const std::array<std::pair<Appearance, QStringView>, 3> kAppearances{{
    {Appearance::system, u"system"},
    {Appearance::light, u"light"},
    {Appearance::dark, u"dark"},
}};

const std::array<std::pair<const QString *, bool AlertSettings::*>, 5> kAlertSwitches{{
    {&PreferenceKey::alertChargerCannotKeepUp, &AlertSettings::chargerCannotKeepUp},
    {&PreferenceKey::alertChargingSlowly, &AlertSettings::chargingSlowly},
    {&PreferenceKey::alertBatteryHot, &AlertSettings::batteryHot},
    {&PreferenceKey::alertCellsOutOfBalance, &AlertSettings::cellsOutOfBalance},
    {&PreferenceKey::alertChargeLevelReached, &AlertSettings::chargeLevelReached},
}};

void readBool(const QSettings &settings, const QString &key, bool &value)
{
    const QVariant stored = settings.value(key);
    if (stored.typeId() == QMetaType::Bool) {
        value = stored.toBool();
        return;
    }
    const QString text = stored.toString().trimmed().toLower();
    if (text == u"true" || text == u"1")
        value = true;
    else if (text == u"false" || text == u"0")
        value = false;
}

void readNumber(const QSettings &settings, const QString &key, SettingRange range, double &value)
{
    bool ok = false;
    const double stored = settings.value(key).toString().trimmed().toDouble(&ok);
    if (ok && range.contains(stored))
        value = stored;
}

void readAlerts(const QSettings &settings, AlertSettings &alerts)
{
    for (const auto &[key, member] : kAlertSwitches)
        readBool(settings, *key, alerts.*member);
    readNumber(settings, PreferenceKey::alertHotWhileChargingCelsius, kBatteryHotRangeC, alerts.hotWhileChargingC);
    readNumber(settings, PreferenceKey::alertHotCelsius, kBatteryHotRangeC, alerts.hotC);
    auto level = static_cast<double>(alerts.chargeLevelPercent);
    readNumber(settings, PreferenceKey::alertChargeLevelPercent, kChargeLevelRangePercent, level);
    if (level == std::floor(level))
        alerts.chargeLevelPercent = static_cast<std::int64_t>(level);
}

void writeAlerts(QSettings &settings, const AlertSettings &alerts)
{
    for (const auto &[key, member] : kAlertSwitches)
        settings.setValue(*key, alerts.*member);
    settings.setValue(PreferenceKey::alertHotWhileChargingCelsius, alerts.hotWhileChargingC);
    settings.setValue(PreferenceKey::alertHotCelsius, alerts.hotC);
    settings.setValue(PreferenceKey::alertChargeLevelPercent, static_cast<qlonglong>(alerts.chargeLevelPercent));
}

} // namespace

void setApplicationIdentity()
{
    QCoreApplication::setApplicationName(QStringLiteral("Ferrow"));
    QCoreApplication::setOrganizationName(QStringLiteral("Ferrow"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("ferrow.app"));
}

Preferences readPreferences(const QSettings &settings)
{
    Preferences preferences;
    readBool(settings, PreferenceKey::showPowerInMenuBar, preferences.showPowerInMenuBar);
    readBool(settings, PreferenceKey::reduceMotion, preferences.reduceMotion);
    readBool(settings, PreferenceKey::increaseContrast, preferences.increaseContrast);
    readBool(settings, PreferenceKey::keepHistory, preferences.keepHistory);
    readAlerts(settings, preferences.alerts);
    const QString appearance = settings.value(PreferenceKey::appearance).toString().trimmed().toLower();
    for (const auto &[value, name] : kAppearances) {
        if (appearance == name)
            preferences.appearance = value;
    }
    return preferences;
}

bool writePreferences(QSettings &settings, const Preferences &preferences)
{
    settings.setValue(PreferenceKey::showPowerInMenuBar, preferences.showPowerInMenuBar);
    settings.setValue(PreferenceKey::reduceMotion, preferences.reduceMotion);
    settings.setValue(PreferenceKey::increaseContrast, preferences.increaseContrast);
    settings.setValue(PreferenceKey::keepHistory, preferences.keepHistory);
    writeAlerts(settings, preferences.alerts);
    for (const auto &[value, name] : kAppearances) {
        if (value == preferences.appearance)
            settings.setValue(PreferenceKey::appearance, name.toString());
    }
    return savePreferences(settings);
}

} // namespace ferrow

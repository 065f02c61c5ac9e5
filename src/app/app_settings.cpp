#include "app/app_settings.h"

#include "platform/common/settings_key_value_store.h"

#include <QCoreApplication>

#include <array>
#include <utility>

namespace ferrow {
namespace {

const std::array<std::pair<Appearance, QStringView>, 3> kAppearances{{
    {Appearance::system, u"system"},
    {Appearance::light, u"light"},
    {Appearance::dark, u"dark"},
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
    for (const auto &[value, name] : kAppearances) {
        if (value == preferences.appearance)
            settings.setValue(PreferenceKey::appearance, name.toString());
    }
    return savePreferences(settings);
}

} // namespace ferrow

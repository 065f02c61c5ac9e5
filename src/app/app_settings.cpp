#include "app/app_settings.h"

#include <QCoreApplication>

namespace ferrow {

void setApplicationIdentity()
{
    QCoreApplication::setApplicationName(QStringLiteral("Ferrow"));
    QCoreApplication::setOrganizationName(QStringLiteral("Ferrow"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("ferrow.app"));
}

bool readBoolSetting(const QSettings &settings, const QString &key, bool defaultValue)
{
    const QVariant value = settings.value(key);
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    const QString text = value.toString().trimmed().toLower();
    if (text == u"true" || text == u"1")
        return true;
    if (text == u"false" || text == u"0")
        return false;
    return defaultValue;
}

} // namespace ferrow

#include "platform/common/settings_key_value_store.h"

namespace ferrow {

SettingsKeyValueStore::SettingsKeyValueStore()
    : m_settings(std::make_unique<QSettings>())
{
}

SettingsKeyValueStore::SettingsKeyValueStore(const QString &fileName, QSettings::Format format)
    : m_settings(std::make_unique<QSettings>(fileName, format))
{
}

std::optional<QByteArray> SettingsKeyValueStore::data(const QString &key) const
{
    const QVariant value = m_settings->value(key);
    // Only binary data counts; a string or number someone else put there is not a record.
    if (value.typeId() != QMetaType::QByteArray)
        return std::nullopt;
    return value.toByteArray();
}

void SettingsKeyValueStore::setData(const QString &key, const QByteArray &data)
{
    m_settings->setValue(key, data);
    m_settings->sync();
}

} // namespace ferrow

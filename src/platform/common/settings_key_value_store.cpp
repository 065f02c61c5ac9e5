#include "platform/common/settings_key_value_store.h"

namespace ferrow {

SettingsKeyValueStore::SettingsKeyValueStore(const QString &fileName, QSettings::Format format)
    : m_file(std::pair(fileName, format))
{
}

SettingsKeyValueStore::~SettingsKeyValueStore()
{
    flush();
}

template <typename Use>
auto SettingsKeyValueStore::withSettings(Use use) const
{
    if (m_file) {
        QSettings settings(m_file->first, m_file->second);
        return use(settings);
    }
    QSettings settings;
    return use(settings);
}

std::optional<QByteArray> SettingsKeyValueStore::data(const QString &key) const
{
    if (const auto unwritten = m_unwritten.find(key); unwritten != m_unwritten.end())
        return unwritten->second;
    return withSettings([&key](QSettings &settings) -> std::optional<QByteArray> {
        const QVariant value = settings.value(key);
        // Only binary data counts; a string or number someone else put there is not a record.
        if (value.typeId() != QMetaType::QByteArray)
            return std::nullopt;
        return value.toByteArray();
    });
}

void SettingsKeyValueStore::setData(const QString &key, const QByteArray &data)
{
    m_unwritten[key] = data;
}

void SettingsKeyValueStore::flush()
{
    if (m_unwritten.empty())
        return;
    withSettings([&](QSettings &settings) {
        for (const auto &[key, data] : m_unwritten)
            settings.setValue(key, data);
        settings.sync();
    });
    m_unwritten.clear();
}

} // namespace ferrow

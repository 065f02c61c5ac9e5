#include "platform/common/settings_key_value_store.h"

#include "model/private_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <atomic>

namespace ferrow {

bool savePreferences(QSettings &settings)
{
#ifdef Q_OS_DARWIN
    const bool ownFile = settings.format() == QSettings::IniFormat; // not the system's defaults database
#else
    const bool ownFile = true;
#endif
    const bool existed = QFileInfo::exists(settings.fileName());
    if (ownFile)
        keepPrivate(settings.fileName());
    settings.sync();
    if (settings.status() == QSettings::NoError)
        return true;
    if (ownFile && !existed && QFileInfo(settings.fileName()).size() == 0)
        QFile::remove(settings.fileName()); // no empty file where nothing was stored before
    // Said once a run: the values wait in memory and every later save tries again.
    static std::atomic_flag said;
    if (!said.test_and_set()) {
        const QString trouble = diskTrouble(settings.fileName());
        QTextStream(stderr) << QFileInfo(QCoreApplication::applicationFilePath()).fileName() << ": cannot save preferences to "
                            << settings.fileName() << (trouble.isEmpty() ? QString() : QStringLiteral(": ") + trouble) << Qt::endl;
    }
    return false;
}

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
    const bool saved = withSettings([&](QSettings &settings) {
        for (const auto &[key, data] : m_unwritten)
            settings.setValue(key, data);
        return savePreferences(settings);
    });
    if (saved)
        m_unwritten.clear();
}

} // namespace ferrow

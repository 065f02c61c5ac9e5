#pragma once

#include "monitor/key_value_store.h"

#include <QSettings>
#include <QString>

#include <map>
#include <optional>
#include <utility>

namespace ferrow {

// Preferences in QSettings' native format: the user-defaults store on macOS, the desktop's usual
// configuration file on Linux. This store is made on the main thread and used on the reading
// worker, and a QSettings object belongs to the thread that uses it, so each call makes its own
// (QSettings is reentrant; objects on several threads may share one file). A record that changes
// every second must not rewrite the file every second: values wait in memory until flush() (before
// sleep and quit) or until the store goes away, and stay there while the file cannot be written.
class SettingsKeyValueStore final : public KeyValueStore {
public:
    // The application's own preferences (organisation and application names must be set).
    SettingsKeyValueStore() = default;
    // A preferences file of its own, for tools and tests.
    SettingsKeyValueStore(const QString &fileName, QSettings::Format format);
    ~SettingsKeyValueStore() override;
    SettingsKeyValueStore(const SettingsKeyValueStore &) = delete;
    SettingsKeyValueStore &operator=(const SettingsKeyValueStore &) = delete;

    std::optional<QByteArray> data(const QString &key) const override;
    void setData(const QString &key, const QByteArray &data) override;
    void flush() override;

private:
    template <typename Use>
    auto withSettings(Use use) const;

    std::optional<std::pair<QString, QSettings::Format>> m_file;
    std::map<QString, QByteArray> m_unwritten;
};

// Writes what was set in settings to its file, which only its owner may read. A failure leaves the
// file as it was and the values in settings for the next try, and is said once a run on stderr.
bool savePreferences(QSettings &settings);

} // namespace ferrow

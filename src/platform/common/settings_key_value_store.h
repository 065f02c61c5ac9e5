#pragma once

#include "monitor/key_value_store.h"

#include <QSettings>

#include <memory>

namespace ferrow {

// Preferences in QSettings' native format: the user-defaults store on macOS, the desktop's usual
// configuration file on Linux. Values are written through at once, since the writer is a worker
// thread with no event loop to sync them later.
class SettingsKeyValueStore final : public KeyValueStore {
public:
    // The application's own preferences (organisation and application names must be set).
    SettingsKeyValueStore();
    // A preferences file of its own, for tools and tests.
    SettingsKeyValueStore(const QString &fileName, QSettings::Format format);

    std::optional<QByteArray> data(const QString &key) const override;
    void setData(const QString &key, const QByteArray &data) override;

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace ferrow

#pragma once

#include "monitor/key_value_store.h"

#include <QSettings>
#include <QString>

#include <optional>
#include <utility>

namespace ferrow {

// Preferences in QSettings' native format: the user-defaults store on macOS, the desktop's usual
// configuration file on Linux. This store is made on the main thread and used on the reading
// worker, and a QSettings object belongs to the thread that uses it, so each call makes its own
// (QSettings is reentrant; objects on several threads may share one file). Values are written
// through at once, since the worker has no event loop to sync them later.
class SettingsKeyValueStore final : public KeyValueStore {
public:
    // The application's own preferences (organisation and application names must be set).
    SettingsKeyValueStore() = default;
    // A preferences file of its own, for tools and tests.
    SettingsKeyValueStore(const QString &fileName, QSettings::Format format);

    std::optional<QByteArray> data(const QString &key) const override;
    void setData(const QString &key, const QByteArray &data) override;

private:
    template <typename Use>
    auto withSettings(Use use) const;

    std::optional<std::pair<QString, QSettings::Format>> m_file;
};

} // namespace ferrow

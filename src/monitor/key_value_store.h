#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ferrow {

// The user's preferences as binary values under string keys.
class KeyValueStore {
public:
    virtual ~KeyValueStore() = default;
    // The binary value under the key; absent when there is none or it is not binary data.
    virtual std::optional<QByteArray> data(const QString &key) const = 0;
    virtual void setData(const QString &key, const QByteArray &data) = 0;
    // Writes what was set since the last flush to disk; a store that keeps nothing there has nothing to do.
    virtual void flush() {}
};

} // namespace ferrow

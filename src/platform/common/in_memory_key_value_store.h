#pragma once

#include "monitor/key_value_store.h"

#include <map>

namespace ferrow {

// Preferences that last as long as the object: for the simulated machine and tests.
class InMemoryKeyValueStore final : public KeyValueStore {
public:
    std::optional<QByteArray> data(const QString &key) const override
    {
        const auto entry = m_values.find(key);
        return entry == m_values.end() ? std::nullopt : std::optional(entry->second);
    }
    void setData(const QString &key, const QByteArray &data) override
    {
        m_values[key] = data;
        ++m_writeCount;
    }

    const std::map<QString, QByteArray> &values() const { return m_values; }
    int writeCount() const { return m_writeCount; }

private:
    std::map<QString, QByteArray> m_values;
    int m_writeCount = 0;
};

} // namespace ferrow

#pragma once

#include "sources/stats_smc.h"

#include <optional>
#include <string>

namespace ferrow {

// The candidate SMC keys that exist on this machine, asked on the first call only. A machine's keys
// do not come or go while it runs, and asking costs two calls a key, so the answer is kept for the
// process, "none" included; a later failed read of a found key does not ask again.
template <typename Keys>
class KeyProbe {
public:
    // Keys is a std::set or std::vector of std::string; a vector keeps the candidates' order.
    template <typename Candidates>
    const Keys &keys(StatsSMC &smc, const Candidates &candidates)
    {
        if (!m_found) {
            m_found.emplace();
            for (const auto &candidate : candidates) {
                SMCValue value;
                value.key = candidate;
                // Only a key that reads and has bytes is there.
                if (smc.readKey(value) == kIOKitSuccess && value.dataSize != 0)
                    m_found->insert(m_found->end(), std::string(candidate));
            }
        }
        return *m_found;
    }

    // Absent until the first call to keys(), then fixed.
    const std::optional<Keys> &found() const { return m_found; }

private:
    std::optional<Keys> m_found;
};

} // namespace ferrow

#include "platform/linux/sysfs_smc_client.h"

#include "sources/stats_smc.h"

#include <cmath>
#include <cstring>

namespace ferrow {

SysfsSMCClient::SysfsSMCClient(const std::map<std::string, Reading> &keys)
{
    for (const auto &[key, reading] : keys)
        m_keys.emplace(StatsSMC::encodeKey(key), reading);
}

IOKitStatus SysfsSMCClient::callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input,
                                             SMCKeyData &output)
{
    if (connection != kConnection)
        return kIOKitReturnNotOpen;
    if (selector != kSMCUserClientSelector)
        return kIOKitReturnError;
    output = SMCKeyData{};
    output.key = input.key;
    const auto key = m_keys.find(input.key);
    switch (input.command) {
    case kSMCCommandReadKeyInfo:
        // As on the SMC, an unknown key is no error: it reports a data size of 0.
        if (key != m_keys.end()) {
            output.keyInfo.dataSize = sizeof(float);
            output.keyInfo.dataType = StatsSMC::encodeKey("flt ");
        }
        return kIOKitSuccess;
    case kSMCCommandReadBytes: {
        if (key == m_keys.end())
            return kIOKitSuccess;
        const std::optional<double> value = key->second();
        if (!value || !std::isfinite(*value) || std::fabs(*value) > 1e30)
            return kIOKitReturnError;
        const auto number = static_cast<float>(*value);
        std::memcpy(output.bytes, &number, sizeof number); // the SMC's floats are little-endian, as the host
        return kIOKitSuccess;
    }
    default:
        return kIOKitReturnError;
    }
}

} // namespace ferrow

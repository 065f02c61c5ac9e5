#include "platform/common/in_memory_smc.h"

#include "sources/stats_smc.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace ferrow {

void InMemorySMC::setKey(const std::string &key, const std::string &dataType, std::vector<std::uint8_t> bytes)
{
    const auto size = static_cast<std::uint32_t>(bytes.size());
    setEntry(key, Entry{dataType, size, std::move(bytes)});
}

void InMemorySMC::setEntry(const std::string &key, Entry entry)
{
    m_keys[StatsSMC::encodeKey(key)] = std::move(entry);
}

void InMemorySMC::removeKey(const std::string &key)
{
    m_keys.erase(StatsSMC::encodeKey(key));
}

void InMemorySMC::setFailure(const std::string &key, IOKitStatus status, std::optional<std::uint8_t> command)
{
    if (status == kIOKitSuccess)
        m_failures.erase(StatsSMC::encodeKey(key));
    else
        m_failures[StatsSMC::encodeKey(key)] = Failure{status, command};
}

std::uint32_t InMemorySMC::open()
{
    if (!m_servicePresent)
        return 0;
    ++m_openConnections;
    return kConnection;
}

void InMemorySMC::close(std::uint32_t connection)
{
    if (connection == kConnection)
        --m_openConnections;
}

IOKitStatus InMemorySMC::callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input,
                                          SMCKeyData &output)
{
    ++m_callCount;
    if (connection != kConnection)
        return kIOKitReturnNotOpen;
    if (selector != kSMCUserClientSelector)
        return kIOKitReturnError;
    if (const auto failure = m_failures.find(input.key);
        failure != m_failures.end() && (!failure->second.command || *failure->second.command == input.command))
        return failure->second.status;

    output = SMCKeyData{};
    output.key = input.key;
    const auto entry = m_keys.find(input.key);
    switch (input.command) {
    case kSMCCommandReadKeyInfo:
        // An unknown key is no error: it reports a data size of 0.
        if (entry != m_keys.end()) {
            output.keyInfo.dataSize = entry->second.dataSize;
            output.keyInfo.dataType = StatsSMC::encodeKey(entry->second.dataType);
        }
        return kIOKitSuccess;
    case kSMCCommandReadBytes:
        if (entry != m_keys.end() && !entry->second.bytes.empty()) { // an empty vector's data() may be null
            const std::vector<std::uint8_t> &bytes = entry->second.bytes;
            std::memcpy(output.bytes, bytes.data(), std::min(bytes.size(), sizeof output.bytes));
        }
        return kIOKitSuccess;
    default:
        return kIOKitReturnError;
    }
}

std::vector<std::uint8_t> smcBytesOfFloat(float value)
{
    std::vector<std::uint8_t> bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

std::vector<std::uint8_t> smcBytesOfUnsigned(std::uint64_t value, int size)
{
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    for (int i = size - 1; i >= 0; --i, value >>= 8)
        bytes[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value & 0xFF);
    return bytes;
}

std::vector<std::uint8_t> smcBytesOfFixedPoint(double value, int fractionBits)
{
    const double scaled = std::round(value * std::ldexp(1.0, fractionBits));
    return smcBytesOfUnsigned(static_cast<std::uint64_t>(std::clamp(scaled, 0.0, 65535.0)), 2);
}

} // namespace ferrow

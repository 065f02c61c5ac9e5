#include "sources/stats_smc.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace ferrow {
namespace {

struct FixedPointType {
    std::string_view name;
    double divisor;
};

// Unsigned 16-bit big-endian values with a number of fraction bits given by the type's name.
constexpr FixedPointType kFixedPointTypes[] = {
    {"sp1e", 16384}, {"sp3c", 4096}, {"sp4b", 2048}, {"sp5a", 1024}, {"sp69", 512}, {"sp78", 256},
    {"sp87", 128},   {"sp96", 64},   {"spa5", 32},   {"spb4", 16},   {"spf0", 1},
};

} // namespace

StatsSMC::StatsSMC(std::unique_ptr<SMCUserClient> client)
    : m_client(std::move(client))
{
    if (m_client)
        m_connection = m_client->open();
}

StatsSMC::~StatsSMC()
{
    if (m_connection != 0)
        m_client->close(m_connection);
}

std::uint32_t StatsSMC::encodeKey(std::string_view key)
{
    std::uint32_t code = 0;
    for (const char character : key)
        code = (code << 8) | static_cast<std::uint8_t>(character);
    return code;
}

std::string StatsSMC::decodeType(std::uint32_t typeCode)
{
    std::string type(4, '\0');
    for (int i = 0; i < 4; ++i)
        type[i] = static_cast<char>((typeCode >> (24 - 8 * i)) & 0xFF);
    return type;
}

IOKitStatus StatsSMC::readKey(SMCValue &value)
{
    if (m_connection == 0)
        return kIOKitReturnNotOpen;

    SMCKeyData input{};
    SMCKeyData output{};
    input.key = encodeKey(value.key);
    input.command = kSMCCommandReadKeyInfo;
    IOKitStatus status = m_client->callStructMethod(m_connection, kSMCUserClientSelector, input, output);
    if (status != kIOKitSuccess)
        return status;

    value.dataSize = output.keyInfo.dataSize;
    value.dataType = decodeType(output.keyInfo.dataType);

    input.keyInfo.dataSize = value.dataSize;
    input.command = kSMCCommandReadBytes;
    output = SMCKeyData{};
    status = m_client->callStructMethod(m_connection, kSMCUserClientSelector, input, output);
    if (status != kIOKitSuccess)
        return status;

    const std::size_t count = std::min<std::size_t>({value.bytes.size(), value.dataSize, sizeof output.bytes});
    std::memcpy(value.bytes.data(), output.bytes, count);
    return kIOKitSuccess;
}

std::optional<double> StatsSMC::readDouble(std::string_view key)
{
    SMCValue value;
    value.key = std::string(key);
    if (readKey(value) != kIOKitSuccess || value.dataSize == 0)
        return std::nullopt;
    return decodeValue(value.dataType, value.bytes);
}

std::optional<double> StatsSMC::decodeValue(std::string_view dataType, const std::array<std::uint8_t, 32> &bytes)
{
    if (std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t b) { return b == 0; }))
        return std::nullopt;

    const unsigned b0 = bytes[0], b1 = bytes[1], b2 = bytes[2], b3 = bytes[3];
    const unsigned bigEndian16 = b0 * 256 + b1;
    if (dataType == "ui8 ")
        return b0;
    if (dataType == "ui16")
        return bigEndian16;
    if (dataType == "ui32")
        return (std::uint32_t(b0) << 24) | (b1 << 16) | (b2 << 8) | b3;
    for (const FixedPointType &type : kFixedPointTypes) {
        if (dataType == type.name)
            return bigEndian16 / type.divisor;
    }
    if (dataType == "flt ") {
        float number;
        std::memcpy(&number, bytes.data(), sizeof number); // host order is little-endian
        return static_cast<double>(number);
    }
    if (dataType == "fpe2")
        return b0 * 64 + (b1 >> 2);
    return std::nullopt;
}

} // namespace ferrow

#pragma once

#include "sources/platform_interfaces.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ferrow {

// What one raw read of a key fills in. The caller sets the key; the rest starts empty.
struct SMCValue {
    std::string key;
    std::uint32_t dataSize = 0;
    std::string dataType;
    std::array<std::uint8_t, 32> bytes{};
};

// The only path to the System Management Controller: reads keys and decodes their bytes by type.
// It knows no key by name; its callers choose keys and judge values.
class StatsSMC {
public:
    explicit StatsSMC(std::unique_ptr<SMCUserClient> client);
    ~StatsSMC();
    StatsSMC(const StatsSMC &) = delete;
    StatsSMC &operator=(const StatsSMC &) = delete;

    bool isOpen() const { return m_connection != 0; }

    // Two user-client calls: key information, then the bytes. Returns the failing call's status.
    IOKitStatus readKey(SMCValue &value);
    // The key's value decoded by its reported type; absent on any failure or all-zero bytes.
    std::optional<double> readDouble(std::string_view key);

    static std::uint32_t encodeKey(std::string_view key);
    static std::string decodeType(std::uint32_t typeCode);
    static std::optional<double> decodeValue(std::string_view dataType, const std::array<std::uint8_t, 32> &bytes);

private:
    std::unique_ptr<SMCUserClient> m_client;
    std::uint32_t m_connection = 0;
};

} // namespace ferrow

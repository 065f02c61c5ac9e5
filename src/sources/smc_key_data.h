#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace ferrow {

// IOKit's status type (kern_return_t) and the statuses this code produces itself.
using IOKitStatus = std::int32_t;
inline constexpr IOKitStatus kIOKitSuccess = 0;
inline constexpr IOKitStatus kIOKitReturnNotOpen = static_cast<IOKitStatus>(0xE00002CDu);
inline constexpr IOKitStatus kIOKitReturnError = static_cast<IOKitStatus>(0xE00002BCu);

inline constexpr std::uint32_t kSMCUserClientSelector = 2;
inline constexpr std::uint8_t kSMCCommandReadKeyInfo = 9;
inline constexpr std::uint8_t kSMCCommandReadBytes = 5;

// The parameter block the SMC user client takes and returns: 80 bytes, little-endian fields.
// Both hosts that run the user client (Apple silicon, and Intel before it) are little-endian,
// so the host layout is the wire layout.
struct SMCKeyData {
    struct Version {
        std::uint8_t major;
        std::uint8_t minor;
        std::uint8_t build;
        std::uint8_t reserved;
        std::uint16_t release;
    };
    struct PowerLimits {
        std::uint16_t version;
        std::uint16_t length;
        std::uint32_t cpuLimit;
        std::uint32_t gpuLimit;
        std::uint32_t memoryLimit;
    };
    struct KeyInfo {
        std::uint32_t dataSize;
        std::uint32_t dataType;
        std::uint8_t dataAttributes;
    };

    std::uint32_t key;
    Version version;
    PowerLimits powerLimits;
    KeyInfo keyInfo;
    std::uint8_t result;
    std::uint8_t status;
    std::uint8_t command;
    std::uint32_t data32;
    std::uint8_t bytes[32];
};

static_assert(std::endian::native == std::endian::little, "the SMC wire block is little-endian");
static_assert(sizeof(SMCKeyData) == 80);
static_assert(offsetof(SMCKeyData, version) == 4);
static_assert(offsetof(SMCKeyData, powerLimits) == 12);
static_assert(offsetof(SMCKeyData, keyInfo) == 28);
static_assert(offsetof(SMCKeyData, keyInfo) + offsetof(SMCKeyData::KeyInfo, dataType) == 32);
static_assert(offsetof(SMCKeyData, keyInfo) + offsetof(SMCKeyData::KeyInfo, dataAttributes) == 36);
static_assert(offsetof(SMCKeyData, result) == 40);
static_assert(offsetof(SMCKeyData, status) == 41);
static_assert(offsetof(SMCKeyData, command) == 42);
static_assert(offsetof(SMCKeyData, data32) == 44);
static_assert(offsetof(SMCKeyData, bytes) == 48);

} // namespace ferrow

#pragma once

#include "sources/platform_interfaces.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ferrow {

// An SMC user client that answers the key-information and read-bytes commands from a key table,
// over the same 80-byte blocks as the real one. The simulated and recorded machines and the
// tests stand on it, so the real encoding and decoding always run.
class InMemorySMC final : public SMCUserClient {
public:
    struct Entry {
        std::string dataType;       // four characters, e.g. "flt " or "sp78"
        std::uint32_t dataSize = 0; // as reported; may differ from bytes.size()
        std::vector<std::uint8_t> bytes;
    };

    void setKey(const std::string &key, const std::string &dataType, std::vector<std::uint8_t> bytes);
    void setEntry(const std::string &key, Entry entry);
    void removeKey(const std::string &key);
    // Commands for this key (all, or only the one given) answer with the status; kIOKitSuccess clears it.
    void setFailure(const std::string &key, IOKitStatus status, std::optional<std::uint8_t> command = std::nullopt);
    // With no SMC service, open() yields no connection.
    void setServicePresent(bool present) { m_servicePresent = present; }

    int callCount() const { return m_callCount; }
    int openConnections() const { return m_openConnections; }

    std::uint32_t open() override;
    IOKitStatus callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input,
                                 SMCKeyData &output) override;
    void close(std::uint32_t connection) override;

private:
    static constexpr std::uint32_t kConnection = 0x5343; // any non-zero handle

    std::map<std::uint32_t, Entry> m_keys; // by encoded key
    struct Failure {
        IOKitStatus status;
        std::optional<std::uint8_t> command;
    };
    std::map<std::uint32_t, Failure> m_failures;
    bool m_servicePresent = true;
    int m_callCount = 0;
    int m_openConnections = 0;
};

// Byte layouts of SMC values, as the SMC stores them.
std::vector<std::uint8_t> smcBytesOfFloat(float value);
std::vector<std::uint8_t> smcBytesOfUnsigned(std::uint64_t value, int size);
std::vector<std::uint8_t> smcBytesOfFixedPoint(double value, int fractionBits);

} // namespace ferrow

namespace ferrow {

// A user client over an InMemorySMC owned elsewhere, such as a machine model that keeps
// updating its keys while the reader holds the client.
class InMemorySMCClient final : public SMCUserClient {
public:
    explicit InMemorySMCClient(InMemorySMC &smc) : m_smc(smc) {}
    std::uint32_t open() override { return m_smc.open(); }
    IOKitStatus callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input,
                                 SMCKeyData &output) override
    {
        return m_smc.callStructMethod(connection, selector, input, output);
    }
    void close(std::uint32_t connection) override { m_smc.close(connection); }

private:
    InMemorySMC &m_smc;
};

} // namespace ferrow

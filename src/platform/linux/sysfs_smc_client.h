#pragma once

#include "sources/platform_interfaces.h"

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace ferrow {

// The SMC's power keys as the reader asks for them, answered from sysfs: each key that this
// machine measures is a 32-bit float ("flt ", as on the SMC) read afresh on every request. A key
// that is not in the table does not exist; one whose reading fails answers with an error.
class SysfsSMCClient final : public SMCUserClient {
public:
    using Reading = std::function<std::optional<double>()>;

    explicit SysfsSMCClient(const std::map<std::string, Reading> &keys);

    std::uint32_t open() override { return kConnection; }
    IOKitStatus callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input,
                                 SMCKeyData &output) override;
    void close(std::uint32_t) override {}

private:
    static constexpr std::uint32_t kConnection = 0x5359; // any non-zero handle

    std::map<std::uint32_t, Reading> m_keys; // by encoded key
};

} // namespace ferrow

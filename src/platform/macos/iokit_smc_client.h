#pragma once

#include "sources/platform_interfaces.h"

namespace ferrow {

// The SMC's kernel user client: the first "AppleSMC" service, connection type 0, selector 2.
class IOKitSMCUserClient final : public SMCUserClient {
public:
    std::uint32_t open() override;
    IOKitStatus callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input, SMCKeyData &output) override;
    void close(std::uint32_t connection) override;
};

} // namespace ferrow

#pragma once

#include "platform/macos/cf_ref.h"
#include "sources/platform_interfaces.h"

namespace ferrow {

// The kernel's energy reports, group "Energy Model", through the IOReport library.
class IOReportEnergySource final : public EnergyReportSource {
public:
    bool subscribe() override;
    std::optional<std::vector<EnergyChannelSample>> sample() override;

private:
    CFRef<CFMutableDictionaryRef> m_channels;
    CFRef<CFTypeRef> m_subscription;
};

} // namespace ferrow

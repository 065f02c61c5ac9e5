#include "platform/macos/mac_machine.h"

#include "platform/macos/iokit_smc_client.h"
#include "platform/macos/ioreport_energy_source.h"
#include "platform/macos/mac_system.h"

#include <mach/mach_time.h>

namespace ferrow {

std::unique_ptr<SMCUserClient> MacMachine::createSMCUserClient()
{
    return std::make_unique<IOKitSMCUserClient>();
}

std::unique_ptr<EnergyReportSource> MacMachine::createEnergyReportSource()
{
    return std::make_unique<IOReportEnergySource>();
}

int MacMachine::operatingSystemMajorVersion() const
{
    const std::optional<ProductVersion> version = runningMacOSVersion();
    return version ? version->major : 0;
}

QString MacMachine::modelAndSystem()
{
    const std::optional<ProductVersion> version = runningMacOSVersion();
    return QStringLiteral("%1, macOS %2").arg(macModelIdentifier(), version ? version->text() : reportedMacOSVersion());
}

double MacMachine::uptimeSeconds() const
{
    static const mach_timebase_info_data_t timebase = [] {
        mach_timebase_info_data_t info{};
        mach_timebase_info(&info);
        return info;
    }();
    const long double nanoseconds = static_cast<long double>(mach_absolute_time()) * timebase.numer / timebase.denom;
    return static_cast<double>(nanoseconds / 1e9L);
}

} // namespace ferrow

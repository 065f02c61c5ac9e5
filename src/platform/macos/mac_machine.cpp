#include "platform/macos/mac_machine.h"

#include "platform/macos/iokit_smc_client.h"
#include "platform/macos/ioreport_energy_source.h"

#include <mach/mach_time.h>
#include <sys/sysctl.h>

#include <cstdlib>

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
    char version[32] = {};
    size_t size = sizeof version - 1;
    if (sysctlbyname("kern.osproductversion", version, &size, nullptr, 0) != 0)
        return 0;
    return std::atoi(version); // "26.1" reads as 26
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

#include "platform/macos/mac_machine.h"

#include "platform/macos/iokit_smc_client.h"
#include "platform/macos/ioreport_energy_source.h"

#include <mach/mach_time.h>
#include <sys/sysctl.h>


namespace ferrow {

std::unique_ptr<SMCUserClient> MacMachine::createSMCUserClient()
{
    return std::make_unique<IOKitSMCUserClient>();
}

std::unique_ptr<EnergyReportSource> MacMachine::createEnergyReportSource()
{
    return std::make_unique<IOReportEnergySource>();
}

namespace {

QString sysctlText(const char *name)
{
    char text[128] = {};
    size_t size = sizeof text - 1;
    if (sysctlbyname(name, text, &size, nullptr, 0) != 0)
        return {};
    return QString::fromUtf8(text);
}

} // namespace

int MacMachine::operatingSystemMajorVersion() const
{
    return sysctlText("kern.osproductversion").section(u'.', 0, 0).toInt(); // "26.1" reads as 26
}

QString MacMachine::modelAndSystem()
{
    return QStringLiteral("%1, macOS %2").arg(sysctlText("hw.model"), sysctlText("kern.osproductversion"));
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

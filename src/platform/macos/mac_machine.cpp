#include "platform/macos/mac_machine.h"

#include "platform/macos/iokit_smc_client.h"
#include "platform/macos/ioreport_energy_source.h"
#include "platform/macos/mac_system.h"
#include "platform/macos/mach_time.h"
#include "sources/mac_source_diagnosis.h"

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

Diagnosis MacMachine::diagnose()
{
    DiagnosisSection system{QStringLiteral("System"), {}};
    system.add(QStringLiteral("model"), macModelIdentifier());
    const std::optional<ProductVersion> version = runningMacOSVersion();
    system.add(QStringLiteral("macOS"), version ? version->text() : QString(), version ? QString() : QStringLiteral("unknown"));
    system.add(QStringLiteral("macOS as told to this process"), reportedMacOSVersion(),
               QStringLiteral("an older SDK is told 16 on 26 and later"));
    system.add(QStringLiteral("Darwin"), darwinRelease());
    const ActivityAssertion assertion;
    system.add(QStringLiteral("activity assertion (keeps the 1 s pace)"), assertion.isHeld() ? QStringLiteral("held") : QString(),
               assertion.isHeld() ? QString() : QStringLiteral("refused: readings may slow down in the background"));
    Diagnosis diagnosis = diagnoseMacSources(*this);
    diagnosis.insert(diagnosis.begin(), std::move(system));
    return diagnosis;
}

double MacMachine::uptimeSeconds() const
{
    return machUptimeSeconds();
}

} // namespace ferrow

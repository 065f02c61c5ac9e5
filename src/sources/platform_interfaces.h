#pragma once

// The small interfaces through which the decoding and arithmetic of sources/ read the machine.
// Each backend in platform/ implements them; tests use small fakes.

#include "model/power_snapshot.h"
#include "monitor/key_value_store.h"
#include "sources/property_value.h"
#include "sources/smc_key_data.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ferrow {

// The SMC's kernel user client.
class SMCUserClient {
public:
    virtual ~SMCUserClient() = default;
    // Opens the first "AppleSMC" service; returns its connection handle, or 0 when there is none.
    virtual std::uint32_t open() = 0;
    virtual IOKitStatus callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input,
                                         SMCKeyData &output) = 0;
    virtual void close(std::uint32_t connection) = 0;
};

// One channel of an energy report; any of the three texts may be missing.
struct EnergyChannelSample {
    std::optional<QString> group;
    std::optional<QString> name;
    std::optional<QString> unitLabel;
    std::int64_t counter = 0;
};

// The kernel's energy reports for the processor's power domains.
class EnergyReportSource {
public:
    virtual ~EnergyReportSource() = default;
    // Subscribes to the "Energy Model" group; false when energy reports cannot be had.
    virtual bool subscribe() = 0;
    // The counters of every subscribed channel now, or absent when no sample could be taken.
    virtual std::optional<std::vector<EnergyChannelSample>> sample() = 0;
};

// The I/O Registry's property dictionaries.
class RegistryPropertySource {
public:
    virtual ~RegistryPropertySource() = default;
    // The whole property dictionary of the first service of that class, or absent.
    virtual std::optional<PropertyDictionary> registryProperties(const QString &className) = 0;
};

// Wall-clock time, and monotonic seconds since boot for rates.
class Clock {
public:
    virtual ~Clock() = default;
    virtual WallTime now() const = 0;
    virtual double uptimeSeconds() const = 0;
};

// What a finished child process left: its exit status and everything it wrote to standard output.
struct CommandResult {
    int exitStatus = 0;
    QByteArray standardOutput;
};

// Runs a program by absolute path, without a shell, standard error to the null device.
class CommandRunner {
public:
    virtual ~CommandRunner() = default;
    // Absent when the program could not be started or did not finish in time.
    virtual std::optional<CommandResult> run(const QString &program, const QStringList &arguments) = 0;
};

// The power-source service: one description dictionary per source, as untyped values.
class PowerSourceList {
public:
    virtual ~PowerSourceList() = default;
    // Absent when the power-source snapshot or its list could not be had.
    virtual std::optional<PropertyList> powerSourceDescriptions() = 0;
};

// Facts about the running system that the reader branches on.
class SystemInfo {
public:
    virtual ~SystemInfo() = default;
    virtual int operatingSystemMajorVersion() const = 0;
    // Whether the power-source service describes a connected adapter (a non-empty description).
    virtual bool hasExternalPowerAdapterDetails() = 0;
};

// One machine to read: a backend's implementations of every interface above. The SMC client
// and the energy source are made on first use, as the reader needs them.
class MachinePlatform {
public:
    virtual ~MachinePlatform() = default;
    virtual std::unique_ptr<SMCUserClient> createSMCUserClient() = 0;
    virtual std::unique_ptr<EnergyReportSource> createEnergyReportSource() = 0;
    virtual RegistryPropertySource &registry() = 0;
    virtual PowerSourceList &powerSources() = 0;
    virtual CommandRunner &commandRunner() = 0;
    virtual KeyValueStore &preferences() = 0;
    virtual SystemInfo &systemInfo() = 0;
    virtual const Clock &clock() const = 0;
};

} // namespace ferrow

#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace ferrow {

// A small physical model of an Apple-silicon machine's power: a USB-C PD adapter at 20 V, a
// three-cell pack that charges constant-current then constant-voltage and discharges under a
// varying CPU/GPU load, plug and unplug events, and a battery temperature that follows the heat.
// It advances in fixed steps, so a given seed gives the same run however it is sampled.
class SimulatedPowerModel {
public:
    enum class Kind { notebook, desktop };

    struct Config {
        Kind kind = Kind::notebook;
        std::uint64_t seed = 1;
        double initialStateOfCharge = 0.55;
    };

    // Energy domains of the chip, in the order cpu, gpu, ane, dram.
    enum Domain { cpu, gpu, ane, dram, domainCount };

    struct State {
        double timeS = 0;
        bool adapterConnected = false;
        double adapterVoltageV = 0;
        double adapterCurrentA = 0;
        double adapterPowerW = 0;
        double systemPowerW = 0;
        std::array<double, domainCount> domainPowerW{};
        std::array<double, domainCount> domainEnergyJ{}; // cumulative since boot
        double adapterEnergyJ = 0; // cumulative since the model started, for checking what others integrate
        double systemEnergyJ = 0;
        // Battery (notebook only).
        double stateOfCharge = 0;
        double packVoltageV = 0;
        double batteryCurrentA = 0; // positive while charging
        std::array<double, 3> cellVoltagesV{};
        bool isCharging = false;
        bool isFullyCharged = false;
        double temperatureC = 24;
        double lifetimeMaximumC = 41;
        double lifetimeMinimumC = 9;
        double lifetimeAverageC = 26.8;
        double dischargedAh = 0;
    };

    static constexpr double kStepS = 0.5;
    static constexpr double kAdapterVoltageV = 20.0;
    static constexpr double kAdapterMaximumW = 67.0;
    static constexpr int kDesignCapacityMAH = 6249;
    static constexpr int kFullChargeCapacityMAH = 5814;
    static constexpr int kNominalChargeCapacityMAH = 5902;
    static constexpr int kInitialCycleCount = 187;

    explicit SimulatedPowerModel(Config config);

    Kind kind() const { return m_config.kind; }
    bool hasBattery() const { return m_config.kind == Kind::notebook; }
    const State &state() const { return m_state; }

    // Integrates up to the given time (seconds since the model started); never backwards.
    void advanceTo(double timeS);
    // Forces the adapter in or out regardless of the schedule; absent returns to the schedule.
    void setExternalPowerOverride(std::optional<bool> connected) { m_externalPowerOverride = connected; }

    int remainingCapacityMAH() const;
    int cycleCount() const;
    std::optional<int> minutesToFull() const;

private:
    void step(double dtS);
    void stepLoad(double dtS);
    void stepBattery(double dtS);
    bool scheduledAdapterConnection(double timeS) const;
    double noise(std::uint64_t stream, std::int64_t slot) const;

    Config m_config;
    State m_state;
    std::optional<bool> m_externalPowerOverride;
};

} // namespace ferrow

#include "platform/simulated/simulated_power_model.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ferrow {
namespace {

constexpr double kPackResistanceOhm = 0.12;
constexpr double kChargeVoltagePerCellV = 4.2;
constexpr double kConstantCurrentA = 3.0;
constexpr double kTerminationCurrentA = 0.12;
constexpr double kRechargeBelow = 0.95;
constexpr double kAmbientC = 24.0;
constexpr double kThermalTimeConstantS = 300.0;
constexpr double kLoadTimeConstantS = 2.0;
constexpr std::array<double, 3> kCellOffsetsV = {0.0, 0.004, -0.003};

// Open-circuit voltage of one Li-ion cell by state of charge.
double cellOpenCircuitVoltage(double stateOfCharge)
{
    static constexpr std::array<std::pair<double, double>, 9> curve = {
        {{0.0, 3.30}, {0.05, 3.55}, {0.1, 3.65}, {0.2, 3.72}, {0.4, 3.80}, {0.6, 3.90}, {0.8, 4.02}, {0.9, 4.10}, {1.0, 4.20}}};
    const double soc = std::clamp(stateOfCharge, 0.0, 1.0);
    for (std::size_t i = 1; i < curve.size(); ++i) {
        if (soc <= curve[i].first) {
            const auto [s0, v0] = curve[i - 1];
            const auto [s1, v1] = curve[i];
            return v0 + (v1 - v0) * (soc - s0) / (s1 - s0);
        }
    }
    return curve.back().second;
}

double lagToward(double value, double target, double dtS, double timeConstantS)
{
    return value + (target - value) * (1.0 - std::exp(-dtS / timeConstantS));
}

std::uint64_t splitMix(std::uint64_t x)
{
    x += 0x9E3779B97F4A7C15ull;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
    return x ^ (x >> 31);
}

} // namespace

SimulatedPowerModel::SimulatedPowerModel(Config config)
    : m_config(config)
{
    m_state.stateOfCharge = hasBattery() ? std::clamp(config.initialStateOfCharge, 0.0, 1.0) : 0.0;
    m_state.adapterConnected = !hasBattery() || scheduledAdapterConnection(0);
    step(0.0);
}

double SimulatedPowerModel::noise(std::uint64_t stream, std::int64_t slot) const
{
    const std::uint64_t hash = splitMix(m_config.seed * 0x100000001B3ull ^ splitMix(stream) ^ static_cast<std::uint64_t>(slot));
    return static_cast<double>(hash >> 11) / 9007199254740992.0; // [0, 1)
}

bool SimulatedPowerModel::scheduledAdapterConnection(double timeS) const
{
    // A three-hour day: 45 min on the adapter, 50 off, 55 on, 30 off.
    const double minute = std::fmod(timeS / 60.0, 180.0);
    return minute < 45.0 || (minute >= 95.0 && minute < 150.0);
}

void SimulatedPowerModel::advanceTo(double timeS)
{
    while (m_state.timeS + kStepS <= timeS) {
        m_state.timeS += kStepS;
        step(kStepS);
    }
}

void SimulatedPowerModel::step(double dtS)
{
    if (hasBattery())
        m_state.adapterConnected = m_externalPowerOverride.value_or(scheduledAdapterConnection(m_state.timeS));
    stepLoad(dtS);
    if (hasBattery())
        stepBattery(dtS);
    else
        m_state.adapterPowerW = m_state.systemPowerW;
    for (int domain = 0; domain < domainCount; ++domain)
        m_state.domainEnergyJ[domain] += m_state.domainPowerW[domain] * dtS;
    m_state.adapterEnergyJ += m_state.adapterPowerW * dtS;
    m_state.systemEnergyJ += m_state.systemPowerW * dtS;

    m_state.adapterVoltageV = m_state.adapterConnected ? kAdapterVoltageV - 0.02 * m_state.adapterPowerW / kAdapterVoltageV : 0.0;
    m_state.adapterCurrentA = m_state.adapterConnected ? m_state.adapterPowerW / m_state.adapterVoltageV : 0.0;
}

void SimulatedPowerModel::stepLoad(double dtS)
{
    const double t = m_state.timeS;
    const auto slot = [t](double lengthS) { return static_cast<std::int64_t>(std::floor(t / lengthS)); };

    const double wave = 0.5 + 0.5 * std::sin(2.0 * std::numbers::pi * t / 420.0);
    const double burst = noise(1, slot(25.0));
    const double cpuTarget = 1.2 + 4.5 * wave + (burst > 0.7 ? 14.0 * (burst - 0.7) / 0.3 : 0.0);
    const double graphics = noise(2, slot(40.0));
    const double gpuTarget = 0.3 + (graphics > 0.75 ? 8.0 * (graphics - 0.75) / 0.25 : 0.0);
    const double aneTarget = noise(3, slot(15.0)) > 0.85 ? 1.4 : 0.02;

    auto &power = m_state.domainPowerW;
    power[cpu] = lagToward(power[cpu], cpuTarget, dtS, kLoadTimeConstantS);
    power[gpu] = lagToward(power[gpu], gpuTarget, dtS, kLoadTimeConstantS);
    power[ane] = lagToward(power[ane], aneTarget, dtS, kLoadTimeConstantS);
    power[dram] = 0.35 + 0.06 * power[cpu];

    const double platformW = hasBattery() ? 2.8 : 6.5; // display, storage, fans, radios
    m_state.systemPowerW = platformW + power[cpu] + power[gpu] + power[ane] + power[dram];
}

void SimulatedPowerModel::stepBattery(double dtS)
{
    State &s = m_state;
    const double capacityAh = kFullChargeCapacityMAH / 1000.0;
    const double openCircuitV = 3 * cellOpenCircuitVoltage(s.stateOfCharge);
    const double chargeLimitV = 3 * kChargeVoltagePerCellV;

    double currentA = 0;
    if (s.adapterConnected) {
        if (s.isFullyCharged && s.stateOfCharge < kRechargeBelow)
            s.isFullyCharged = false;
        const double budgetW = kAdapterMaximumW - s.systemPowerW;
        if (budgetW < 0) {
            currentA = budgetW / openCircuitV; // the battery helps out
        } else if (!s.isFullyCharged) {
            // Constant current until the pack reaches its charge voltage, then constant voltage.
            currentA = std::min(kConstantCurrentA, (chargeLimitV - openCircuitV) / kPackResistanceOhm);
            currentA = std::clamp(currentA, 0.0, budgetW / chargeLimitV);
            if (currentA < kTerminationCurrentA && s.stateOfCharge > 0.99) {
                s.isFullyCharged = true;
                currentA = 0;
            }
        }
    } else {
        s.isFullyCharged = false;
        currentA = -s.systemPowerW / openCircuitV;
    }
    if (s.stateOfCharge <= 0.01 && currentA < 0)
        currentA = 0; // a real machine would have gone to sleep by now

    s.batteryCurrentA = currentA;
    s.packVoltageV = openCircuitV + currentA * kPackResistanceOhm;
    for (std::size_t cell = 0; cell < s.cellVoltagesV.size(); ++cell)
        s.cellVoltagesV[cell] = s.packVoltageV / 3 + kCellOffsetsV[cell];
    s.isCharging = s.adapterConnected && currentA > 0.05;
    s.adapterPowerW = s.adapterConnected ? std::max(0.0, s.systemPowerW + currentA * s.packVoltageV) : 0.0;

    s.stateOfCharge = std::clamp(s.stateOfCharge + currentA * dtS / 3600.0 / capacityAh, 0.0, 1.0);
    if (currentA < 0)
        s.dischargedAh += -currentA * dtS / 3600.0;

    const double heatW = 0.25 * s.domainPowerW[cpu] + 0.2 * s.domainPowerW[gpu] + currentA * currentA * kPackResistanceOhm
                       + (s.isCharging ? 0.04 * currentA * s.packVoltageV : 0.0);
    s.temperatureC = lagToward(s.temperatureC, kAmbientC + 2.2 * heatW, dtS, kThermalTimeConstantS);
    s.lifetimeMaximumC = std::max(s.lifetimeMaximumC, s.temperatureC);
    s.lifetimeMinimumC = std::min(s.lifetimeMinimumC, s.temperatureC);
}

int SimulatedPowerModel::remainingCapacityMAH() const
{
    return static_cast<int>(std::lround(m_state.stateOfCharge * kFullChargeCapacityMAH));
}

int SimulatedPowerModel::cycleCount() const
{
    return kInitialCycleCount + static_cast<int>(m_state.dischargedAh / (kFullChargeCapacityMAH / 1000.0));
}

std::optional<int> SimulatedPowerModel::minutesToFull() const
{
    if (!m_state.isCharging || m_state.batteryCurrentA <= 0)
        return std::nullopt;
    const double missingAh = (kFullChargeCapacityMAH - remainingCapacityMAH()) / 1000.0;
    // The current tapers near the top, so the remaining time is longer than at today's rate.
    return std::clamp(static_cast<int>(std::lround(missingAh / m_state.batteryCurrentA * 60.0 * 1.25)), 1, 65534);
}

} // namespace ferrow

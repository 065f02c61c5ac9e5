#include "history/energy_totals.h"

#include <cmath>

namespace ferrow {
namespace {

void accumulate(std::optional<double> &sum, std::optional<double> watts, double stepS)
{
    if (watts && std::isfinite(*watts))
        sum = sum.value_or(0) + *watts * stepS / 3600.0;
}

void accumulate(std::optional<double> &sum, const std::optional<double> &other)
{
    if (other)
        sum = sum.value_or(0) + *other;
}

} // namespace

bool isCoveredStep(double stepS)
{
    return stepS > 0 && stepS <= kLongestCoveredStepS;
}

void EnergyTotals::add(const PowerSnapshot &r, double stepS)
{
    if (!isCoveredStep(stepS))
        return;
    coveredS += stepS;
    if (r.isDataAvailable) {
        accumulate(adapterWh, r.dcPowerW, stepS);
        accumulate(systemWh, r.systemPowerW, stepS);
    }
    if (r.hasBattery && std::isfinite(r.batteryFlowW)) {
        const double flowW = r.shownBatteryFlowW();
        accumulate(batteryInWh, std::max(flowW, 0.0), stepS);
        accumulate(batteryOutWh, std::max(-flowW, 0.0), stepS);
    }
    const std::array<std::optional<double>, kChipDomains> chip = {r.chipPower.cpu, r.chipPower.gpu, r.chipPower.ane, r.chipPower.ram};
    for (std::size_t domain = 0; domain < kChipDomains; ++domain)
        accumulate(chipWh[domain], chip[domain], stepS);
}

void EnergyTotals::add(const EnergyTotals &other)
{
    coveredS += other.coveredS;
    accumulate(adapterWh, other.adapterWh);
    accumulate(systemWh, other.systemWh);
    accumulate(batteryInWh, other.batteryInWh);
    accumulate(batteryOutWh, other.batteryOutWh);
    for (std::size_t domain = 0; domain < kChipDomains; ++domain)
        accumulate(chipWh[domain], other.chipWh[domain]);
}

} // namespace ferrow

// StatsSMC decoding over arbitrary answers from the in-memory SMC: four bytes of type, one of
// reported size, and the value's bytes.
#include "platform/common/in_memory_smc.h"
#include "sources/battery_cell_reader.h"
#include "sources/battery_temperature_reader.h"
#include "sources/stats_smc.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 5)
        return 0;
    auto *table = new ferrow::InMemorySMC;
    const std::string type(reinterpret_cast<const char *>(data), 4);
    const std::vector<std::uint8_t> bytes(data + 5, data + size);
    for (const char *key : {"TEST", "SBA1", "SBA2", "SBAV", "TB1T"})
        table->setEntry(key, {type, data[4], bytes});
    ferrow::StatsSMC smc{std::unique_ptr<ferrow::SMCUserClient>(table)};
    smc.readDouble("TEST");
    ferrow::BatteryCellReader cells;
    ferrow::resolveCellVoltages(std::nullopt, true, true, cells, smc);
    ferrow::BatteryTemperatureReader temperatures;
    ferrow::resolveTemperature(std::nullopt, true, 27, temperatures, smc);
    return 0;
}

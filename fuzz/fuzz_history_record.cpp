// Stored history records: decoding, and the store loading them under a battery's keys and folding
// readings in. The input is the stored electrical record, then a NUL byte, then the temperature one.
#include "monitor/battery_history_store.h"
#include "platform/common/in_memory_key_value_store.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const qsizetype split = input.indexOf('\0');
    const QByteArray electrical = split < 0 ? input : input.left(split);
    const QByteArray temperature = split < 0 ? QByteArray() : input.mid(split + 1);
    ferrow::decodeElectricalHistory(electrical);
    ferrow::decodeTemperatureHistory(temperature);

    const std::optional<QString> serial = QStringLiteral("FUZZSERIAL01");
    const QString suffix = *ferrow::BatteryHistoryStore::batteryIdentifier(serial);
    ferrow::InMemoryKeyValueStore defaults;
    defaults.setData(ferrow::BatteryHistoryStore::kElectricalKeyPrefix + suffix, electrical);
    defaults.setData(ferrow::BatteryHistoryStore::kTemperatureKeyPrefix + suffix, temperature);
    ferrow::BatteryHistoryStore store(defaults);
    const auto record = store.recordElectrical(serial, 12.3, -1.5);
    const auto temperatures = store.recordTemperature(serial, 31.0);
    // Whatever was stored, what comes back is plausible.
    for (const std::optional<double> &value :
         {record.maximumVoltageV, record.minimumVoltageV, record.maximumChargeCurrentA, record.maximumDischargeCurrentA})
        if (value && (!std::isfinite(*value) || *value > 100))
            __builtin_trap();
    if (!temperatures.isPlausible())
        __builtin_trap();
    return 0;
}

// The recorded-machine loader, then one reading of what it loaded and its process frames in turn. The input is machine.json,
// optionally followed by a line "--battery.plist--" and the battery's property list.
#include "platform/recorded/recorded_machine.h"
#include "platform/recorded/recording_format.h"
#include "sources/power_sensor_reader.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    static const QByteArray separator("\n--battery.plist--\n");
    const qsizetype split = input.indexOf(separator);
    const QByteArray machine = split < 0 ? input : input.left(split);
    const std::optional<QByteArray> battery = split < 0 ? std::nullopt : std::optional(input.mid(split + separator.size()));

    QString error;
    std::optional<ferrow::Recording> recording =
        ferrow::parseRecording(machine, QStringLiteral("machine.json"), battery, QStringLiteral("battery.plist"), &error);
    if (!recording) {
        if (!error.startsWith(u"machine.json: ") && !error.startsWith(u"battery.plist: "))
            __builtin_trap(); // the message names the file
        return 0;
    }
    auto recorded = std::make_unique<ferrow::RecordedMachine>(std::move(*recording));
    if (std::unique_ptr<ferrow::ProcessSource> processes = recorded->createProcessSource()) {
        for (int i = 0; i < 3; ++i)
            processes->sample();
    }
    ferrow::PowerSensorReader reader{std::move(recorded)};
    for (int i = 0; i < 3; ++i)
        reader.read();
    return 0;
}

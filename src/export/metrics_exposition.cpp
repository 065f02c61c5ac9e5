#include "export/metrics_exposition.h"

#include "model/snapshot_fields.h"

#include <QLocale>

#include <cmath>
#include <vector>

namespace ferrow {
namespace {

struct Sample {
    QByteArray labels; // name="value" pairs, already escaped
    std::optional<double> value;
};

QByteArray label(const char *name, QStringView value)
{
    QByteArray escaped;
    for (const char c : value.toUtf8()) {
        if (c == '\\')
            escaped += "\\\\";
        else if (c == '"')
            escaped += "\\\"";
        else if (c == '\n')
            escaped += "\\n";
        else
            escaped += c;
    }
    return QByteArray(name) + "=\"" + escaped + '"';
}

std::optional<double> measure(const FieldValue &value)
{
    if (const auto *flag = std::get_if<bool>(&value))
        return *flag ? 1.0 : 0.0;
    if (const auto *count = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*count);
    if (const auto *figure = std::get_if<double>(&value))
        return *figure;
    if (const auto *time = std::get_if<WallTime>(&value))
        return static_cast<double>(std::chrono::duration_cast<std::chrono::milliseconds>(time->time_since_epoch()).count()) / 1000.0;
    return std::nullopt;
}

std::optional<double> scaled(std::optional<double> value, MetricScale scale)
{
    if (!value)
        return std::nullopt;
    switch (scale) {
    case MetricScale::none:
        break;
    case MetricScale::minutesToSeconds:
        return *value * 60.0;
    case MetricScale::milliampereHoursToCoulombs:
        // 1 mAh is 3.6 C. Multiplied by 36 exactly, then divided once: 3.6 has no exact double,
        // so multiplying by it can print a long tail of digits.
        return *value * 36.0 / 10.0;
    }
    return value;
}

bool isPresent(MetricPresence presence, const PowerSnapshot &s)
{
    // Without both power figures the reading cannot tell a missing value from a real 0, nor
    // derive the battery's flow from them.
    switch (presence) {
    case MetricPresence::always:
        return true;
    case MetricPresence::withBattery:
        return s.hasBattery;
    case MetricPresence::withPower:
        return s.isDataAvailable;
    case MetricPresence::withBatteryAndPower:
        return s.hasBattery && s.isDataAvailable;
    }
    return false;
}

void addSamples(std::vector<Sample> &samples, const SnapshotField &field, const PowerSnapshot &s)
{
    const FieldValue value = field.value(s);
    switch (field.shape) {
    case MetricShape::measure: {
        const QByteArray labels = field.label ? label(field.label, QString::fromLatin1(field.labelValue)) : QByteArray();
        samples.push_back({labels, isPresent(field.presence, s) ? scaled(measure(value), field.scale) : std::nullopt});
        break;
    }
    case MetricShape::numbered:
        if (const auto *measures = std::get_if<std::vector<double>>(&value)) {
            for (std::size_t index = 0; index < measures->size(); ++index)
                samples.push_back({label(field.label, QString::number(index + 1)), (*measures)[index]});
        }
        break;
    case MetricShape::oneOf:
        if (const auto *text = std::get_if<QString>(&value)) {
            for (const char *choice : field.choices)
                samples.push_back({label(field.label, QString::fromLatin1(choice)), *text == QLatin1StringView(choice) ? 1.0 : 0.0});
        }
        break;
    case MetricShape::infoLabel:
        if (const auto *text = std::get_if<QString>(&value)) {
            if (samples.empty())
                samples.push_back({{}, 1.0});
            samples.front().labels += (samples.front().labels.isEmpty() ? "" : ",") + label(field.label, *text);
        }
        break;
    }
}

class Exposition {
public:
    void gauge(const char *name, const char *help, const std::vector<Sample> &samples) { family(name, help, "gauge", samples); }
    void counter(const char *name, const char *help, const std::vector<Sample> &samples) { family(name, help, "counter", samples); }

    QByteArray text;

private:
    // A family without one finite sample is left out whole, its HELP and TYPE lines too.
    void family(const char *name, const char *help, const char *type, const std::vector<Sample> &samples)
    {
        bool introduced = false;
        for (const Sample &sample : samples) {
            if (!sample.value || !std::isfinite(*sample.value))
                continue;
            if (!introduced) {
                text += QByteArray("# HELP ") + name + ' ' + help + "\n# TYPE " + name + ' ' + type + '\n';
                introduced = true;
            }
            text += name;
            if (!sample.labels.isEmpty())
                text += '{' + sample.labels + '}';
            text += ' ' + QByteArray::number(*sample.value, 'g', QLocale::FloatingPointShortest) + '\n';
        }
    }
};

std::optional<double> joules(const std::optional<double> &wattHours)
{
    return wattHours ? std::optional(*wattHours * 3600.0) : std::nullopt;
}

void writeEnergy(Exposition &out, const EnergyTotals &energy)
{
    out.counter("ferrow_input_energy_joules_total", "Energy drawn from the external power input since the exporter started.",
                {{{}, joules(energy.adapterWh)}});
    out.counter("ferrow_system_energy_joules_total", "Energy consumed by the system since the exporter started.",
                {{{}, joules(energy.systemWh)}});
    out.counter("ferrow_battery_charge_energy_joules_total", "Energy that went into the battery since the exporter started.",
                {{{}, joules(energy.batteryInWh)}});
    out.counter("ferrow_battery_discharge_energy_joules_total", "Energy that came out of the battery since the exporter started.",
                {{{}, joules(energy.batteryOutWh)}});
    // The chip power metric's own labels, in the order EnergyTotals keeps the domains.
    std::vector<Sample> chip;
    std::size_t domain = 0;
    for (const SnapshotField &field : snapshotFields()) {
        if (domain < kChipDomains && field.metric && QByteArrayView(field.metric) == "ferrow_chip_power_watts") {
            chip.push_back({label(field.label, QString::fromLatin1(field.labelValue)), joules(energy.chipWh[domain])});
            ++domain;
        }
    }
    out.counter("ferrow_chip_energy_joules_total", "Energy of one block of the processor package since the exporter started.", chip);
}

} // namespace

QByteArray metricsExposition(const PowerSnapshot *reading, QStringView version, const EnergyTotals *energySinceStart)
{
    Exposition out;
    out.text.reserve(8192); // a full reading takes about 7 KB
    if (reading) {
        // Consecutive fields of one metric make one family.
        const SnapshotField *family = nullptr;
        std::vector<Sample> samples;
        const auto writeFamily = [&] {
            if (family)
                out.gauge(family->metric, family->help, samples);
            family = nullptr;
            samples.clear();
        };
        for (const SnapshotField &field : snapshotFields()) {
            if (family && (!field.metric || QByteArrayView(family->metric) != QByteArrayView(field.metric)))
                writeFamily();
            if (!field.metric)
                continue;
            if (!family)
                family = &field;
            addSamples(samples, field, *reading);
        }
        writeFamily();
    }
    if (energySinceStart)
        writeEnergy(out, *energySinceStart);
    out.gauge("ferrow_build_info", "The exporter's version.", {{label("version", version), 1.0}});
    return out.text;
}

} // namespace ferrow

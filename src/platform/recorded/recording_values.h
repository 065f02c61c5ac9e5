#pragma once

#include "apps/process_sample.h"
#include "platform/common/in_memory_smc.h"
#include "sources/platform_interfaces.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// The values of a recording's machine.json, each written to JSON and read back by a pair of functions
// kept side by side. A decoder that can be refused says where (from the place it is handed) and why.
namespace ferrow::RecordingValues {

// Where a value breaks the format (a member's path such as "smc.VD0R.bytes") and how.
struct Problem {
    QString place;
    QString text;
};

// SMC keys and types: four printable ASCII characters.
bool isFourCharacterCode(const QString &text);
bool isWholeNumber(const QJsonValue &json, double lowest, double highest);

// Untyped values (the power-source descriptions). Read back, whole numbers become integers as the
// platform would keep them; what JSON cannot hold comes back as something near it: data as its base64
// text, an unsigned number beyond the signed range as a real, a value without a typed form (null) as such.
QJsonValue encodeProperty(const PropertyValue &value);
PropertyValue decodeProperty(const QJsonValue &json);

// SMC bytes exactly as the SMC returned them, two hexadecimal digits each.
QString encodeHex(const std::vector<std::uint8_t> &bytes);
std::optional<std::vector<std::uint8_t>> decodeHex(const QJsonValue &json);

// An SMC key's type and bytes, and the size the SMC reported where that is not the number of bytes.
QJsonObject encodeSMCEntry(const InMemorySMC::Entry &entry);
std::optional<InMemorySMC::Entry> decodeSMCEntry(const QJsonValue &json, const QString &place, Problem &problem);

// An energy channel as [group, name, unit, counter]; a text the report left out is null.
QJsonArray encodeEnergyChannel(const EnergyChannelSample &channel);
std::optional<EnergyChannelSample> decodeEnergyChannel(const QJsonValue &json);

// A process as {"pid", "started", "group", "name", "icon", "cpuTime", "energy", "self"}; an empty icon,
// an absent energy and self = false are left out.
QJsonObject encodeProcess(const ProcessSample &process);
std::optional<ProcessSample> decodeProcess(const QJsonValue &json, const QString &place, Problem &problem);

} // namespace ferrow::RecordingValues

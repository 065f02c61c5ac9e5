#pragma once

#include "history/history_database.h"

#include <QByteArray>
#include <QStringView>
#include <QTimeZone>

#include <optional>
#include <vector>

namespace ferrow {

enum class TableFormat { csv, json };

// Stored energy and sessions as text for other programs: CSV with a header row, or a JSON array of
// objects under the same names. Times are ISO 8601 in UTC, energies in Wh, powers in W; an absent
// value is an empty cell or null. The columns are listed in docs/history-database.md.
QByteArray periodsTable(const std::vector<PeriodEnergy> &periods, TableFormat format);
QByteArray sessionsTable(const std::vector<SessionRecord> &sessions, TableFormat format);
// One line per application, most energy first, each saying how its energy was found.
QByteArray applicationsTable(const AppEnergyList &list, TableFormat format);

// "2026-11-23T23:00:00Z"
QString isoUtc(UnixSeconds seconds);

// An ISO 8601 date ("2026-11-01", that day's first second) or date-time ("2026-11-01T08:30",
// with seconds, Z or an offset such as +01:00) as UTC seconds. Without an offset the time is read
// in zone, or in the local time when none is given. Absent for anything else, impossible dates
// included.
std::optional<UnixSeconds> parseIsoTime(QStringView text, const std::optional<QTimeZone> &zone = std::nullopt);

} // namespace ferrow

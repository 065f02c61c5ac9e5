#pragma once

#include "history/history_records.h"

#include <QString>

class QSqlQuery;

namespace ferrow {

// The applications' tables of the history database: app_minutes, then app_hours after the
// minutes' retention, both pointing into applications for the names.
QString applicationPeriodTable(const char *name);
// Sums the applications' minutes before cutoff into hours, in the caller's transaction.
bool rollUpApplications(QSqlQuery &query, UnixSeconds cutoff);

} // namespace ferrow

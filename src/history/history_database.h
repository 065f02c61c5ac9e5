#pragma once

#include "history/history_records.h"

#include <QSqlDatabase>
#include <QString>

#include <optional>
#include <vector>

class QSqlQuery;

namespace ferrow {

// How finely stored energy is listed: by the minute, the hour, the local day or the local month.
enum class HistoryPeriod { minute, hour, day, month };

// Energy of one period; start is the period's first second (local midnight for a day) in UTC.
struct PeriodEnergy {
    UnixSeconds start = 0;
    EnergyTotals energy;
    std::optional<double> minPowerW;
    std::optional<double> meanPowerW;
    std::optional<double> maxPowerW;
    std::optional<std::int64_t> batteryPercent; // at the period's end
};

// The history in one SQLite file: minutes for 30 days, hours after that, the sessions, each
// battery's daily condition and the applications' energy by the minute (then by the hour). One object per thread; it never deletes or rewrites a file it cannot
// read, and after any failure it says why in error() (naming a full or read-only disk) and takes
// no more writes. Read-only, it reads a file on such a disk too.
class HistoryDatabase {
public:
    static constexpr int kSchemaVersion = 2;
    static constexpr UnixSeconds kMinuteRetentionS = 30 * 86'400;

    enum class Mode { readWrite, readOnly };

    HistoryDatabase(const QString &path, Mode mode);
    ~HistoryDatabase();
    HistoryDatabase(const HistoryDatabase &) = delete;
    HistoryDatabase &operator=(const HistoryDatabase &) = delete;

    bool isOpen() const { return m_error.isEmpty(); }
    const QString &error() const { return m_error; }

    // One minute, the session it belongs to and the batteries' days, in one transaction. Minutes
    // older than the retention become hours in the same transaction, once an hour.
    bool write(const std::vector<MinuteRecord> &minutes, const std::vector<SessionRecord> &sessions,
               const std::vector<BatteryDayRecord> &batteryDays, UnixSeconds now);

    // The applications' minutes, in a transaction of their own.
    bool writeApplications(const std::vector<AppMinuteRecord> &minutes);

    // A failed read gives an empty list, which alone would look like a stretch with nothing
    // stored: error, when given, says why (and is left empty on success).
    std::vector<PeriodEnergy> energy(UnixSeconds from, UnixSeconds to, HistoryPeriod per, QString *error = nullptr) const;
    // Sessions that ended at or after from and started before to, newest first.
    std::vector<SessionRecord> sessions(UnixSeconds from, UnixSeconds to, int limit = -1, QString *error = nullptr) const;
    std::vector<BatteryDayRecord> batteryDays() const;
    // The applications' energy over [from, to), most first; each line covers the period's time.
    AppEnergyList applications(UnixSeconds from, UnixSeconds to, QString *error = nullptr) const;
    // The first stored second, absent while nothing is stored.
    std::optional<UnixSeconds> firstRecord() const;

private:
    bool fail(const QString &what, const QString &why);
    bool readable(QString *error) const;
    void readFailed(const QSqlQuery &query, QString *error) const;
    bool prepareSchema();
    bool rollUp(UnixSeconds now);

    QString m_path;
    QString m_connection;
    QString m_error;
    UnixSeconds m_lastRollUpHour = 0;
};

} // namespace ferrow

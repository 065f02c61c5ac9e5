#include "history/history_database.h"

#include "history/application_tables.h"
#include "model/private_file.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUuid>
#include <QVariant>

#include <limits>
#include <map>
#include <tuple>

namespace ferrow {
namespace {

constexpr int kBusyTimeoutMs = 2000;

std::optional<int> schemaVersion(const QSqlDatabase &db, QString *why)
{
    QSqlQuery query(db);
    if (query.exec(QStringLiteral("PRAGMA user_version")) && query.next())
        return query.value(0).toInt();
    *why = query.lastError().text();
    return std::nullopt;
}

// The columns minutes and hours share, in the order the records bind them.
const char *const kEnergyColumns[] = {"adapter_wh", "system_wh", "battery_in_wh", "battery_out_wh",
                                      "cpu_wh",     "gpu_wh",    "ane_wh",        "ram_wh"};

QString periodTable(const char *name)
{
    return QStringLiteral("CREATE TABLE IF NOT EXISTS %1 ("
                          "start INTEGER PRIMARY KEY, covered_s REAL NOT NULL, "
                          "adapter_wh REAL, system_wh REAL, battery_in_wh REAL, battery_out_wh REAL, "
                          "cpu_wh REAL, gpu_wh REAL, ane_wh REAL, ram_wh REAL, "
                          "min_power_w REAL, mean_power_w REAL, max_power_w REAL, "
                          "battery_percent INTEGER, battery_temperature_c REAL, "
                          "external_power INTEGER NOT NULL, charging INTEGER NOT NULL, battery_id TEXT)")
        .arg(QLatin1String(name));
}

// Adds a row to one already there for the same start (a flushed minute continued, a clock set
// back across a restart): energies and time add up, the extremes widen, the end state is the new one.
QString periodUpsert(const char *table, const QString &rows)
{
    QString sums;
    for (const char *column : kEnergyColumns)
        sums += QStringLiteral("%1 = coalesce(%1 + excluded.%1, %1, excluded.%1), ").arg(QLatin1String(column));
    return QStringLiteral("INSERT INTO %1 %3 "
                          "ON CONFLICT(start) DO UPDATE SET %2"
                          "mean_power_w = coalesce((mean_power_w * covered_s + excluded.mean_power_w * excluded.covered_s)"
                          " / (covered_s + excluded.covered_s), mean_power_w, excluded.mean_power_w), "
                          "covered_s = covered_s + excluded.covered_s, "
                          "min_power_w = coalesce(min(min_power_w, excluded.min_power_w), min_power_w, excluded.min_power_w), "
                          "max_power_w = coalesce(max(max_power_w, excluded.max_power_w), max_power_w, excluded.max_power_w), "
                          "battery_percent = excluded.battery_percent, battery_temperature_c = excluded.battery_temperature_c, "
                          "external_power = excluded.external_power, charging = excluded.charging, battery_id = excluded.battery_id")
        .arg(QLatin1String(table), sums, rows);
}

const QString kOneRow = QStringLiteral("VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");

QVariant orNull(const std::optional<double> &value)
{
    return value ? QVariant(*value) : QVariant();
}

QVariant orNull(const std::optional<std::int64_t> &value)
{
    return value ? QVariant(static_cast<qlonglong>(*value)) : QVariant();
}

QVariant orNull(const std::optional<QString> &value)
{
    return value ? QVariant(*value) : QVariant();
}

template <typename T>
std::optional<T> optionalValue(const QVariant &value)
{
    if (value.isNull())
        return std::nullopt;
    return value.value<T>();
}

std::optional<std::int64_t> optionalInteger(const QVariant &value)
{
    return value.isNull() ? std::nullopt : std::optional<std::int64_t>(value.toLongLong());
}

void bindEnergy(QSqlQuery &query, const EnergyTotals &energy)
{
    query.addBindValue(energy.coveredS);
    for (const std::optional<double> &value : {energy.adapterWh, energy.systemWh, energy.batteryInWh, energy.batteryOutWh})
        query.addBindValue(orNull(value));
    for (const std::optional<double> &value : energy.chipWh)
        query.addBindValue(orNull(value));
}

// Reads covered_s and the eight energies starting at column first.
EnergyTotals readEnergy(const QSqlQuery &query, int first)
{
    EnergyTotals energy;
    energy.coveredS = query.value(first).toDouble();
    energy.adapterWh = optionalValue<double>(query.value(first + 1));
    energy.systemWh = optionalValue<double>(query.value(first + 2));
    energy.batteryInWh = optionalValue<double>(query.value(first + 3));
    energy.batteryOutWh = optionalValue<double>(query.value(first + 4));
    for (std::size_t domain = 0; domain < kChipDomains; ++domain)
        energy.chipWh[domain] = optionalValue<double>(query.value(first + 5 + static_cast<int>(domain)));
    return energy;
}

// The start of the period a second falls in: minutes and hours by arithmetic, days and months by
// the local calendar (each local day's midnight found once and remembered).
class LocalCalendar {
public:
    explicit LocalCalendar(HistoryPeriod per) : m_per(per) {}

    UnixSeconds periodStart(UnixSeconds t)
    {
        if (m_per == HistoryPeriod::minute)
            return floorTo(t, 60);
        if (m_per == HistoryPeriod::hour)
            return floorTo(t, 3600);
        if (t < m_first || t >= m_next)
            std::tie(m_first, m_next) = localPeriodAround(t);
        return m_first;
    }

private:
    static UnixSeconds floorTo(UnixSeconds t, UnixSeconds step) { return t >= 0 ? t / step * step : (t - step + 1) / step * step; }

    std::pair<UnixSeconds, UnixSeconds> localPeriodAround(UnixSeconds t) const
    {
        QDate first = QDateTime::fromSecsSinceEpoch(t).date();
        if (m_per == HistoryPeriod::month)
            first = QDate(first.year(), first.month(), 1);
        const QDate next = m_per == HistoryPeriod::month ? first.addMonths(1) : first.addDays(1);
        return {first.startOfDay().toSecsSinceEpoch(), next.startOfDay().toSecsSinceEpoch()};
    }

    HistoryPeriod m_per;
    UnixSeconds m_first = std::numeric_limits<UnixSeconds>::max(); // an empty period until the first lookup
    UnixSeconds m_next = std::numeric_limits<UnixSeconds>::min();
};

} // namespace

HistoryDatabase::HistoryDatabase(const QString &path, Mode mode)
    : m_path(path)
    , m_connection(QStringLiteral("ferrow-history-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    const QFileInfo file(path);
    if (mode == Mode::readOnly && !file.exists()) {
        fail(QStringLiteral("no history yet"), QStringLiteral("%1 does not exist").arg(path));
        return;
    }
    if (file.exists() && !file.isReadable()) {
        fail(QStringLiteral("cannot read %1").arg(path), QStringLiteral("permission denied; the file is left as it is"));
        return;
    }
    // Only this user may read what the machine did and when.
    if (QString why; mode == Mode::readWrite && !keepPrivate(path, &why)) {
        fail(QStringLiteral("cannot create %1").arg(path), why);
        return;
    }
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    if (!db.isValid()) {
        fail(QStringLiteral("no SQLite driver"), QStringLiteral("Qt's QSQLITE plugin is not installed"));
        return;
    }
    const QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1%2")
                                .arg(kBusyTimeoutMs)
                                .arg(mode == Mode::readOnly ? QStringLiteral(";QSQLITE_OPEN_READONLY") : QString());
    db.setDatabaseName(path);
    db.setConnectOptions(options);
    if (!db.open()) {
        fail(QStringLiteral("cannot open %1").arg(path), db.lastError().text());
        return;
    }
    if (mode == Mode::readWrite) {
        prepareSchema();
        return;
    }
    QString why;
    std::optional<int> version = schemaVersion(db, &why);
    // SQLite reads a log through an index file beside it, which a full or read-only disk has no
    // room for. With no log there is nothing to index: the file alone holds the whole history.
    if (!version && QFileInfo(path + QStringLiteral("-wal")).size() == 0) {
        db.close();
        QUrl unchanging = QUrl::fromLocalFile(file.absoluteFilePath());
        unchanging.setQuery(QStringLiteral("immutable=1"));
        db.setDatabaseName(unchanging.toString(QUrl::FullyEncoded));
        db.setConnectOptions(options + QStringLiteral(";QSQLITE_OPEN_URI"));
        if (db.open())
            version = schemaVersion(db, &why);
    }
    if (!version) {
        fail(QStringLiteral("cannot read %1").arg(path), why);
        return;
    }
    if (*version > kSchemaVersion)
        fail(QStringLiteral("%1 was written by a newer Ferrow").arg(path), QStringLiteral("schema %1; this one reads up to %2").arg(*version).arg(kSchemaVersion));
}

HistoryDatabase::~HistoryDatabase()
{
    if (QSqlDatabase::contains(m_connection)) {
        QSqlDatabase::database(m_connection, false).close();
        QSqlDatabase::removeDatabase(m_connection);
    }
}

bool HistoryDatabase::fail(const QString &what, const QString &why)
{
    if (!m_error.isEmpty())
        return false;
    m_error = why.isEmpty() ? what : what + QStringLiteral(": ") + why;
    // SQLite's words for a full disk ("disk I/O error" among them) do not always say so.
    if (const QString trouble = diskTrouble(m_path); !trouble.isEmpty())
        m_error += QStringLiteral(" (%1)").arg(trouble);
    return false;
}

bool HistoryDatabase::readable(QString *error) const
{
    if (error)
        *error = m_error;
    return isOpen();
}

void HistoryDatabase::readFailed(const QSqlQuery &query, QString *error) const
{
    if (error)
        *error = QStringLiteral("cannot read %1: %2").arg(m_path, query.lastError().text());
}

bool HistoryDatabase::prepareSchema()
{
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    QSqlQuery query(db);
    // A file that is not SQLite (or damaged) fails here, before anything is written to it.
    if (!query.exec(QStringLiteral("PRAGMA user_version")) || !query.next())
        return fail(QStringLiteral("cannot read %1").arg(m_path), query.lastError().text() + QStringLiteral("; the file is left as it is"));
    const int version = query.value(0).toInt();
    if (version > kSchemaVersion)
        return fail(QStringLiteral("%1 was written by a newer Ferrow").arg(m_path),
                    QStringLiteral("schema %1; this one writes up to %2; the file is left as it is").arg(version).arg(kSchemaVersion));
    if (!query.exec(QStringLiteral("PRAGMA journal_mode=WAL")) || !query.exec(QStringLiteral("PRAGMA synchronous=NORMAL")))
        return fail(QStringLiteral("cannot use %1").arg(m_path), query.lastError().text());
    if (version == kSchemaVersion)
        return true;
    // Migrations run in order from the file's version; version 0 is a new file.
    if (!db.transaction())
        return fail(QStringLiteral("cannot write %1").arg(m_path), db.lastError().text());
    const QString statements[] = {
        periodTable("minutes"),
        periodTable("hours"),
        QStringLiteral("CREATE TABLE IF NOT EXISTS sessions (start INTEGER PRIMARY KEY, end INTEGER NOT NULL, "
                       "external_power INTEGER NOT NULL, start_percent INTEGER, end_percent INTEGER, energy_wh REAL NOT NULL, "
                       "covered_s REAL NOT NULL, peak_power_w REAL, battery_id TEXT)"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS sessions_by_end ON sessions (end)"),
        QStringLiteral("CREATE TABLE IF NOT EXISTS battery_days (battery_id TEXT NOT NULL, day TEXT NOT NULL, "
                       "health_percent INTEGER, full_charge_capacity_mah INTEGER, design_capacity_mah INTEGER, cycle_count INTEGER, "
                       "PRIMARY KEY (battery_id, day))"),
        QStringLiteral("CREATE TABLE IF NOT EXISTS applications (id INTEGER PRIMARY KEY, app TEXT NOT NULL UNIQUE, "
                       "name TEXT, icon TEXT, kind INTEGER NOT NULL)"),
        applicationPeriodTable("app_minutes"),
        applicationPeriodTable("app_hours"),
        QStringLiteral("PRAGMA user_version = %1").arg(kSchemaVersion),
    };
    for (const QString &statement : statements) {
        if (!query.exec(statement)) {
            const QString why = query.lastError().text();
            db.rollback();
            return fail(QStringLiteral("cannot write %1").arg(m_path), why);
        }
    }
    if (!db.commit())
        return fail(QStringLiteral("cannot write %1").arg(m_path), db.lastError().text());
    return true;
}

bool HistoryDatabase::write(const std::vector<MinuteRecord> &minutes, const std::vector<SessionRecord> &sessions,
                            const std::vector<BatteryDayRecord> &batteryDays, UnixSeconds now)
{
    if (!isOpen())
        return false;
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    if (!db.transaction())
        return fail(QStringLiteral("cannot write %1").arg(m_path), db.lastError().text());
    QSqlQuery query(db);
    const auto abandon = [&](const QSqlQuery &failed) {
        const QString why = failed.lastError().text();
        db.rollback();
        return fail(QStringLiteral("cannot write %1").arg(m_path), why);
    };
    if (!minutes.empty()) {
        query.prepare(periodUpsert("minutes", kOneRow));
        for (const MinuteRecord &minute : minutes) {
            query.addBindValue(static_cast<qlonglong>(minute.start));
            bindEnergy(query, minute.energy);
            query.addBindValue(orNull(minute.minPowerW));
            query.addBindValue(orNull(minute.meanPowerW));
            query.addBindValue(orNull(minute.maxPowerW));
            query.addBindValue(orNull(minute.batteryPercent));
            query.addBindValue(orNull(minute.batteryTemperatureC));
            query.addBindValue(minute.externalPower ? 1 : 0);
            query.addBindValue(minute.charging ? 1 : 0);
            query.addBindValue(orNull(minute.batteryId));
            if (!query.exec())
                return abandon(query);
        }
    }
    if (!sessions.empty()) {
        query.prepare(QStringLiteral("INSERT OR REPLACE INTO sessions VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"));
        for (const SessionRecord &session : sessions) {
            query.addBindValue(static_cast<qlonglong>(session.start));
            query.addBindValue(static_cast<qlonglong>(session.end));
            query.addBindValue(session.externalPower ? 1 : 0);
            query.addBindValue(orNull(session.startPercent));
            query.addBindValue(orNull(session.endPercent));
            query.addBindValue(session.energyWh);
            query.addBindValue(session.coveredS);
            query.addBindValue(orNull(session.peakPowerW));
            query.addBindValue(orNull(session.batteryId));
            if (!query.exec())
                return abandon(query);
        }
    }
    if (!batteryDays.empty()) {
        query.prepare(QStringLiteral("INSERT OR REPLACE INTO battery_days VALUES (?, ?, ?, ?, ?, ?)"));
        for (const BatteryDayRecord &day : batteryDays) {
            query.addBindValue(day.batteryId);
            query.addBindValue(day.day);
            query.addBindValue(orNull(day.healthPercent));
            query.addBindValue(orNull(day.fullChargeCapacityMAH));
            query.addBindValue(orNull(day.designCapacityMAH));
            query.addBindValue(orNull(day.cycleCount));
            if (!query.exec())
                return abandon(query);
        }
    }
    if (now / 3600 != m_lastRollUpHour && !rollUp(now)) {
        db.rollback();
        return false;
    }
    if (!db.commit())
        return fail(QStringLiteral("cannot write %1").arg(m_path), db.lastError().text());
    m_lastRollUpHour = now / 3600;
    return true;
}

bool HistoryDatabase::rollUp(UnixSeconds now)
{
    const UnixSeconds cutoff = (now - kMinuteRetentionS) / 3600 * 3600;
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    QString sums, columns;
    for (const char *column : kEnergyColumns) {
        sums += QStringLiteral(", sum(%1) AS %1").arg(QLatin1String(column));
        columns += QStringLiteral(", groups.%1").arg(QLatin1String(column));
    }
    // Each hour takes its minutes' sums and extremes and its last minute's state. ("WHERE true"
    // tells SQLite's parser that the ON CONFLICT that follows belongs to the insert.)
    const QString hours = QStringLiteral(
        "WITH groups AS (SELECT (start / 3600) * 3600 AS hour, max(start) AS last, sum(covered_s) AS covered%1, "
        "min(min_power_w) AS low, sum(mean_power_w * covered_s) / sum(CASE WHEN mean_power_w IS NULL THEN NULL ELSE covered_s END) AS mean, "
        "max(max_power_w) AS high FROM minutes WHERE start < :cutoff GROUP BY hour) "
        "SELECT groups.hour, groups.covered%2, groups.low, groups.mean, groups.high, m.battery_percent, m.battery_temperature_c, "
        "m.external_power, m.charging, m.battery_id FROM groups JOIN minutes m ON m.start = groups.last WHERE true")
                              .arg(sums, columns);
    if (!query.prepare(periodUpsert("hours", hours)))
        return fail(QStringLiteral("cannot roll up %1").arg(m_path), query.lastError().text());
    query.bindValue(QStringLiteral(":cutoff"), static_cast<qlonglong>(cutoff));
    if (!query.exec())
        return fail(QStringLiteral("cannot roll up %1").arg(m_path), query.lastError().text());
    query.prepare(QStringLiteral("DELETE FROM minutes WHERE start < ?"));
    query.addBindValue(static_cast<qlonglong>(cutoff));
    if (!query.exec())
        return fail(QStringLiteral("cannot roll up %1").arg(m_path), query.lastError().text());
    if (!rollUpApplications(query, cutoff))
        return fail(QStringLiteral("cannot roll up %1").arg(m_path), query.lastError().text());
    return true;
}

std::vector<PeriodEnergy> HistoryDatabase::energy(UnixSeconds from, UnixSeconds to, HistoryPeriod per, QString *error) const
{
    std::vector<PeriodEnergy> periods;
    if (!readable(error))
        return periods;
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    QSqlQuery query(db);
    query.setForwardOnly(true);
    // Hours only hold what the minutes no longer do, so the two never count a second twice.
    const QString columns = QStringLiteral("start, covered_s, adapter_wh, system_wh, battery_in_wh, battery_out_wh, cpu_wh, gpu_wh, ane_wh, "
                                           "ram_wh, min_power_w, mean_power_w, max_power_w, battery_percent");
    if (!query.prepare(QStringLiteral("SELECT %1 FROM minutes WHERE start >= ? AND start < ? UNION ALL SELECT %1 FROM hours WHERE start >= ? AND start < ?")
                           .arg(columns))) {
        readFailed(query, error);
        return periods;
    }
    for (int table = 0; table < 2; ++table) {
        query.addBindValue(static_cast<qlonglong>(from));
        query.addBindValue(static_cast<qlonglong>(to));
    }
    if (!query.exec()) {
        readFailed(query, error);
        return periods;
    }

    // Summed here rather than in SQL: the local calendar is worked out once per day, not per row.
    struct Sum {
        PeriodEnergy period;
        double powerWs = 0;
        double powerS = 0;
        UnixSeconds last = std::numeric_limits<UnixSeconds>::min();
    };
    std::map<UnixSeconds, Sum> sums;
    LocalCalendar calendar(per);
    while (query.next()) {
        const UnixSeconds start = query.value(0).toLongLong();
        Sum &sum = sums[calendar.periodStart(start)];
        const EnergyTotals energy = readEnergy(query, 1);
        sum.period.energy.add(energy);
        if (const std::optional<double> low = optionalValue<double>(query.value(10)))
            sum.period.minPowerW = std::min(sum.period.minPowerW.value_or(*low), *low);
        if (const std::optional<double> mean = optionalValue<double>(query.value(11))) {
            sum.powerWs += *mean * energy.coveredS;
            sum.powerS += energy.coveredS;
        }
        if (const std::optional<double> high = optionalValue<double>(query.value(12)))
            sum.period.maxPowerW = std::max(sum.period.maxPowerW.value_or(*high), *high);
        if (start > sum.last) {
            sum.last = start;
            sum.period.batteryPercent = optionalInteger(query.value(13));
        }
    }
    periods.reserve(sums.size());
    for (auto &[periodStart, sum] : sums) {
        sum.period.start = periodStart;
        if (sum.powerS > 0)
            sum.period.meanPowerW = sum.powerWs / sum.powerS;
        periods.push_back(std::move(sum.period));
    }
    if (query.lastError().isValid()) // a page that could not be read on the way
        readFailed(query, error);
    return periods;
}

std::vector<SessionRecord> HistoryDatabase::sessions(UnixSeconds from, UnixSeconds to, int limit, QString *error) const
{
    std::vector<SessionRecord> sessions;
    if (!readable(error))
        return sessions;
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT start, end, external_power, start_percent, end_percent, energy_wh, covered_s, peak_power_w, battery_id "
                                 "FROM sessions WHERE end >= ? AND start < ? ORDER BY start DESC LIMIT ?"));
    query.addBindValue(static_cast<qlonglong>(from));
    query.addBindValue(static_cast<qlonglong>(to));
    query.addBindValue(limit);
    if (!query.exec()) {
        readFailed(query, error);
        return sessions;
    }
    while (query.next()) {
        SessionRecord session;
        session.start = query.value(0).toLongLong();
        session.end = query.value(1).toLongLong();
        session.externalPower = query.value(2).toInt() != 0;
        session.startPercent = optionalInteger(query.value(3));
        session.endPercent = optionalInteger(query.value(4));
        session.energyWh = query.value(5).toDouble();
        session.coveredS = query.value(6).toDouble();
        session.peakPowerW = optionalValue<double>(query.value(7));
        session.batteryId = optionalValue<QString>(query.value(8));
        sessions.push_back(session);
    }
    if (query.lastError().isValid())
        readFailed(query, error);
    return sessions;
}

std::vector<BatteryDayRecord> HistoryDatabase::batteryDays() const
{
    std::vector<BatteryDayRecord> days;
    if (!isOpen())
        return days;
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT battery_id, day, health_percent, full_charge_capacity_mah, design_capacity_mah, cycle_count "
                                   "FROM battery_days ORDER BY battery_id, day")))
        return days;
    while (query.next())
        days.push_back({query.value(0).toString(), query.value(1).toString(), optionalInteger(query.value(2)),
                        optionalInteger(query.value(3)), optionalInteger(query.value(4)), optionalInteger(query.value(5))});
    return days;
}

std::optional<UnixSeconds> HistoryDatabase::firstRecord() const
{
    if (!isOpen())
        return std::nullopt;
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    if (!query.exec(QStringLiteral("SELECT min(first) FROM (SELECT min(start) AS first FROM minutes UNION ALL SELECT min(start) FROM hours)"))
        || !query.next() || query.value(0).isNull())
        return std::nullopt;
    return query.value(0).toLongLong();
}

} // namespace ferrow

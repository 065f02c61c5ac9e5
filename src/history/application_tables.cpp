#include "history/application_tables.h"

#include "history/history_database.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace ferrow {

namespace {

// Whole millijoules and milliseconds keep a row small: the minutes of a month are most of the file.
qlonglong milli(double value)
{
    return static_cast<qlonglong>(std::llround(value * 1000.0));
}

// The key under which the lines that are no application are kept: none can be a path or an id.
QString storedKey(const AppEnergy &app)
{
    switch (app.kind) {
    case AppEnergy::Kind::others:
        return QStringLiteral(":others");
    case AppEnergy::Kind::rest:
        return QStringLiteral(":rest");
    case AppEnergy::Kind::application:
    case AppEnergy::Kind::self:
        break;
    }
    return app.group;
}

std::optional<AppEnergy::Kind> kindFromStored(int value)
{
    if (value < static_cast<int>(AppEnergy::Kind::application) || value > static_cast<int>(AppEnergy::Kind::rest))
        return std::nullopt;
    return static_cast<AppEnergy::Kind>(value);
}

static_assert(static_cast<int>(AttributionMethod::cpuTime) == 3, "the stored methods' numbers are the file's");

// combinedMethod() in SQL: CPU time alone (3) gives way to any method that found energy.
const QString kCombinedMethod = QStringLiteral(
    "CASE WHEN method = 3 THEN excluded.method WHEN excluded.method = 3 THEN method ELSE max(method, excluded.method) END");
const QString kCombinedMethods = QStringLiteral("coalesce(max(CASE WHEN method < 3 THEN method END), 3)");

AttributionMethod methodFromStored(int value)
{
    return std::clamp(static_cast<AttributionMethod>(value), AttributionMethod::measured, AttributionMethod::cpuTime);
}

} // namespace

QString applicationPeriodTable(const char *name)
{
    return QStringLiteral("CREATE TABLE IF NOT EXISTS %1 (start INTEGER NOT NULL, app_id INTEGER NOT NULL REFERENCES applications(id), "
                          "energy_mj INTEGER, cpu_ms INTEGER NOT NULL, covered_s INTEGER NOT NULL, method INTEGER NOT NULL, "
                          "PRIMARY KEY (start, app_id)) WITHOUT ROWID")
        .arg(QLatin1String(name));
}

bool rollUpApplications(QSqlQuery &query, UnixSeconds cutoff)
{
    // An hour's line per application; its time is the hour's covered time, which every line of a
    // minute shares.
    const bool prepared = query.prepare(
        QStringLiteral("WITH covered AS (SELECT hour, sum(seconds) AS seconds FROM (SELECT start / 3600 * 3600 AS hour, max(covered_s) AS seconds "
                       "FROM app_minutes WHERE start < ? GROUP BY start) GROUP BY hour) "
                       "INSERT INTO app_hours SELECT m.start / 3600 * 3600 AS hour, m.app_id, sum(m.energy_mj), sum(m.cpu_ms), covered.seconds, %1 "
                       "FROM app_minutes m JOIN covered ON covered.hour = m.start / 3600 * 3600 WHERE m.start < ? GROUP BY hour, m.app_id "
                       "ON CONFLICT (start, app_id) DO UPDATE SET energy_mj = coalesce(energy_mj + excluded.energy_mj, energy_mj, excluded.energy_mj), "
                       "cpu_ms = cpu_ms + excluded.cpu_ms, covered_s = covered_s + excluded.covered_s, method = %2")
            .arg(kCombinedMethods, kCombinedMethod));
    if (!prepared)
        return false;
    query.addBindValue(static_cast<qlonglong>(cutoff));
    query.addBindValue(static_cast<qlonglong>(cutoff));
    if (!query.exec())
        return false;
    query.prepare(QStringLiteral("DELETE FROM app_minutes WHERE start < ?"));
    query.addBindValue(static_cast<qlonglong>(cutoff));
    return query.exec();
}

bool HistoryDatabase::writeApplications(const std::vector<AppMinuteRecord> &minutes)
{
    if (!isOpen())
        return false;
    if (minutes.empty())
        return true;
    QSqlDatabase db = QSqlDatabase::database(m_connection, false);
    if (!db.transaction())
        return fail(QStringLiteral("cannot write %1").arg(m_path), db.lastError().text());
    QSqlQuery name(db);
    QSqlQuery row(db);
    const auto abandon = [&](const QSqlQuery &failed) {
        const QString why = failed.lastError().text();
        db.rollback();
        return fail(QStringLiteral("cannot write %1").arg(m_path), why);
    };
    if (!name.prepare(QStringLiteral("INSERT INTO applications (app, name, icon, kind) VALUES (?, ?, ?, ?) "
                                     "ON CONFLICT (app) DO UPDATE SET name = excluded.name, icon = excluded.icon, kind = excluded.kind RETURNING id")))
        return abandon(name);
    // A minute flushed early (sleep, quit) and continued adds up.
    if (!row.prepare(QStringLiteral("INSERT INTO app_minutes VALUES (?, ?, ?, ?, ?, ?) ON CONFLICT (start, app_id) DO UPDATE SET "
                                    "energy_mj = coalesce(energy_mj + excluded.energy_mj, energy_mj, excluded.energy_mj), "
                                    "cpu_ms = cpu_ms + excluded.cpu_ms, covered_s = min(60, covered_s + excluded.covered_s), "
                                    "method = %1").arg(kCombinedMethod)))
        return abandon(row);
    QHash<QString, qlonglong> ids;
    for (const AppMinuteRecord &minute : minutes) {
        const auto coveredS = static_cast<qlonglong>(std::lround(std::clamp(minute.apps.coveredS, 0.0, 60.0)));
        for (const AppEnergy &app : minute.apps.apps) {
            const QString key = storedKey(app);
            if (!ids.contains(key)) {
                name.addBindValue(key);
                name.addBindValue(app.name);
                name.addBindValue(app.icon);
                name.addBindValue(static_cast<int>(app.kind));
                if (!name.exec() || !name.next())
                    return abandon(name);
                ids.insert(key, name.value(0).toLongLong());
                name.finish();
            }
            row.addBindValue(static_cast<qlonglong>(minute.start));
            row.addBindValue(ids.value(key));
            row.addBindValue(app.energyJ ? QVariant(milli(*app.energyJ)) : QVariant());
            row.addBindValue(milli(app.cpuTimeS));
            row.addBindValue(coveredS);
            row.addBindValue(static_cast<int>(app.method));
            if (!row.exec())
                return abandon(row);
        }
    }
    if (!db.commit())
        return fail(QStringLiteral("cannot write %1").arg(m_path), db.lastError().text());
    return true;
}

AppEnergyList HistoryDatabase::applications(UnixSeconds from, UnixSeconds to, QString *error) const
{
    AppEnergyList list;
    if (!readable(error))
        return list;
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    const QString rows = QStringLiteral("SELECT start, app_id, energy_mj, cpu_ms, covered_s, method FROM app_minutes WHERE start >= ? AND start < ? "
                                        "UNION ALL SELECT start, app_id, energy_mj, cpu_ms, covered_s, method FROM app_hours WHERE start >= ? AND start < ?");
    // Summed by SQLite: a month is a third of a million lines. The period's time is once per
    // minute (or hour), which every line of it shares; it comes last, as a line of its own.
    const bool prepared = query.prepare(
        QStringLiteral("WITH r AS (%1) "
                       "SELECT a.app, a.name, a.icon, a.kind, sum(r.energy_mj), sum(r.cpu_ms), %2 FROM r JOIN applications a ON a.id = r.app_id "
                       "GROUP BY r.app_id "
                       "UNION ALL SELECT NULL, NULL, NULL, -1, NULL, (SELECT sum(seconds) FROM (SELECT max(covered_s) AS seconds FROM r GROUP BY start)), NULL")
            .arg(rows, kCombinedMethods));
    if (!prepared) {
        readFailed(query, error);
        return list;
    }
    for (int table = 0; table < 2; ++table) {
        query.addBindValue(static_cast<qlonglong>(from));
        query.addBindValue(static_cast<qlonglong>(to));
    }
    if (!query.exec()) {
        readFailed(query, error);
        return list;
    }
    std::optional<AttributionMethod> weakest;
    while (query.next()) {
        if (query.value(3).toInt() == -1) {
            list.coveredS = query.value(5).toDouble();
            continue;
        }
        const std::optional<AppEnergy::Kind> kind = kindFromStored(query.value(3).toInt());
        if (!kind)
            continue; // written by a newer Ferrow: left out rather than misnamed
        AppEnergy app;
        app.kind = *kind;
        if (*kind == AppEnergy::Kind::application || *kind == AppEnergy::Kind::self)
            app.group = query.value(0).toString();
        app.name = query.value(1).toString();
        app.icon = query.value(2).toString();
        if (!query.value(4).isNull())
            app.energyJ = static_cast<double>(query.value(4).toLongLong()) / 1000.0;
        app.cpuTimeS = static_cast<double>(query.value(5).toLongLong()) / 1000.0;
        app.method = methodFromStored(query.value(6).toInt());
        weakest = combinedMethod(weakest.value_or(app.method), app.method);
        list.apps.push_back(std::move(app));
    }
    if (query.lastError().isValid())
        readFailed(query, error);
    list.method = weakest.value_or(AttributionMethod::cpuTime);
    for (AppEnergy &app : list.apps)
        app.coveredS = list.coveredS;
    sortMostFirst(list.apps);
    return list;
}

} // namespace ferrow

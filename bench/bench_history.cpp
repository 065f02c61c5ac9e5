// What keeping history costs: committing one minute, folding a second's reading, and reading a
// year back as days for the History section. The year is 30 days of minutes and 335 of hours, as
// the retention leaves it, with the applications' energy as the application stores it (a minute's
// top five, this program, the system and the rest); its file size is reported as a counter.

#include "history/history_database.h"
#include "history/minute_folder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace ferrow;

namespace {

constexpr UnixSeconds kYearStart = 1'767'225'600; // 2026-01-01

MinuteRecord minuteAt(UnixSeconds start, double seconds)
{
    MinuteRecord minute;
    minute.start = start;
    minute.energy.coveredS = seconds;
    minute.energy.adapterWh = 0.4;
    minute.energy.systemWh = 0.3;
    minute.energy.batteryInWh = 0.1;
    minute.energy.batteryOutWh = 0.0;
    minute.energy.chipWh = {0.05, 0.02, 0.0, 0.01};
    minute.minPowerW = 12;
    minute.meanPowerW = 18;
    minute.maxPowerW = 30;
    minute.batteryPercent = 80;
    minute.batteryTemperatureC = 31.5;
    minute.externalPower = true;
    minute.charging = true;
    minute.batteryId = QStringLiteral("5e4c0d1f9a2b7c3e8d6f1a0b9c2d3e4f5a6b7c8d9e0f1a2b3c4d5e6f7a8b9c0d");
    return minute;
}

// A minute's (or, as the roll-up leaves it, an hour's) applications: eight lines.
AppMinuteRecord applicationsAt(UnixSeconds start, double seconds)
{
    AppMinuteRecord record{start, {{}, std::min(seconds, 60.0), AttributionMethod::measured}};
    const auto line = [&](AppEnergy::Kind kind, QString group, double energyJ) {
        record.apps.apps.push_back({kind, group, group.section(u'/', -1), group, energyJ * seconds / 60, seconds / 120, seconds, AttributionMethod::measured});
    };
    for (int app = 0; app < 5; ++app)
        line(AppEnergy::Kind::application, QStringLiteral("/Applications/Application %1.app").arg((start / 600 + app) % 40), 60.0 / (app + 1));
    line(AppEnergy::Kind::self, QStringLiteral("/Applications/Ferrow.app"), 0.2);
    line(AppEnergy::Kind::others, {}, 40);
    line(AppEnergy::Kind::rest, {}, 12);
    return record;
}

void writeMinute(benchmark::State &state)
{
    QTemporaryDir folder;
    HistoryDatabase database(folder.filePath(QStringLiteral("history.sqlite")), HistoryDatabase::Mode::readWrite);
    UnixSeconds start = kYearStart;
    SessionRecord session{kYearStart, kYearStart, true, 40, 80, 12.0, 3600, 30.0, std::nullopt};
    for (auto _ : state) {
        start += 60;
        session.end = start;
        if (!database.write({minuteAt(start, 60)}, {session}, {}, start))
            state.SkipWithError(qPrintable(database.error()));
    }
}
BENCHMARK(writeMinute)->Unit(benchmark::kMicrosecond);

void foldReading(benchmark::State &state)
{
    MinuteFolder folder;
    PowerSnapshot reading;
    reading.isDataAvailable = true;
    reading.hasBattery = true;
    reading.dcPowerW = 30;
    reading.systemPowerW = 18;
    reading.batteryFlowW = 12;
    reading.isExternalConnected = true;
    double second = 0;
    for (auto _ : state) {
        second += 1;
        reading.updatedAt = WallTime(std::chrono::seconds(kYearStart + static_cast<UnixSeconds>(second)));
        benchmark::DoNotOptimize(folder.add(reading, second));
    }
}
BENCHMARK(foldReading);

void readYearAsDays(benchmark::State &state)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("history.sqlite"));
    {
        HistoryDatabase database(path, HistoryDatabase::Mode::readWrite);
        std::vector<MinuteRecord> rows;
        const UnixSeconds minutesFrom = kYearStart + 335 * 86'400;
        for (UnixSeconds t = kYearStart; t < minutesFrom; t += 3600)
            rows.push_back(minuteAt(t, 3600));
        // Old enough to be hours already: written as minutes, then rolled up.
        std::vector<AppMinuteRecord> apps;
        for (UnixSeconds t = kYearStart; t < minutesFrom; t += 3600) {
            // An hour holds more applications than a minute: two minutes' sets.
            apps.push_back(applicationsAt(t, 1800));
            apps.push_back(applicationsAt(t + 60 * 300, 1800));
            apps.back().start = t + 60;
        }
        database.writeApplications(apps);
        database.write(rows, {}, {}, kYearStart);
        rows.clear();
        apps.clear();
        for (UnixSeconds t = minutesFrom; t < kYearStart + 365 * 86'400; t += 60) {
            rows.push_back(minuteAt(t, 60));
            apps.push_back(applicationsAt(t, 60));
        }
        database.writeApplications(apps);
        database.write(rows, {}, {}, kYearStart + 365 * 86'400);
    }
    HistoryDatabase database(path, HistoryDatabase::Mode::readOnly);
    std::size_t days = 0;
    for (auto _ : state)
        days = database.energy(kYearStart, kYearStart + 366 * 86'400, HistoryPeriod::day).size();
    state.counters["days"] = static_cast<double>(days);
    state.counters["file_MB"] = static_cast<double>(QFileInfo(path).size() + QFileInfo(path + QStringLiteral("-wal")).size()) / 1e6;
}
BENCHMARK(readYearAsDays)->Unit(benchmark::kMillisecond);

// The details window's "30 days" list: a month of applications' minutes summed.
void readMonthOfApplications(benchmark::State &state)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("history.sqlite"));
    const UnixSeconds end = kYearStart + 30 * 86'400;
    {
        HistoryDatabase database(path, HistoryDatabase::Mode::readWrite);
        std::vector<AppMinuteRecord> apps;
        for (UnixSeconds t = kYearStart; t < end; t += 60)
            apps.push_back(applicationsAt(t, 60));
        database.writeApplications(apps);
    }
    HistoryDatabase database(path, HistoryDatabase::Mode::readOnly);
    std::size_t lines = 0;
    for (auto _ : state)
        lines = database.applications(kYearStart, end).apps.size();
    state.counters["lines"] = static_cast<double>(lines);
    state.counters["file_MB"] = static_cast<double>(QFileInfo(path).size() + QFileInfo(path + QStringLiteral("-wal")).size()) / 1e6;
}
BENCHMARK(readMonthOfApplications)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

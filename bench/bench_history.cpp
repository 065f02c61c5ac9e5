// What keeping history costs: committing one minute, folding a second's reading, and reading a
// year back as days for the History section. The year is 30 days of minutes and 335 of hours, as
// the retention leaves it; its file size is reported as a counter.

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
        database.write(rows, {}, {}, kYearStart);
        rows.clear();
        for (UnixSeconds t = minutesFrom; t < kYearStart + 365 * 86'400; t += 60)
            rows.push_back(minuteAt(t, 60));
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

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

#pragma once

#include "model/power_history.h"
#include "model/power_snapshot.h"
#include "monitor/snapshot_reader.h"

#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QThread>

#include <chrono>
#include <functional>
#include <memory>

class QTimer;

namespace ferrow {

class SleepWakeNotifier;

// The one live object between the reader and the views. Once a second it runs one reading on its
// low-priority reading thread and publishes the result on the main thread, then folds it into the
// history. All members are touched on the main thread only; isRefreshing is the only exclusion.
class PowerMonitor : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds kDefaultInterval{1000};

    PowerMonitor(std::unique_ptr<SnapshotReader> reader, SleepWakeNotifier *sleepWake,
                 std::chrono::milliseconds interval = kDefaultInterval, QObject *parent = nullptr);
    ~PowerMonitor() override;

    const PowerSnapshot &snapshot() const { return m_snapshot; }
    const PowerHistory &powerHistory() const { return m_powerHistory; }
    bool isRunning() const { return m_timer != nullptr; }
    bool isRefreshing() const { return m_isRefreshing; }
    bool hasReading() const { return m_hasReading; }
    qsizetype observerCount() const { return m_observers.size(); }

public slots:
    void start();
    void refresh();
    void stopTimer();
    void restart();
    // Has the reader write what it keeps, on the reading worker after any reading in flight.
    void persist();
    // Runs work on the reading thread between two readings: for a sampler that shares the
    // reader's machine.
    void runBetweenReadings(std::function<void()> work);

signals:
    // Emitted before every store, equal values included, like any observable property.
    void objectWillChange();
    // Emitted after the store, for views that read the new value at once.
    void snapshotChanged();
    void powerHistoryChanged();

private:
    void apply(PowerSnapshot result);
    template <typename Work> void onReadingThread(Work work);

    std::unique_ptr<SnapshotReader> m_reader;
    QPointer<SleepWakeNotifier> m_sleepWake;
    std::chrono::milliseconds m_interval;
    PowerSnapshot m_snapshot;
    PowerHistory m_powerHistory;
    std::unique_ptr<QTimer> m_timer;
    QList<QMetaObject::Connection> m_observers;
    bool m_isRefreshing = false;
    bool m_hasReading = false;
    // One long-lived thread that sleeps in its event loop between readings: one wake-up a reading.
    QThread m_readingThread;
    std::unique_ptr<QObject> m_readingContext;
};

} // namespace ferrow

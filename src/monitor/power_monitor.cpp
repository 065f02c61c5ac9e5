#include "monitor/power_monitor.h"

#include "monitor/sleep_wake_notifier.h"

#include <QThread>
#include <QTimer>

namespace ferrow {

PowerMonitor::PowerMonitor(std::unique_ptr<SnapshotReader> reader, SleepWakeNotifier *sleepWake,
                           std::chrono::milliseconds interval, QObject *parent)
    : QObject(parent)
    , m_reader(std::move(reader))
    , m_sleepWake(sleepWake)
    , m_interval(interval)
    , m_snapshot(PowerSnapshot::empty())
    , m_readingContext(std::make_unique<QObject>())
{
    m_readingThread.setObjectName(QStringLiteral("ferrow-reader"));
    m_readingContext->moveToThread(&m_readingThread);
    m_readingThread.start(QThread::LowPriority);
}

PowerMonitor::~PowerMonitor()
{
    // Work already queued (a reading in flight, a last persist) runs first; the thread stops after
    // it. A queued result is then discarded along with this object.
    onReadingThread([thread = &m_readingThread] { thread->quit(); });
    m_readingThread.wait();
}

template <typename Work> void PowerMonitor::onReadingThread(Work work)
{
    QMetaObject::invokeMethod(m_readingContext.get(), std::move(work), Qt::QueuedConnection);
}

void PowerMonitor::start()
{
    if (m_timer)
        return;
    refresh();

    m_timer = std::make_unique<QTimer>();
    m_timer->setTimerType(Qt::PreciseTimer);
    m_timer->setInterval(m_interval);
    connect(m_timer.get(), &QTimer::timeout, this, &PowerMonitor::refresh);
    m_timer->start();

    if (m_observers.isEmpty() && m_sleepWake) {
        m_observers.append(connect(m_sleepWake, &SleepWakeNotifier::willSleep, this,
                                   &PowerMonitor::stopTimer, Qt::QueuedConnection));
        m_observers.append(connect(m_sleepWake, &SleepWakeNotifier::didWake, this,
                                   &PowerMonitor::restart, Qt::QueuedConnection));
    }
}

void PowerMonitor::refresh()
{
    if (m_isRefreshing)
        return;
    m_isRefreshing = true;
    onReadingThread([this] {
        PowerSnapshot result = m_reader->read();
        QMetaObject::invokeMethod(
            this, [this, result = std::move(result)]() mutable { apply(std::move(result)); },
            Qt::QueuedConnection);
    });
}

void PowerMonitor::persist()
{
    onReadingThread([this] { m_reader->persist(); });
}

void PowerMonitor::runBetweenReadings(std::function<void()> work)
{
    onReadingThread(std::move(work));
}

void PowerMonitor::stopTimer()
{
    m_timer.reset();
}

void PowerMonitor::restart()
{
    stopTimer();
    start();
}

void PowerMonitor::apply(PowerSnapshot result)
{
    emit objectWillChange();
    m_snapshot = std::move(result);
    m_hasReading = true;
    emit snapshotChanged();

    emit objectWillChange();
    m_powerHistory.append(m_snapshot);
    emit powerHistoryChanged();

    m_isRefreshing = false;
}

} // namespace ferrow

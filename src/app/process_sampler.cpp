#include "app/process_sampler.h"

#include "monitor/power_monitor.h"

#include <QCoreApplication>
#include <QPointer>

namespace ferrow {

ProcessSampler::ProcessSampler(std::unique_ptr<ProcessSource> source, PowerMonitor &monitor, QObject *parent)
    : QObject(parent)
    , m_source(std::move(source))
    , m_monitor(monitor)
{
    // Coarse: the system may bundle it with other wake-ups.
    m_timer.setTimerType(Qt::CoarseTimer);
    m_timer.setInterval(kUnwatchedIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &ProcessSampler::sample);
}

void ProcessSampler::start()
{
    sample(); // the baseline, so the first interval ends at the first tick
    m_timer.start();
}

void ProcessSampler::setWatched(bool watched)
{
    const int interval = watched ? kWatchedIntervalMs : kUnwatchedIntervalMs;
    if (m_timer.interval() == interval)
        return;
    m_timer.setInterval(interval);
    if (watched && m_timer.isActive())
        sample(); // the list catches up at once rather than after the slow tick
}

void ProcessSampler::sample()
{
    if (m_inFlight || !m_source)
        return;
    m_inFlight = true;
    m_monitor.runBetweenReadings([source = m_source, self = QPointer<ProcessSampler>(this)] {
        std::optional<ProcessFrame> frame = source->sample();
        // Back on the main thread, where the sampler may have gone meanwhile.
        QMetaObject::invokeMethod(QCoreApplication::instance(), [self, frame = std::move(frame)] {
            if (!self)
                return;
            self->m_inFlight = false;
            if (frame)
                emit self->sampled(*frame);
        });
    });
}

} // namespace ferrow

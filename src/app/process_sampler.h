#pragma once

#include "apps/process_sample.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace ferrow {

class PowerMonitor;

// Samples the machine's processes on the monitor's reading thread, which the source may share
// with the reader (a simulated machine is one object): every 5 s while no window of ours shows,
// every second while one does. A sample never overlaps the one before.
class ProcessSampler : public QObject {
    Q_OBJECT
public:
    static constexpr int kUnwatchedIntervalMs = 5000;
    static constexpr int kWatchedIntervalMs = 1000;

    ProcessSampler(std::unique_ptr<ProcessSource> source, PowerMonitor &monitor, QObject *parent = nullptr);

    void start();
    void stop() { m_timer.stop(); }
    // Whether the user looks at the applications: they then follow every second.
    void setWatched(bool watched);

signals:
    void sampled(const ferrow::ProcessFrame &frame);

private:
    void sample();

    std::shared_ptr<ProcessSource> m_source; // shared with a sample in flight
    PowerMonitor &m_monitor;
    QTimer m_timer;
    bool m_inFlight = false;
};

} // namespace ferrow

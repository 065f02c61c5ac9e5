#pragma once

#include "monitor/sleep_wake_notifier.h"

namespace ferrow {

// System sleep and wake on Linux, from logind's PrepareForSleep signal on the system bus.
// Without a system bus (a container, a bare session) it simply never signals.
class LogindSleepNotifier final : public SleepWakeNotifier {
    Q_OBJECT
public:
    explicit LogindSleepNotifier(QObject *parent = nullptr);

private slots:
    void prepareForSleep(bool goingToSleep);
};

} // namespace ferrow

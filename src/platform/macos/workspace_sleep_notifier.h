#pragma once

#include "monitor/sleep_wake_notifier.h"

#include <memory>

namespace ferrow {

// System sleep and wake from the workspace's notifications, delivered on the main queue.
class WorkspaceSleepNotifier final : public SleepWakeNotifier {
public:
    explicit WorkspaceSleepNotifier(QObject *parent = nullptr);
    ~WorkspaceSleepNotifier() override;

private:
    struct Observers;
    std::unique_ptr<Observers> m_observers;
};

} // namespace ferrow

#pragma once

#include <QObject>

namespace ferrow {

// The platform's system sleep and wake, as two separate signals. Each backend provides one.
class SleepWakeNotifier : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

signals:
    void willSleep();
    void didWake();
};

} // namespace ferrow

#include "platform/linux/logind_sleep_notifier.h"

#include <QDBusConnection>

namespace ferrow {

LogindSleepNotifier::LogindSleepNotifier(QObject *parent)
    : SleepWakeNotifier(parent)
{
    QDBusConnection bus = QDBusConnection::systemBus();
    if (bus.isConnected()) {
        bus.connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                    QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
                    SLOT(prepareForSleep(bool)));
    }
}

void LogindSleepNotifier::prepareForSleep(bool goingToSleep)
{
    if (goingToSleep)
        emit willSleep();
    else
        emit didWake();
}

} // namespace ferrow

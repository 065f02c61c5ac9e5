#pragma once

#include "alerts/alert.h"

#include <QObject>

namespace ferrow {

// Whether the system lets this program post notifications.
enum class NotificationPermission { notAsked, granted, denied };

// The platform's notification centre. Each backend under platform/ defines createNotifier() in
// native_desktop.h; nothing where the platform has no centre (the tray's message is the way then).
class Notifier : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void notify(const Alert &alert) = 0;
    virtual NotificationPermission permission() const { return NotificationPermission::granted; }
    // Asks the user once, where the platform asks; permissionChanged() tells the answer.
    virtual void requestPermission() {}

signals:
    void permissionChanged();
};

} // namespace ferrow

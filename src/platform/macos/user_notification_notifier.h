#pragma once

#include "platform/notifier.h"

#include <memory>

namespace ferrow {

// Alerts in the system's notification centre (UNUserNotificationCenter), one request per alert
// kind, so that a new alert takes the place of its kind's last. The permission is read when made
// and again whenever the application comes to the front, since the user changes it in System
// Settings; permissionChanged() comes on the main thread.
class UserNotificationNotifier final : public Notifier {
public:
    UserNotificationNotifier();
    ~UserNotificationNotifier() override;

    void notify(const Alert &alert) override;
    NotificationPermission permission() const override { return m_permission; }
    void requestPermission() override;

private:
    void readPermission();
    void setPermission(NotificationPermission permission);

    struct Native;
    std::unique_ptr<Native> m_native;
    NotificationPermission m_permission = NotificationPermission::notAsked;
};

} // namespace ferrow

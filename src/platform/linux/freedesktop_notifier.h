#pragma once

#include "platform/notifier.h"

#include <QDBusConnection>

#include <map>
#include <optional>
#include <set>

namespace ferrow {

// Alerts as notifications of the desktop's notification service (org.freedesktop.Notifications).
// A new alert of a kind takes the place of that kind's last notification, and one of a kind waits
// while the last is still on its way, so that it knows which to replace.
class FreedesktopNotifier final : public Notifier {
public:
    explicit FreedesktopNotifier(const QDBusConnection &bus);

    void notify(const Alert &alert) override;
    // A message of no kind: each takes the place of the last, as a tray icon's balloon does.
    void showMessage(const QString &title, const QString &body);

private:
    // What a notification replaces: the last of its alert kind, or the last plain message.
    using Slot = std::optional<AlertKind>;
    struct Message {
        QString title;
        QString body;
    };

    void post(Slot slot, Message message);
    void postWaiting();
    void askCapabilities();
    void forgetServer();

    QDBusConnection m_bus;
    std::optional<bool> m_readsMarkup; // whether the server takes the body as markup; unknown until asked
    bool m_askingCapabilities = false;
    std::map<Slot, Message> m_waiting; // the newest of each slot not yet sent
    std::set<Slot> m_sending;          // a slot whose notification has not yet been given an id
    std::map<Slot, uint> m_shown;      // the server's id of each slot's last notification
    int m_server = 0;                  // counts servers, so that a gone one's late answers are dropped
};

// Whether a notification service runs on the bus or would be started by a call to it; asked of the
// bus alone, so that nothing is started.
bool hasNotificationService(const QDBusConnection &bus);

} // namespace ferrow

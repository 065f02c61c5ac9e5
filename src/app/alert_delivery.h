#pragma once

#include "alerts/alert.h"

namespace ferrow {

class MenuBarItem;
class Notifier;

// Brings an alert to the user: through the system's notification centre where there is one that
// the user has not refused, else as the menu-bar item's message; nowhere without either.
class AlertDelivery {
public:
    // Either may be null; both belong to the caller and outlive this.
    AlertDelivery(Notifier *notifier, MenuBarItem *menuBarItem);

    void deliver(const Alert &alert) const;

private:
    Notifier *m_notifier;
    MenuBarItem *m_menuBarItem;
};

} // namespace ferrow

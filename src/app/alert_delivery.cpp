#include "app/alert_delivery.h"

#include "platform/menu_bar_item.h"
#include "platform/notifier.h"

namespace ferrow {

AlertDelivery::AlertDelivery(Notifier *notifier, MenuBarItem *menuBarItem)
    : m_notifier(notifier)
    , m_menuBarItem(menuBarItem)
{
}

void AlertDelivery::deliver(const Alert &alert) const
{
    if (m_notifier && m_notifier->permission() != NotificationPermission::denied)
        m_notifier->notify(alert);
    else if (m_menuBarItem)
        m_menuBarItem->showMessage(alert.title, alert.body);
}

} // namespace ferrow

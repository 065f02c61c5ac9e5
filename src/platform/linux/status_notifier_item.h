#pragma once

#include "platform/menu_bar_item.h"

#include <QDBusConnection>
#include <QMenu>
#include <QPoint>

#include <memory>

class QDBusServiceWatcher;

namespace ferrow {

class FreedesktopNotifier;
class StatusNotifierItemAdaptor;

// The menu-bar item as a StatusNotifierItem on the session bus: a symbolic icon that the panel
// recolours, the figure as the item's text label beside it, and its menu over D-Bus. It registers
// with the panel's watcher, and again whenever a watcher comes onto the bus (a panel restarted);
// until then it stays on the bus unseen.
class StatusNotifierItem final : public MenuBarItem {
    Q_OBJECT
public:
    // iconThemePath: where the panel finds the icons besides the system's theme; may be empty.
    StatusNotifierItem(const QDBusConnection &bus, MenuBarSymbolPainter paintSymbol, const QString &iconThemePath);
    ~StatusNotifierItem() override;

    void showReading(const MenuBarReading &reading) override;
    // Where the panel was last clicked: it says no more of where the item is.
    QRect geometry() const override;
    // The protocol has no messages of its own: through the notification service, where one has come.
    void showMessage(const QString &title, const QString &body) override;

private:
    friend class StatusNotifierItemAdaptor;

    void registerWithWatcher();
    void activate(QPoint devicePoint);
    void showMenu(QPoint devicePoint);

    QDBusConnection m_bus;
    QString m_serviceName;
    QMenu m_menu;
    StatusNotifierItemAdaptor *m_adaptor; // owned by this object, as Qt's adaptors are
    QDBusServiceWatcher *m_watcherWatch;
    std::optional<QPoint> m_clickPoint;
    std::unique_ptr<FreedesktopNotifier> m_messages; // made when the first message finds a service
};

// Whether a panel shows status notifier items here now: a watcher on the bus with a host.
bool hasStatusNotifierHost(const QDBusConnection &bus);

// Where a panel finds the item's icons when they are not in the system's theme: beside the program
// in its build tree, or under the prefix it was installed to. Empty where neither holds them.
QString statusIconThemePath();

} // namespace ferrow

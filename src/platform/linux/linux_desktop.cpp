#include "platform/native_desktop.h"

#include "platform/linux/logind_sleep_notifier.h"
#include "platform/linux/status_notifier_item.h"
#include "platform/linux/xdg_autostart_login_item.h"

namespace ferrow {

// Where no panel shows status notifier items, the toolkit's tray icon is the way (an X11 tray).
std::unique_ptr<MenuBarItem> createNativeMenuBarItem(const MenuBarSymbolPainter &paintSymbol)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!hasStatusNotifierHost(bus))
        return nullptr;
    return std::make_unique<StatusNotifierItem>(bus, paintSymbol, statusIconThemePath());
}

std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier()
{
    return std::make_unique<LogindSleepNotifier>();
}

std::unique_ptr<LoginItem> createLoginItem()
{
    return std::make_unique<XdgAutostartLoginItem>();
}

} // namespace ferrow

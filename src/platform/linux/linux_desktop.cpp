#include "platform/native_desktop.h"

#include "platform/linux/logind_sleep_notifier.h"
#include "platform/linux/xdg_autostart_login_item.h"

#include <QCoreApplication>

namespace ferrow {

std::unique_ptr<MenuBarItem> createNativeMenuBarItem()
{
    return nullptr; // the toolkit's tray icon is the desktop's way
}

std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier()
{
    return std::make_unique<LogindSleepNotifier>();
}

std::unique_ptr<LoginItem> createLoginItem()
{
    return std::make_unique<XdgAutostartLoginItem>();
}

DeclaredVersions declaredVersions()
{
    return {QCoreApplication::applicationVersion(), std::nullopt};
}

std::optional<bool> systemReducesMotion()
{
    return std::nullopt;
}

void prepareApplication()
{
}

void bringApplicationToFront()
{
}

void onApplicationReopen(std::function<void()>)
{
}

bool usePopoverMaterial(QWidget &)
{
    return false;
}

} // namespace ferrow

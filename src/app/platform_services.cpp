#include "app/platform_services.h"

#include "app/tray_menu_bar_item.h"

#include <QCoreApplication>

#if defined(Q_OS_MACOS)
#include "app/macos/mac_app_services.h"
#include "app/macos/mac_status_item.h"
#include "platform/macos/mac_system.h"
#include "platform/macos/workspace_sleep_notifier.h"
#elif defined(Q_OS_LINUX)
#include "platform/linux/logind_sleep_notifier.h"
#endif

namespace ferrow {

std::unique_ptr<MenuBarItem> createMenuBarItem()
{
#if defined(Q_OS_MACOS)
    return std::make_unique<MacStatusItem>();
#else
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return nullptr;
    return std::make_unique<TrayMenuBarItem>();
#endif
}

std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier()
{
#if defined(Q_OS_MACOS)
    return std::make_unique<WorkspaceSleepNotifier>();
#elif defined(Q_OS_LINUX)
    return std::make_unique<LogindSleepNotifier>();
#else
    return std::make_unique<SleepWakeNotifier>();
#endif
}

std::unique_ptr<LoginItem> createLoginItem()
{
#if defined(Q_OS_MACOS)
    return std::make_unique<MainAppLoginItem>();
#else
    return std::make_unique<XdgAutostartLoginItem>();
#endif
}

QString applicationVersionText()
{
#if defined(Q_OS_MACOS)
    const auto [shortVersion, build] = bundleVersions();
    return appVersionString(shortVersion, build);
#else
    return appVersionString(QCoreApplication::applicationVersion(), std::nullopt);
#endif
}

std::optional<bool> systemReducesMotion()
{
#if defined(Q_OS_MACOS)
    return ferrow::reducesMotion();
#else
    return std::nullopt;
#endif
}

void prepareEnvironment()
{
#if defined(Q_OS_LINUX)
    // On X11 every flush through shared memory comes back as a completion event, waking the event
    // thread and then the main thread once per animation frame; the popover's frames are a few
    // kilobytes, cheaper to send over the socket.
    if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"))
        qputenv("QT_XCB_NO_MITSHM", "1");
#endif
}

void prepareApplication()
{
#if defined(Q_OS_MACOS)
    setRegularActivationPolicy();
#endif
}

void bringApplicationToFront()
{
#if defined(Q_OS_MACOS)
    activateApplication();
#endif
}

std::shared_ptr<const void> keepTimersOnPace()
{
#if defined(Q_OS_MACOS)
    return std::make_shared<const ActivityAssertion>();
#else
    return nullptr;
#endif
}

void onApplicationReopen(std::function<void()> handler)
{
#if defined(Q_OS_MACOS)
    installReopenHandler(std::move(handler));
#else
    Q_UNUSED(handler);
#endif
}

bool usePopoverMaterial(QWidget &window)
{
#if defined(Q_OS_MACOS)
    putPopoverMaterialBehind(window);
    return true;
#else
    Q_UNUSED(window);
    return false;
#endif
}

} // namespace ferrow

#pragma once

#include "app/app_services.h"
#include "app/menu_bar_item.h"
#include "monitor/sleep_wake_notifier.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace ferrow {

// The services whose implementation depends on the platform, chosen here and nowhere else.

std::unique_ptr<MenuBarItem> createMenuBarItem(); // nothing where the desktop has no tray
std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier();
std::unique_ptr<LoginItem> createLoginItem();
// The version a user sees, from the bundle on macOS and the build elsewhere.
QString applicationVersionText();
// The system's reduce-motion accessibility setting, where the platform has one.
std::optional<bool> systemReducesMotion();
// Settings of the windowing system that must be made before the application object exists.
void prepareEnvironment();
// Makes the process a regular application, where the platform distinguishes.
void prepareApplication();
// Brings the application to the front, even while another application is active.
void bringApplicationToFront();
// Keeps the once-a-second timer on its pace for as long as the result lives: macOS naps an app
// with no window in front and stretches its timers. Nothing to hold elsewhere.
std::shared_ptr<const void> keepTimersOnPace();
// Calls handler when the user opens the running application again (its Dock icon), where the
// platform has such a gesture.
void onApplicationReopen(std::function<void()> handler);
// Puts the platform's popover material behind window, where it has one; false elsewhere, and
// then the window paints its own background.
bool usePopoverMaterial(QWidget &window);

} // namespace ferrow

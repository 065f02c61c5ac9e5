#pragma once

#include "app/app_services.h"
#include "app/menu_bar_item.h"
#include "monitor/sleep_wake_notifier.h"

#include <QString>

#include <memory>
#include <optional>

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

} // namespace ferrow

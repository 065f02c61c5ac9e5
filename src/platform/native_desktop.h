#pragma once

#include "monitor/sleep_wake_notifier.h"
#include "platform/login_item.h"
#include "platform/menu_bar_item.h"
#include "platform/notifier.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace ferrow {

// The services of a desktop session that differ per operating system. Each backend under
// platform/ (macos, linux, null) defines these functions; the application links exactly one.

// The system's own menu-bar item; nothing where the toolkit's tray icon is the way.
std::unique_ptr<MenuBarItem> createNativeMenuBarItem(const MenuBarSymbolPainter &paintSymbol);
std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier();
std::unique_ptr<LoginItem> createLoginItem();
// The system's notification centre; nothing where none runs (the menu-bar item's message is the
// way then).
std::unique_ptr<Notifier> createNotifier();

// The short version and the build number the installed application declares, where it declares
// them (a Mac bundle's Info.plist); else the build's own version and no build number.
struct DeclaredVersions {
    std::optional<QString> shortVersion;
    std::optional<QString> build;
};
DeclaredVersions declaredVersions();

// The system's reduce-motion accessibility setting, where the platform has one.
std::optional<bool> systemReducesMotion();
// The system's increase-contrast accessibility setting (a high-contrast theme on Linux), where
// the platform has one and says so promptly.
std::optional<bool> systemIncreasesContrast();
// Makes the process a regular application, where the platform distinguishes.
void prepareApplication();
// Brings the application to the front, even while another application is active.
void bringApplicationToFront();
// Calls handler when the user opens the running application again (its Dock icon), where the
// platform has such a gesture.
void onApplicationReopen(std::function<void()> handler);
// Puts the platform's popover material behind window, where it has one; false elsewhere, and
// then the window paints its own background.
bool usePopoverMaterial(QWidget &window);
// Whether the window system composites windows, so that a window may have translucent (rounded)
// corners.
bool windowSystemComposites();

} // namespace ferrow

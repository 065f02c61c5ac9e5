#pragma once

#include "platform/menu_bar_item.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

namespace ferrow {

// The menu-bar item as a system-tray icon, with the figure drawn into the icon and a menu with
// the dashboard and the quit action.
class TrayMenuBarItem final : public MenuBarItem {
public:
    TrayMenuBarItem();

    void showReading(const MenuBarReading &reading) override;
    QRect geometry() const override { return m_tray.geometry(); }
    void showMessage(const QString &title, const QString &body) override { m_tray.showMessage(title, body); }

private:
    QMenu m_menu;
    QSystemTrayIcon m_tray;
    QString m_shownIcon; // what the icon shows now; it is redrawn only when that changes
};

// The system's own menu-bar item, else this tray icon where the desktop has a tray; else nothing.
std::unique_ptr<MenuBarItem> createMenuBarItem();

} // namespace ferrow

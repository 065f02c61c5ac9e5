#include "app/tray_menu_bar_item.h"

#include "app/menu_bar_label.h"
#include "platform/menu_bar_menu.h"
#include "platform/native_desktop.h"

namespace ferrow {

TrayMenuBarItem::TrayMenuBarItem()
{
    addMenuBarItemActions(m_menu, *this);
    m_tray.setContextMenu(&m_menu);
    connect(&m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            emit activated();
    });
}

void TrayMenuBarItem::showReading(const MenuBarReading &reading)
{
    const QString icon = QStringLiteral("%1|%2").arg(int(reading.onExternalPower)).arg(reading.showsPower ? trayIconFigure(reading.powerW) : QString());
    if (icon != m_shownIcon) {
        m_tray.setIcon(renderTrayIcon(reading));
        m_shownIcon = icon;
    }
    if (reading.toolTip != m_tray.toolTip())
        m_tray.setToolTip(reading.toolTip);
    if (!m_tray.isVisible())
        m_tray.show();
}

std::unique_ptr<MenuBarItem> createMenuBarItem()
{
    if (std::unique_ptr<MenuBarItem> native = createNativeMenuBarItem(&renderTraySymbol))
        return native;
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return nullptr;
    return std::make_unique<TrayMenuBarItem>();
}

} // namespace ferrow

#include "app/tray_menu_bar_item.h"

#include "app/menu_bar_label.h"
#include "model/localized_text.h"

#include <QCoreApplication>

namespace ferrow {

TrayMenuBarItem::TrayMenuBarItem()
{
    m_menu.addAction(localizedText("action.show_dashboard"), this, &MenuBarItem::activated);
    m_menu.addSeparator();
    m_menu.addAction(localizedText("action.quit"), qApp, &QCoreApplication::quit);
    m_tray.setContextMenu(&m_menu);
    connect(&m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            emit activated();
    });
}

void TrayMenuBarItem::showReading(const PowerSnapshot &snapshot, bool showPower, const QString &toolTip)
{
    const QString icon = QStringLiteral("%1|%2").arg(int(menuBarGlyph(snapshot))).arg(showPower ? trayIconFigure(snapshot.displayPowerW()) : QString());
    if (icon != m_shownIcon) {
        m_tray.setIcon(renderTrayIcon(snapshot, showPower));
        m_shownIcon = icon;
    }
    if (toolTip != m_tray.toolTip())
        m_tray.setToolTip(toolTip);
    if (!m_tray.isVisible())
        m_tray.show();
}

} // namespace ferrow

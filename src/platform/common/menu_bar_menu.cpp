#include "platform/menu_bar_menu.h"

#include "model/localized_text.h"
#include "platform/menu_bar_item.h"

#include <QCoreApplication>
#include <QMenu>

namespace ferrow {

void addMenuBarItemActions(QMenu &menu, MenuBarItem &item)
{
    menu.addAction(localizedText("action.show_dashboard"), &item, &MenuBarItem::activated);
    menu.addSeparator();
    menu.addAction(localizedText("action.quit"), qApp, &QCoreApplication::quit);
}

} // namespace ferrow

#pragma once

class QMenu;

namespace ferrow {

class MenuBarItem;

// The menu-bar item's own menu, the same wherever a panel shows it: open the dashboard, quit.
void addMenuBarItemActions(QMenu &menu, MenuBarItem &item);

} // namespace ferrow

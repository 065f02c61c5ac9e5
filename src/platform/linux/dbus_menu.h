#pragma once

#include <QString>

class QDBusConnection;
class QMenu;

namespace ferrow {

// Puts menu's actions on bus at path as a com.canonical.dbusmenu, for a panel that draws an item's
// menu itself: one level of labelled actions and separators, clicked through D-Bus. False when the
// path is taken.
bool exportDBusMenu(QDBusConnection &bus, const QString &path, QMenu &menu);

} // namespace ferrow

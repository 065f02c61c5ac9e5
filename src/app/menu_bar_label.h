#pragma once

#include "model/power_snapshot.h"
#include "platform/menu_bar_item.h"
#include "views/glyphs.h"

#include <QIcon>
#include <QImage>
#include <QString>

namespace ferrow {

// The menu-bar item's content: the bolt on external power, the battery otherwise; the headline
// figure as "%.1f W" (or "— W" before there is one).
Glyph menuBarGlyph(const MenuBarReading &reading);
QString menuBarFigureText(const PowerSnapshot &snapshot);
// The widest text menuBarFigureText gives, for a panel that keeps the item's width steady.
QString menuBarFigureGuide();
// The figure as it fits inside a square tray icon: one decimal below 10 W, whole watts above.
QString trayIconFigure(std::optional<double> powerW);
// A tray icon legible on light and dark panels: the glyph filling the icon, or, at sizes where the
// figure can be read, the figure (with its unit where it fits) under the glyph. The tooltip
// carries the figure at every size.
QIcon renderTrayIcon(const MenuBarReading &reading);
QIcon renderTrayIcon(const PowerSnapshot &snapshot, bool showPower);
// The glyph alone, as the tray icon draws it, at one size.
QImage renderTraySymbol(bool onExternalPower, int side);
// What the menu-bar item shows of snapshot.
MenuBarReading menuBarReading(const PowerSnapshot &snapshot, bool showPower, const QString &toolTip);

} // namespace ferrow

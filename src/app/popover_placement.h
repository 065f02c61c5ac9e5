#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace ferrow {

// Where the popover's top-left corner goes: centred under the tray item when the item is in the
// upper half of its screen, over it otherwise, and kept inside the screen's available area. A tray
// that reports no geometry anchors at the cursor instead.
QPoint popoverPosition(const QRect &trayItem, const QSize &popover, const QRect &availableScreen, const QPoint &cursor);

} // namespace ferrow

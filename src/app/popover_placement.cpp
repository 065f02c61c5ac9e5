#include "app/popover_placement.h"

#include <algorithm>

namespace ferrow {

QPoint popoverPosition(const QRect &trayItem, const QSize &popover, const QRect &availableScreen, const QPoint &cursor)
{
    constexpr int kGap = 4;
    const QRect anchor = trayItem.isValid() && !trayItem.isEmpty() ? trayItem : QRect(cursor, QSize(1, 1));
    const bool below = anchor.center().y() < availableScreen.center().y();
    int x = anchor.center().x() - popover.width() / 2;
    int y = below ? anchor.bottom() + 1 + kGap : anchor.top() - kGap - popover.height();
    x = std::clamp(x, availableScreen.left() + kGap, std::max(availableScreen.left() + kGap, availableScreen.right() + 1 - kGap - popover.width()));
    y = std::clamp(y, availableScreen.top() + kGap, std::max(availableScreen.top() + kGap, availableScreen.bottom() + 1 - kGap - popover.height()));
    return {x, y};
}

} // namespace ferrow

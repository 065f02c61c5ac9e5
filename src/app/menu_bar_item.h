#pragma once

#include "model/power_snapshot.h"

#include <QObject>
#include <QRect>

#include <memory>

namespace ferrow {

// The item in the menu bar (the system tray on Linux) that shows the headline figure and opens
// the dashboard when clicked.
class MenuBarItem : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // The bolt on external power, the battery otherwise; the figure when asked for. The tooltip
    // always carries the figure.
    virtual void showReading(const PowerSnapshot &snapshot, bool showPower, const QString &toolTip) = 0;
    // Where the item is on screen, in Qt's coordinates; empty when the platform does not say.
    virtual QRect geometry() const = 0;

signals:
    void activated();
};

// The platform's menu-bar item, or nothing where the desktop has no place for one.
std::unique_ptr<MenuBarItem> createMenuBarItem();

} // namespace ferrow

#pragma once

#include <QObject>
#include <QRect>
#include <QString>

#include <optional>

namespace ferrow {

// What the menu-bar item shows of one reading.
struct MenuBarReading {
    bool onExternalPower = false; // the bolt; the battery otherwise
    std::optional<double> powerW; // the headline figure, absent before the first reading
    QString figureText;           // the figure as the menu bar shows it: "12.3 W"
    bool showsPower = true;       // the figure beside the symbol, as the user chose
    QString toolTip;              // always carries the figure

    bool operator==(const MenuBarReading &) const = default;
};

// The item in the menu bar (the system tray on Linux) that shows the headline figure and opens
// the dashboard when clicked.
class MenuBarItem : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void showReading(const MenuBarReading &reading) = 0;
    // Where the item is on screen, in Qt's coordinates; empty when the platform does not say.
    virtual QRect geometry() const = 0;

signals:
    void activated();
};

} // namespace ferrow

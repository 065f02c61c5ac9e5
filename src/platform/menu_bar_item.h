#pragma once

#include <QObject>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>

class QImage;

namespace ferrow {

// What the menu-bar item shows of one reading.
struct MenuBarReading {
    bool onExternalPower = false; // the bolt; the battery otherwise
    std::optional<double> powerW; // the headline figure, absent before the first reading
    QString figureText;           // the figure as the menu bar shows it: "12.3 W"
    QString figureGuide;          // the widest figureText can be, so that a panel keeps the item's width
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
    // A message from the item, where the system has no notification centre of its own.
    virtual void showMessage(const QString &title, const QString &body) = 0;

signals:
    void activated();
};

// Draws the item's symbol (the bolt on external power, the battery otherwise) as a side x side
// picture, for a panel that takes pictures rather than icon names.
using MenuBarSymbolPainter = std::function<QImage(bool onExternalPower, int side)>;

} // namespace ferrow

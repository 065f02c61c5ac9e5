#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>

#include <vector>

class QLabel;
class QWidget;

namespace ferrow {

// One thing a screen reader reads of a painted widget: a reading, a heading, a notice.
struct AccessibleItem {
    QAccessible::Role role = QAccessible::StaticText;
    QString name;
    QRect area; // in the widget; empty for all of it
};

// A widget that paints what a screen reader should hear says what that is, when it is asked: the
// words are worked out then, so readings that change every second announce nothing.
class AccessibleContent {
public:
    virtual ~AccessibleContent() = default;

    // The widget as one element (a reading, a heading); unnamed, it only holds others.
    virtual AccessibleItem accessibleSelf() const { return {QAccessible::Client, {}, {}}; }
    // What it paints besides, read before the widgets in it.
    virtual std::vector<AccessibleItem> accessibleParts() const { return {}; }
};

// Makes the widgets above, and those given a treatment below, readable. Once, before any window
// is shown; again does nothing.
void installViewAccessibility();

// A label read as a heading of what follows it.
void markAsHeading(QLabel *label);
// A label whose text changes with every reading: read when asked, without an event every time.
void readWhenAsked(QLabel *label);
// A widget that only makes room: nothing for a screen reader.
void hideFromAccessibility(QWidget *widget);

// Tells a screen reader that part index of widget (−1: the widget itself) reads differently now:
// for a change of state, never for a change of figures.
void announceNameChange(QWidget *widget, int index);

} // namespace ferrow

#pragma once

#include "views/accessible_content.h"
#include "views/ferrow_palette.h"

#include <QColor>
#include <QWidget>

#include <optional>

namespace ferrow {

// A coloured instrument tile: a code ("VBUS"), a large five-decimal figure and its unit.
class MeterCard : public QWidget, public AccessibleContent {
    Q_OBJECT
public:
    // The popover's tile, or the main window's larger branded card of the same construction.
    enum class Size { compact, branded };
    struct Metrics {
        double height, radius, outlineAlpha, codeSize, codeTracking, codeLeft, codeTop, lineHeight, linePadding, minimumScale,
            largeSize, smallSize, unitSize;
    };

    MeterCard(QString code, QString unit, QColor color, Size size = Size::compact, QWidget *parent = nullptr);

    void setValue(std::optional<double> value);
    void setFerrowPalette(const FerrowPalette &palette);
    std::optional<double> value() const { return m_value; }
    QSize sizeHint() const override;
    AccessibleItem accessibleSelf() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Metrics m_metrics;
    QString m_code;
    QString m_unit;
    QColor m_color;
    FerrowPalette m_palette;
    std::optional<double> m_value;
};

} // namespace ferrow

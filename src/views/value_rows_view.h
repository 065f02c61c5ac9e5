#pragma once

#include "views/accessible_content.h"
#include "views/ferrow_palette.h"
#include "views/value_row.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace ferrow {

// Label and value rows, the label leading and the value trailing in its model's colour, as tall as
// its rows. Compact rows (the popover's card) are ruled apart; regular ones (the report) are not.
class ValueRowsView : public QWidget, public AccessibleContent {
public:
    enum class Size { compact, regular };

    explicit ValueRowsView(Size size, QWidget *parent = nullptr);

    void setRows(std::vector<ValueRow> rows);
    void setFerrowPalette(const FerrowPalette &palette);
    // Draws each value in the least darker or lighter tone of its colour that reads on ground, for a
    // view that picks its rows' colours for a ground of its own rather than the palette's.
    void setLegibleOn(std::optional<QColor> ground);
    QSize sizeHint() const override;
    // Each row as one sentence: "Voltage, 12.02 volts".
    std::vector<AccessibleItem> accessibleParts() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Size m_size;
    std::vector<ValueRow> m_rows;
    FerrowPalette m_palette;
    std::optional<QColor> m_legibleOn;
};

} // namespace ferrow

#pragma once

#include "views/ferrow_palette.h"
#include "views/value_row.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace ferrow {

// Label and value rows, the label leading and the value trailing in its model's colour, as tall as
// its rows. Compact rows (the popover's card) are ruled apart; regular ones (the report) are not.
class ValueRowsView : public QWidget {
public:
    enum class Size { compact, regular };

    explicit ValueRowsView(Size size, QWidget *parent = nullptr);

    void setRows(std::vector<ValueRow> rows);
    void setFerrowPalette(const FerrowPalette &palette);
    // Values drawn on this ground take the least darker or lighter tone of their colour that reads
    // on it; for colours a view picks for its own ground rather than the palette's.
    void setLegibleOn(std::optional<QColor> ground);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Size m_size;
    std::vector<ValueRow> m_rows;
    FerrowPalette m_palette;
    std::optional<QColor> m_legibleOn;
};

} // namespace ferrow

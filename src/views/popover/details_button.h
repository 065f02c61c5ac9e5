#pragma once

#include "views/ferrow_button.h"
#include "views/ferrow_palette.h"

namespace ferrow {

// The popover's row that opens the details window.
class DetailsButton : public FerrowButton {
public:
    explicit DetailsButton(QWidget *parent = nullptr);
    void setFerrowPalette(const FerrowPalette &palette);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    FerrowPalette m_palette;
};

} // namespace ferrow

#pragma once

#include "views/ferrow_button.h"
#include "views/ferrow_palette.h"
#include "views/main_window_model.h"

#include <QVariantAnimation>

namespace ferrow {

// A sidebar row: the section's glyph and title, the selection behind it.
class SidebarRow : public FerrowButton {
public:
    explicit SidebarRow(MainSection section, QWidget *parent = nullptr);

    // Puts the selection behind the row or takes it away, fading when animated.
    void setSelected(bool selected, bool animated);
    void setFerrowPalette(const FerrowPalette &palette);

protected:
    void nextCheckState() override {} // the window decides what is selected
    void paintEvent(QPaintEvent *event) override;

private:
    MainSection m_section;
    FerrowPalette m_palette;
    double m_highlight = 0; // 0 without the selection, 1 with it
    QVariantAnimation m_fade;
};

} // namespace ferrow

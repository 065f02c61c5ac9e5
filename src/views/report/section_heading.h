#pragma once

#include "views/accessible_content.h"
#include "views/ferrow_palette.h"
#include "views/glyphs.h"
#include "views/main_window_model.h"

#include <QWidget>

namespace ferrow {

// The glyph a section goes by, in its heading and on its sidebar row.
Glyph sectionGlyph(MainSection section);

// A section's heading in the report: its glyph and title.
class SectionHeading : public QWidget, public AccessibleContent {
public:
    explicit SectionHeading(MainSection section, QWidget *parent = nullptr);
    void setFerrowPalette(const FerrowPalette &palette);
    AccessibleItem accessibleSelf() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    MainSection m_section;
    FerrowPalette m_palette;
};

} // namespace ferrow

#pragma once

#include "views/accessible_content.h"
#include "views/ferrow_palette.h"

#include <QWidget>

namespace ferrow {

// A hairline across whatever holds it, in the palette's separator colour.
class Divider : public QWidget, public AccessibleContent {
public:
    explicit Divider(QWidget *parent = nullptr);
    void setFerrowPalette(const FerrowPalette &palette);
    AccessibleItem accessibleSelf() const override { return {QAccessible::Separator, {}, {}}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    FerrowPalette m_palette;
};

} // namespace ferrow

#pragma once

#include "views/accessible_content.h"
#include "views/ferrow_palette.h"

#include <QWidget>

namespace ferrow {

// What a panel shows in place of figures the machine does not have: a battery glyph, a title and
// a line of description, centred in the height it is given.
class UnavailableNote : public QWidget, public AccessibleContent {
public:
    explicit UnavailableNote(int height, QWidget *parent = nullptr);

    void setText(const QString &title, const QString &description);
    void setFerrowPalette(const FerrowPalette &palette);
    // Read as one element, title and description.
    AccessibleItem accessibleSelf() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
    QString m_description;
    FerrowPalette m_palette;
};

} // namespace ferrow

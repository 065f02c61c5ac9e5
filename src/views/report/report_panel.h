#pragma once

#include "views/accessible_content.h"
#include "views/ferrow_palette.h"
#include "views/glyphs.h"

#include <QWidget>

#include <optional>

class QVBoxLayout;

namespace ferrow {

// A rounded bar filled to fraction (0 to 1) in tint.
void paintProgress(QPainter &painter, const QRectF &rect, double fraction, const QColor &tint, const FerrowPalette &palette);

// A panel of the report: a rounded ground, a header of glyph and title in the panel's accent, and
// under it the content its subclass lays out. The panel is as tall as that content.
class ReportPanel : public QWidget, public AccessibleContent {
public:
    // Without an accent of its own, the panel takes the palette's.
    ReportPanel(const char *titleKey, Glyph glyph, std::optional<QColor> accent = std::nullopt, QWidget *parent = nullptr);
    // The title, a heading of the content.
    std::vector<AccessibleItem> accessibleParts() const override;

    // Subclasses pass the palette on to their content.
    virtual void setFerrowPalette(const FerrowPalette &palette);

protected:
    // Adds a piece under the previous one, with room either side for its ink (see kInkFringe).
    void addContent(QWidget *piece);
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
    Glyph m_glyph;
    std::optional<QColor> m_accent;
    FerrowPalette m_palette;
    QVBoxLayout *m_content;
};

// A line of text in a panel: the text in a band textHeight tall, textTop down a line height tall.
class PanelText : public QWidget, public AccessibleContent {
public:
    PanelText(QFont font, ColorRole color, int textTop, int textHeight, int height, QWidget *parent = nullptr);

    void setText(const QString &text);
    void setFerrowPalette(const FerrowPalette &palette);
    // A sub-heading of what follows rather than a line of text.
    void readAsHeading() { m_accessibleRole = QAccessible::Heading; }
    AccessibleItem accessibleSelf() const override { return {m_accessibleRole, m_text, {}}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont m_font;
    ColorRole m_color;
    int m_textTop;
    int m_textHeight;
    QAccessible::Role m_accessibleRole = QAccessible::StaticText;
    QString m_text;
    FerrowPalette m_palette;
};

} // namespace ferrow

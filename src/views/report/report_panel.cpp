#include "views/report/report_panel.h"

#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include <algorithm>

namespace ferrow {
namespace {

constexpr int kPadding = 16;
constexpr int kHeaderHeight = 18;
constexpr int kHeaderGap = 14; // between the header and the content

} // namespace

void paintProgress(QPainter &painter, const QRectF &rect, double fraction, const QColor &tint, const FerrowPalette &palette)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.cardTint());
    painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    if (fraction > 0) {
        painter.setBrush(tint);
        painter.drawRoundedRect(QRectF(rect.left(), rect.top(), rect.width() * std::clamp(fraction, 0.0, 1.0), rect.height()), rect.height() / 2,
                                rect.height() / 2);
    }
    painter.restore();
}

ReportPanel::ReportPanel(const char *titleKey, Glyph glyph, std::optional<QColor> accent, QWidget *parent)
    : QWidget(parent)
    , m_title(localizedText(titleKey))
    , m_glyph(glyph)
    , m_accent(std::move(accent))
    , m_content(new QVBoxLayout(this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_content->setContentsMargins(kPadding - kInkFringe, kPadding + kHeaderHeight + kHeaderGap, kPadding - kInkFringe, kPadding);
    m_content->setSpacing(0);
}

std::vector<AccessibleItem> ReportPanel::accessibleParts() const
{
    return {{QAccessible::Heading, m_title, QRect(kPadding, kPadding, width() - 2 * kPadding, kHeaderHeight)}};
}

void ReportPanel::addContent(QWidget *piece)
{
    piece->setContentsMargins(kInkFringe, 0, kInkFringe, 0);
    m_content->addWidget(piece);
}

void ReportPanel::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void ReportPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF ground = QRectF(rect());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(ground.adjusted(0.25, 0.25, -0.25, -0.25), 14, 14);
    painter.fillPath(shape, m_palette.reportPanelBackground());
    QColor outline = m_palette.separator();
    outline.setAlphaF(outline.alphaF() * 0.7f);
    painter.setPen(QPen(outline, 0.5));
    painter.drawPath(shape);
    painter.restore();

    const QRectF inner = ground.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    const QColor accent = m_palette.legible(m_accent.value_or(m_palette.accent()));
    paintGlyph(painter, m_glyph, QRectF(inner.left(), inner.top() + 1, 16, 16), accent);
    painter.setPen(accent);
    drawFittedText(painter, QRectF(inner.left() + 22, inner.top(), inner.width() - 22, kHeaderHeight), m_title, uiFont(13, QFont::DemiBold), 0.85,
                   Qt::AlignLeft);
}

PanelText::PanelText(QFont font, ColorRole color, int textTop, int textHeight, int height, QWidget *parent)
    : QWidget(parent)
    , m_font(std::move(font))
    , m_color(color)
    , m_textTop(textTop)
    , m_textHeight(textHeight)
{
    setFixedHeight(height);
}

void PanelText::setText(const QString &text)
{
    m_text = text;
    update();
}

void PanelText::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    update();
}

void PanelText::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(m_palette.color(m_color));
    painter.setFont(m_font);
    const QRect area = contentsRect();
    painter.drawText(QRectF(area.left(), m_textTop, area.width(), m_textHeight), Qt::AlignLeft | Qt::AlignVCenter, m_text);
}

} // namespace ferrow

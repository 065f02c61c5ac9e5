#include "views/battery_status_view.h"

#include "model/localized_text.h"
#include "views/accessibility_model.h"
#include "views/battery_status_model.h"
#include "views/glyphs.h"
#include "views/view_painting.h"

#include <QPainter>
#include <QPainterPath>

#include <tuple>

namespace ferrow {

namespace {

constexpr int kCardHeight = 76;
// The session's line takes this much more; the figures move up to make most of the room, and the
// dashboard gives up the rest from around the card, so the popover keeps its height.
constexpr int kSessionLineHeight = 6;
constexpr int kFiguresRaisedBy = 5;

} // namespace

BatteryStatusView::BatteryStatusView(QWidget *parent)
    : SnapshotView(parent)
{
    fitHeight();
}

void BatteryStatusView::setSessionText(const QString &text)
{
    if (text == m_sessionText)
        return;
    m_sessionText = text;
    fitHeight();
    update();
}

void BatteryStatusView::fitHeight()
{
    setFixedHeight(kCardHeight + (m_sessionText.isEmpty() ? 0 : kSessionLineHeight));
}

void paintBatterySegments(QPainter &painter, const QRectF &rect, std::int64_t level, const FerrowPalette &palette)
{
    constexpr int kSegments = 10;
    constexpr double kGap = 2;
    const double width = (rect.width() - kGap * (kSegments - 1)) / kSegments;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < kSegments; ++i) {
        const QRectF segment(rect.left() + i * (width + kGap), rect.top(), width, rect.height());
        QPainterPath shape;
        shape.addRoundedRect(segment, 2, 2);
        painter.fillPath(shape, palette.cardTint());
        const double fill = segmentFillFraction(level, i);
        if (fill > 0) {
            painter.save();
            painter.setClipPath(shape);
            painter.fillRect(QRectF(segment.left(), segment.top(), segment.width() * fill, segment.height()), palette.positive());
            painter.restore();
        }
    }
    painter.restore();
}

void paintCompactMetric(QPainter &painter, const QRectF &rect, const QString &label, const QString &value, const QColor &color,
                        const FerrowPalette &palette)
{
    painter.setPen(palette.secondaryText());
    drawFittedText(painter, QRectF(rect.left(), rect.top(), rect.width(), 11), label, uiFont(8), 1.0, Qt::AlignLeft);
    painter.setPen(color);
    drawFittedText(painter, QRectF(rect.left(), rect.top() + 13, rect.width(), 11), value, monospacedFont(8), 0.75, Qt::AlignLeft);
}

std::vector<AccessibleItem> BatteryStatusView::accessibleParts() const
{
    const PowerSnapshot &s = snapshot();
    if (!s.hasBattery)
        return {{QAccessible::StaticText, spokenNote(localizedText("battery.not_detected"), localizedText("battery.desktop_description")), {}}};
    std::vector<AccessibleItem> parts = {
        {QAccessible::Heading, localizedText("battery.status"), {}},
        {QAccessible::StaticText, spokenReading(localizedText("battery.pack_charge"), QStringLiteral("%1%").arg(s.batteryPercent)), {}},
    };
    for (const BatteryCardFigure &figure : batteryCardFigures(s))
        parts.push_back({QAccessible::StaticText, spokenReading(localizedText(figure.labelKey), figure.value), {}});
    if (!m_sessionText.isEmpty())
        parts.push_back({QAccessible::StaticText, m_sessionText, {}});
    return parts;
}

bool BatteryStatusView::paintsDifferently(const PowerSnapshot &shown, const PowerSnapshot &next) const
{
    const auto figures = [](const PowerSnapshot &s) { return std::tuple(s.hasBattery, s.batteryPercent, batteryCardFigures(s)); };
    return figures(shown) != figures(next);
}

void BatteryStatusView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const FerrowPalette &palette = ferrowPalette();
    const PowerSnapshot &s = snapshot();
    const QRectF card = QRectF(rect());
    paintCardSurface(painter, card, 9, palette);
    const QRectF content = card.adjusted(8, 8, -8, -8);

    if (!s.hasBattery) {
        paintGlyph(painter, Glyph::battery, QRectF(content.left(), content.center().y() - 12, 26, 24), palette.secondaryText(), 0.0);
        const double textLeft = content.left() + 36;
        painter.setPen(palette.primaryText());
        drawFittedText(painter, QRectF(textLeft, content.center().y() - 15, content.right() - textLeft, 15),
                       localizedText("battery.not_detected"), uiFont(10, QFont::DemiBold), 0.9, Qt::AlignLeft);
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(textLeft, content.center().y() + 1, content.right() - textLeft, 13),
                       localizedText("battery.desktop_description"), uiFont(8), 0.9, Qt::AlignLeft);
        return;
    }

    // Status row: label with a small battery, the charge on the right.
    paintGlyph(painter, Glyph::battery, QRectF(content.left(), content.top(), 14, 14), palette.secondaryText(), 0.75);
    painter.setPen(palette.secondaryText());
    drawFittedText(painter, QRectF(content.left() + 18, content.top(), content.width() * 0.6, 14), localizedText("battery.status"),
                   uiFont(9), 0.9, Qt::AlignLeft);
    painter.setPen(palette.primaryText());
    drawFittedText(painter, QRectF(content.right() - 80, content.top(), 80, 14), QStringLiteral("%1%").arg(s.batteryPercent),
                   monospacedFont(11, QFont::Bold), 0.9, Qt::AlignRight);

    const bool session = !m_sessionText.isEmpty();
    paintBatterySegments(painter, QRectF(content.left(), content.top() + (session ? 19 : 20), content.width(), 6), s.batteryPercent, palette);

    const double metricTop = content.top() + 34 - (session ? kFiguresRaisedBy : 0);
    const double metricWidth = (content.width() - 16) / 3;
    int column = 0;
    for (const BatteryCardFigure &figure : batteryCardFigures(s)) {
        paintCompactMetric(painter, QRectF(content.left() + column++ * (metricWidth + 8), metricTop, metricWidth, 24), localizedText(figure.labelKey),
                           figure.value, figure.positive ? palette.positive() : palette.primaryText(), palette);
    }
    if (!m_sessionText.isEmpty()) {
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(content.left(), metricTop + 25, content.width(), 12), m_sessionText, uiFont(9), 0.85, Qt::AlignLeft);
    }
}

} // namespace ferrow

#include "views/popover/popover_header.h"

#include "model/localized_text.h"
#include "views/accessibility_model.h"
#include "views/brand_links.h"
#include "views/dashboard_model.h"
#include "views/view_painting.h"

#include <QFontMetricsF>
#include <QPainter>

namespace ferrow {
namespace {

constexpr int kHeight = 51;
constexpr double kLogoSize = 31;
constexpr int kStatusPart = 2;

} // namespace

PopoverHeader::PopoverHeader(QWidget *parent)
    : SnapshotView(parent)
    , m_logo(new FerrowLogoLink(kLogoSize, 7, this))
    , m_subtitle(localizedText("app.menu_subtitle"))
{
    setFixedHeight(kHeight);
    m_logo->move(12, (kHeight - m_logo->height()) / 2);
}

void PopoverHeader::setSubtitle(const QString &subtitle)
{
    m_subtitle = subtitle;
    update();
}

void PopoverHeader::setAlertLine(const QString &line)
{
    if (line == m_alertLine)
        return;
    m_alertLine = line;
    update();
}

void PopoverHeader::ferrowPaletteChanged()
{
    m_logo->setFerrowPalette(ferrowPalette(), ferrowPalette().panelBackground());
}

void PopoverHeader::setReduceMotion(bool reduceMotion)
{
    m_logo->setReduceMotion(reduceMotion);
}

std::vector<AccessibleItem> PopoverHeader::accessibleParts() const
{
    return {{QAccessible::Heading, localizedText("FERROW"), {}},
            {QAccessible::StaticText, m_alertLine.isEmpty() ? m_subtitle : m_alertLine, {}},
            {QAccessible::StaticText, liveStatusText(snapshot()), {}}};
}

void PopoverHeader::announceStatus()
{
    announceNameChange(this, kStatusPart);
}

bool PopoverHeader::paintsDifferently(const PowerSnapshot &shown, const PowerSnapshot &next) const
{
    const StatusIndicator before = statusIndicator(shown), after = statusIndicator(next);
    return before.text != after.text || before.dotColor != after.dotColor;
}

void PopoverHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const FerrowPalette &palette = ferrowPalette();
    const QRectF area = QRectF(rect()).adjusted(12, 0, -12, 0);
    const double textLeft = area.left() + kLogoSize + 9;

    const StatusIndicator status = statusIndicator(snapshot());
    const QFont statusFont = uiFont(9);
    const double statusWidth = QFontMetricsF(statusFont).horizontalAdvance(status.text);
    const double statusLeft = area.right() - statusWidth;

    painter.setPen(palette.primaryText());
    drawFittedText(painter, QRectF(textLeft, area.center().y() - 15, statusLeft - textLeft - 20, 16), localizedText("FERROW"),
                   uiFont(12, QFont::DemiBold), 0.9, Qt::AlignLeft);
    // An alert in the warning colour, in a tone that reads on the popover.
    painter.setPen(m_alertLine.isEmpty() ? palette.secondaryText() : readableOn(palette.color(ColorRole::orange), palette.panelBackground()));
    drawFittedText(painter, QRectF(textLeft, area.center().y() + 1, statusLeft - textLeft - 20, 13), m_alertLine.isEmpty() ? m_subtitle : m_alertLine,
                   uiFont(9, m_alertLine.isEmpty() ? QFont::Normal : QFont::DemiBold), 0.85, Qt::AlignLeft);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(status.dotColor));
    painter.drawEllipse(QPointF(statusLeft - 8, area.center().y()), 3, 3);
    painter.setPen(palette.secondaryText());
    painter.setFont(statusFont);
    painter.drawText(QRectF(statusLeft, area.top(), statusWidth + 1, area.height()), Qt::AlignLeft | Qt::AlignVCenter, status.text);
    paintBottomSeparator(painter, QRectF(rect()), palette);
}

} // namespace ferrow

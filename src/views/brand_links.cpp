#include "views/brand_links.h"

#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QDesktopServices>
#include <cmath>
#include <QEasingCurve>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyle>

namespace ferrow {

const QUrl &officialWebsiteUrl()
{
    static const QUrl url(QStringLiteral("https://ferrow.app"));
    return url;
}

FerrowLogoLink::FerrowLogoLink(double size, double cornerRadius, QWidget *parent)
    : FerrowButton(parent)
    , m_size(size)
    , m_cornerRadius(cornerRadius)
{
    setToolTip(localizedText("action.open_official_website"));
    setAccessibleName(localizedText("action.open_official_website"));
    setFixedSize(sizeHint());
    m_hoverAnimation.setDuration(140);
    m_hoverAnimation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_hoverAnimation, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_hoverProgress = value.toDouble();
        update();
    });
    connect(this, &QAbstractButton::clicked, this, [] { QDesktopServices::openUrl(officialWebsiteUrl()); });
}

void FerrowLogoLink::setFerrowPalette(const FerrowPalette &palette, const QColor &ground)
{
    m_palette = palette;
    m_ground = ground;
    update();
}

QSize FerrowLogoLink::sizeHint() const
{
    const int side = static_cast<int>(std::ceil(m_size));
    return {side, side + 1}; // a point of room to rise into
}

void FerrowLogoLink::setHovered(bool hovered)
{
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    m_hoverAnimation.stop();
    if (m_reduceMotion) {
        m_hoverProgress = hovered ? 1 : 0;
        update();
        return;
    }
    m_hoverAnimation.setStartValue(m_hoverProgress);
    m_hoverAnimation.setEndValue(hovered ? 1.0 : 0.0);
    m_hoverAnimation.start();
}

void FerrowLogoLink::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    setHovered(true);
}

void FerrowLogoLink::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    setHovered(false);
}

void FerrowLogoLink::paintEvent(QPaintEvent *)
{
    static const QPixmap icon(QStringLiteral(":/icons/ferrow-256.png"));
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setOpacity(1.0 - 0.18 * m_hoverProgress);
    const double rise = m_reduceMotion ? 0.0 : m_hoverProgress;
    const QRectF frame(0, 1 - rise, m_size, m_size);
    QPainterPath clip;
    clip.addRoundedRect(frame, m_cornerRadius, m_cornerRadius);
    painter.setClipPath(clip);
    painter.drawPixmap(frame, icon, QRectF(icon.rect()));
    painter.setClipping(false);
    painter.setOpacity(1.0);
    paintFocusRing(painter, frame, m_cornerRadius, m_palette, m_ground);
}

OfficialWebsiteLink::OfficialWebsiteLink(Qt::Alignment alignment, QWidget *parent)
    : FerrowButton(parent)
    , m_alignment(alignment & Qt::AlignHorizontal_Mask)
{
    setToolTip(localizedText("action.open_official_website"));
    setAccessibleDescription(localizedText("action.open_official_website"));
    setText(officialWebsiteUrl().host());
    setFixedHeight(20);
    connect(this, &QAbstractButton::clicked, this, [] { QDesktopServices::openUrl(officialWebsiteUrl()); });
}

void OfficialWebsiteLink::setFerrowPalette(const FerrowPalette &palette, const QColor &ground)
{
    m_palette = palette;
    m_ground = ground;
    update();
}

void OfficialWebsiteLink::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    m_hovered = true;
    update();
}

void OfficialWebsiteLink::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    m_hovered = false;
    update();
}

void OfficialWebsiteLink::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::TextAntialiasing);
    QFont font = brandFont(9, QFont::DemiBold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.225);
    painter.setFont(font);
    painter.setPen(m_hovered ? m_palette.accent() : m_palette.secondaryText());
    const QRectF area = QRectF(rect()).adjusted(0, 6, 0, 0);
    const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), m_alignment) | Qt::AlignTop;
    painter.drawText(area, alignment, text());
    // The ring hugs the name, not the whole width the layout gave it.
    const QRectF name = painter.boundingRect(area, alignment, text());
    paintFocusRing(painter, name.adjusted(-4, -2, 4, 2).intersected(QRectF(rect())), 4, m_palette, m_ground);
}

} // namespace ferrow

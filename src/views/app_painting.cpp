#include "views/app_painting.h"

#include "views/glyphs.h"
#include "views/view_painting.h"

#include <QFileIconProvider>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cstdint>

namespace ferrow {

AppIconSource appIconSource(const QString &icon)
{
    const QString path = icon.trimmed();
    if (path.isEmpty())
        return AppIconSource::none;
    if (QFileInfo(path).isAbsolute()) {
        QString bundle = path;
        while (bundle.endsWith(u'/'))
            bundle.chop(1);
        return bundle.endsWith(QStringLiteral(".app"), Qt::CaseInsensitive) ? AppIconSource::bundle : AppIconSource::file;
    }
    // A theme's names have no folders; a relative path has nothing to be relative to.
    return path.contains(u'/') ? AppIconSource::none : AppIconSource::theme;
}

QString monogramLetter(const QString &name)
{
    for (const char32_t c : name.toUcs4()) {
        if (!QChar::isLetterOrNumber(c))
            continue;
        const QString letter = QString::fromUcs4(&c, 1);
        const QString capital = letter.toUpper();
        return capital.size() == letter.size() ? capital : letter; // "ß" rather than "SS"
    }
    return QStringLiteral("?");
}

std::size_t monogramTileIndex(const QString &group)
{
    // FNV-1a: unlike qHash, unseeded, so a group keeps its colour from run to run.
    std::uint32_t hash = 2166136261u;
    for (const QChar c : group) {
        hash ^= c.unicode();
        hash *= 16777619u;
    }
    return hash % kMonogramTiles;
}

QIcon AppIcons::icon(const QString &where)
{
    if (const auto found = m_found.constFind(where); found != m_found.constEnd())
        return *found;
    QIcon icon;
    switch (appIconSource(where)) {
    case AppIconSource::bundle:
        icon = QFileIconProvider().icon(QFileInfo(where.trimmed()));
        break;
    case AppIconSource::file:
        icon = QIcon(where.trimmed());
        break;
    case AppIconSource::theme:
        icon = QIcon::fromTheme(where.trimmed());
        break;
    case AppIconSource::none:
        break;
    }
    // A file that cannot be read, or a theme without the name, gives an icon with nothing to draw.
    if (!icon.isNull() && icon.pixmap(32).isNull())
        icon = QIcon();
    m_found.insert(where, icon);
    return icon;
}

bool AppIcons::paint(QPainter &painter, const QRect &box, const QString &where)
{
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const QString key = QStringLiteral("%1@%2x%3").arg(where).arg(box.width()).arg(ratio);
    auto drawn = m_drawn.constFind(key);
    if (drawn == m_drawn.constEnd()) {
        const QIcon source = icon(where);
        drawn = m_drawn.insert(key, source.isNull() ? QPixmap() : source.pixmap(box.size(), ratio));
    }
    if (drawn->isNull())
        return false;
    painter.drawPixmap(box, *drawn);
    return true;
}

namespace {

QPainterPath tileShape(const QRectF &box)
{
    QPainterPath shape;
    shape.addRoundedRect(box, box.width() * 0.24, box.width() * 0.24);
    return shape;
}

} // namespace

void paintAppIcon(QPainter &painter, const QRectF &box, const AppRow &row, AppIcons &icons, const FerrowPalette &palette)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    switch (row.kind) {
    case AppEnergy::Kind::others:
    case AppEnergy::Kind::rest:
        painter.fillPath(tileShape(box), palette.cardTint());
        paintGlyph(painter, row.kind == AppEnergy::Kind::others ? Glyph::chip : Glyph::apps, box.adjusted(3, 3, -3, -3), palette.secondaryText());
        break;
    case AppEnergy::Kind::self:
        icons.paint(painter, box.toAlignedRect(), QStringLiteral(":/icons/ferrow-256.png"));
        break;
    case AppEnergy::Kind::application:
        if (icons.paint(painter, box.toAlignedRect(), row.icon))
            break;
        painter.fillPath(tileShape(box), palette.monogramTile(monogramTileIndex(row.group.isEmpty() ? row.name : row.group)));
        painter.setPen(Qt::white);
        painter.setFont(uiFont(box.height() * 0.62, QFont::DemiBold));
        painter.drawText(box, Qt::AlignCenter, monogramLetter(row.name));
        break;
    }
    painter.restore();
}

void paintAppAmount(QPainter &painter, const QRectF &rect, const AppRow &row, const QFont &font, const FerrowPalette &palette)
{
    painter.setPen(palette.primaryText());
    drawFittedText(painter, rect, row.amount, font, 0.8, Qt::AlignRight);
    if (!row.estimated)
        return;
    // The figure as drawn, shrunk or not: the mark goes before it in the lighter grey.
    const double figureW = QFontMetricsF(painter.font()).horizontalAdvance(row.amount);
    painter.setPen(palette.secondaryText());
    painter.setFont(font);
    painter.drawText(QRectF(rect.left(), rect.top(), std::max(0.0, rect.width() - figureW - 3), rect.height()),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, QString::fromUtf16(kEstimatedMark));
}

} // namespace ferrow

#pragma once

#include "views/apps_model.h"
#include "views/ferrow_palette.h"

#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QString>

#include <cstddef>

class QFont;
class QPainter;
class QRect;
class QRectF;

namespace ferrow {

// How the lists of applications draw what they share: icons and figures.

// Where an application's icon comes from: a bundle's own, an image file, the desktop's icon theme,
// or nowhere (a monogram stands in).
enum class AppIconSource { none, bundle, file, theme };
AppIconSource appIconSource(const QString &icon);

// The letter of an application's monogram: its name's first, as a capital; "?" for a name without one.
QString monogramLetter(const QString &name);
// Which of the palette's monogram tiles an application's group takes: the same on every run.
std::size_t monogramTileIndex(const QString &group);

// Looks each icon up once: finding one in a theme or a bundle reads the disk.
class AppIcons {
public:
    // The icon where its source has one to show; a null icon otherwise.
    QIcon icon(const QString &where);
    // Draws it into box from a pixmap made once per size: an icon scales its image at every paint
    // otherwise. False where there is none.
    bool paint(QPainter &painter, const QRect &box, const QString &where);

private:
    QHash<QString, QIcon> m_found;
    QHash<QString, QPixmap> m_drawn; // by where and size in device pixels
};

// A line's icon in box: the application's own or its monogram, this program's, or a neutral glyph
// on a tinted tile for the other applications and the system.
void paintAppIcon(QPainter &painter, const QRectF &box, const AppRow &row, AppIcons &icons, const FerrowPalette &palette);

// The mark before an estimated figure.
inline constexpr char16_t kEstimatedMark[] = u"\u2248";
// A line's energy (or CPU time) against rect's trailing edge in font, the mark before it when estimated.
void paintAppAmount(QPainter &painter, const QRectF &rect, const AppRow &row, const QFont &font, const FerrowPalette &palette);

} // namespace ferrow

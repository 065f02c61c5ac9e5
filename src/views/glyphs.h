#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace ferrow {

// Small line icons drawn as vector paths, so they are crisp at any scale and recolour freely.
enum class Glyph { bolt, battery, plug, laptop, desktop, listRectangle, chevronRight, gauge, grid, info, chart, nodes, refresh, sidebar, apps, chip };

// Draws the glyph centred in box, as large as a square in it allows. batteryLevel (0..1) sets
// how full the battery glyph is.
void paintGlyph(QPainter &painter, Glyph glyph, const QRectF &box, const QColor &color, double batteryLevel = 0.5);

} // namespace ferrow

#include "views/glyphs.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ferrow {

void paintGlyph(QPainter &painter, Glyph glyph, const QRectF &box, const QColor &color, double batteryLevel)
{
    const double side = std::min(box.width(), box.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.center().x() - side / 2, box.center().y() - side / 2);
    painter.scale(side, side); // the shapes below live in a unit square
    QPen stroke(color, 0.085, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    const auto rounded = [](double x, double y, double w, double h, double r) {
        QPainterPath path;
        path.addRoundedRect(QRectF(x, y, w, h), r, r);
        return path;
    };

    switch (glyph) {
    case Glyph::bolt: {
        const QPolygonF bolt{{0.60, 0.02}, {0.20, 0.56}, {0.47, 0.56}, {0.40, 0.98}, {0.80, 0.42}, {0.53, 0.42}};
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(bolt);
        break;
    }
    case Glyph::battery: {
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(rounded(0.06, 0.28, 0.80, 0.44, 0.11));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPath(rounded(0.885, 0.41, 0.07, 0.18, 0.03));
        const double level = std::clamp(batteryLevel, 0.0, 1.0);
        if (level > 0)
            painter.drawPath(rounded(0.14, 0.36, 0.64 * level, 0.28, 0.05));
        break;
    }
    case Glyph::plug:
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPath(rounded(0.34, 0.04, 0.08, 0.26, 0.04));
        painter.drawPath(rounded(0.58, 0.04, 0.08, 0.26, 0.04));
        painter.drawPath(rounded(0.24, 0.27, 0.52, 0.34, 0.10));
        painter.setPen(QPen(color, 0.10, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0.50, 0.62), QPointF(0.50, 0.94));
        break;
    case Glyph::laptop:
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(rounded(0.17, 0.20, 0.66, 0.46, 0.05));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPath(rounded(0.03, 0.72, 0.94, 0.09, 0.04));
        break;
    case Glyph::desktop:
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(rounded(0.06, 0.12, 0.88, 0.56, 0.06));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRect(QRectF(0.45, 0.70, 0.10, 0.14));
        painter.drawPath(rounded(0.30, 0.84, 0.40, 0.07, 0.03));
        break;
    case Glyph::listRectangle:
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(rounded(0.05, 0.14, 0.90, 0.72, 0.12));
        for (const double y : {0.34, 0.50, 0.66}) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(color);
            painter.drawEllipse(QPointF(0.24, y), 0.045, 0.045);
            painter.setPen(QPen(color, 0.07, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(0.35, y), QPointF(0.77, y));
        }
        break;
    case Glyph::chevronRight:
        painter.setPen(QPen(color, 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF{{0.36, 0.14}, {0.68, 0.50}, {0.36, 0.86}});
        break;
    case Glyph::gauge:
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawArc(QRectF(0.08, 0.14, 0.84, 0.84), 210 * 16, -240 * 16);
        painter.drawLine(QPointF(0.5, 0.56), QPointF(0.70, 0.36));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(QPointF(0.5, 0.56), 0.07, 0.07);
        break;
    case Glyph::grid:
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        for (const double x : {0.10, 0.54})
            for (const double y : {0.10, 0.54})
                painter.drawPath(rounded(x, y, 0.36, 0.36, 0.07));
        break;
    case Glyph::info:
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QRectF(0.08, 0.08, 0.84, 0.84));
        painter.setPen(QPen(color, 0.10, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0.5, 0.46), QPointF(0.5, 0.72));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(QPointF(0.5, 0.30), 0.06, 0.06);
        break;
    case Glyph::chart:
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF{{0.10, 0.08}, {0.10, 0.90}, {0.94, 0.90}});
        painter.drawPolyline(QPolygonF{{0.22, 0.70}, {0.42, 0.46}, {0.60, 0.60}, {0.88, 0.24}});
        break;
    case Glyph::nodes:
        painter.setPen(QPen(color, 0.07, Qt::DashLine, Qt::RoundCap));
        painter.drawPolygon(QPolygonF{{0.50, 0.18}, {0.18, 0.78}, {0.82, 0.78}});
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        for (const QPointF node : {QPointF(0.50, 0.18), QPointF(0.18, 0.78), QPointF(0.82, 0.78)})
            painter.drawEllipse(node, 0.13, 0.13);
        break;
    case Glyph::refresh: {
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawArc(QRectF(0.14, 0.14, 0.72, 0.72), 60 * 16, 280 * 16);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(QPolygonF{{0.60, 0.02}, {0.86, 0.18}, {0.58, 0.32}});
        break;
    }
    case Glyph::sidebar:
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(rounded(0.05, 0.14, 0.90, 0.72, 0.12));
        painter.drawLine(QPointF(0.38, 0.14), QPointF(0.38, 0.86));
        painter.setPen(QPen(color, 0.07, Qt::SolidLine, Qt::RoundCap));
        for (const double y : {0.32, 0.46, 0.60})
            painter.drawLine(QPointF(0.15, y), QPointF(0.27, y));
        break;
    case Glyph::apps: // a launcher's grid of applications
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        for (const double x : {0.08, 0.38, 0.68})
            for (const double y : {0.08, 0.38, 0.68})
                painter.drawPath(rounded(x, y, 0.24, 0.24, 0.06));
        break;
    case Glyph::chip: // the processor, with its pins
        painter.setPen(stroke);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(rounded(0.22, 0.22, 0.56, 0.56, 0.08));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPath(rounded(0.38, 0.38, 0.24, 0.24, 0.04));
        painter.setPen(QPen(color, 0.07, Qt::SolidLine, Qt::RoundCap));
        for (const double at : {0.36, 0.50, 0.64}) {
            painter.drawLine(QPointF(at, 0.05), QPointF(at, 0.16));
            painter.drawLine(QPointF(at, 0.84), QPointF(at, 0.95));
            painter.drawLine(QPointF(0.05, at), QPointF(0.16, at));
            painter.drawLine(QPointF(0.84, at), QPointF(0.95, at));
        }
        break;
    }
    painter.restore();
}

} // namespace ferrow

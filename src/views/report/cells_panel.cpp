#include "views/report/cells_panel.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/accessibility_model.h"
#include "views/main_window_model.h"
#include "views/report/unavailable_note.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {
namespace {

constexpr double kTileHeight = 72;
constexpr double kTileGap = 10;

} // namespace

// The tiles, as many rows of them as the cells take.
class CellsPanel::Grid : public QWidget, public AccessibleContent {
public:
    Grid() { setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); }

    std::vector<AccessibleItem> accessibleParts() const override
    {
        std::vector<AccessibleItem> parts;
        for (std::size_t i = 0; i < m_volts.size(); ++i)
            parts.push_back({QAccessible::StaticText,
                             spokenReading(localizedFormat("accessibility.cell", {static_cast<std::int64_t>(i + 1)}), formatFigure(m_volts[i], "%.3f V")),
                             {}});
        return parts;
    }

    void setCells(const std::vector<double> &volts)
    {
        const bool resized = volts.size() != m_volts.size();
        m_volts = volts;
        if (resized)
            updateGeometry();
        update();
    }
    void setFerrowPalette(const FerrowPalette &palette)
    {
        m_palette = palette;
        update();
    }
    QSize sizeHint() const override
    {
        if (m_volts.empty())
            return {0, 0};
        const int columns = cellGridColumns(m_volts.size());
        const auto rows = static_cast<double>((m_volts.size() + columns - 1) / columns);
        return {200, static_cast<int>(rows * kTileHeight + (rows - 1) * kTileGap)};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (m_volts.empty())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(contentsRect().topLeft());
        const int columns = cellGridColumns(m_volts.size());
        const double tileWidth = (contentsRect().width() - kTileGap * (columns - 1)) / columns;
        for (std::size_t i = 0; i < m_volts.size(); ++i) {
            const QRectF tile(static_cast<double>(i % columns) * (tileWidth + kTileGap), static_cast<double>(i / columns) * (kTileHeight + kTileGap),
                              tileWidth, kTileHeight);
            painter.setPen(Qt::NoPen);
            painter.setBrush(m_palette.cardTint());
            painter.drawRoundedRect(tile, 10, 10);
            const QRectF inner = tile.adjusted(12, 8, -12, -10);
            painter.setPen(m_palette.secondaryText());
            painter.setFont(uiFont(11));
            painter.drawText(QRectF(inner.left(), inner.top(), inner.width(), 14), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("S%1").arg(i + 1));
            painter.setPen(m_palette.primaryText());
            drawFittedText(painter, QRectF(inner.left(), inner.top() + 16, inner.width(), 24), formatFigure(m_volts[i], "%.3f V"),
                           uiFont(17, QFont::DemiBold), 0.75, Qt::AlignLeft);
            paintProgress(painter, QRectF(inner.left(), inner.bottom() - 5, inner.width(), 5), cellBarFraction(m_volts[i]), FixedColor::chargeGreen, m_palette);
        }
    }

private:
    std::vector<double> m_volts;
    FerrowPalette m_palette;
};

CellsPanel::CellsPanel(QWidget *parent)
    : ReportPanel("cells.status", Glyph::grid, FixedColor::cellsAccent, parent)
    , m_source(new PanelText(uiFont(11), ColorRole::secondaryText, 0, 16, 22))
    , m_grid(new Grid)
    , m_absent(new UnavailableNote(110))
{
    addContent(m_source);
    addContent(m_grid);
    addContent(m_absent);
}

void CellsPanel::setSnapshot(const PowerSnapshot &s)
{
    const bool hasCells = !s.cellVoltagesV.empty();
    m_source->setVisible(hasCells && s.cellVoltageSource);
    if (s.cellVoltageSource)
        m_source->setText(localizedText(*s.cellVoltageSource == BatteryCellSource::smc ? "cells.source.smc" : "cells.source.registry"));
    m_grid->setVisible(hasCells);
    m_grid->setCells(s.cellVoltagesV);
    m_absent->setVisible(!hasCells);
    if (s.hasBattery)
        m_absent->setText(localizedText("cells.no_data"), localizedText("cells.no_data_description"));
    else
        m_absent->setText(localizedText("battery.not_detected"), localizedText("battery.not_detected_description"));
}

void CellsPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_source->setFerrowPalette(palette);
    m_grid->setFerrowPalette(palette);
    m_absent->setFerrowPalette(palette);
}

} // namespace ferrow

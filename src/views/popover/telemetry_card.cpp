#include "views/popover/telemetry_card.h"

#include "views/dashboard_model.h"
#include "views/value_rows_view.h"
#include "views/view_painting.h"

#include <QPainter>
#include <QVBoxLayout>

namespace ferrow {

TelemetryCard::TelemetryCard(QWidget *parent)
    : QWidget(parent)
    , m_rows(new ValueRowsView(ValueRowsView::Size::compact))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10 - kInkFringe, 9, 10 - kInkFringe, 9);
    m_rows->setContentsMargins(kInkFringe, 0, kInkFringe, 0);
    layout->addWidget(m_rows);
}

void TelemetryCard::setSnapshot(const PowerSnapshot &snapshot)
{
    m_rows->setRows(telemetryRows(snapshot));
}

void TelemetryCard::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    m_rows->setFerrowPalette(palette);
    update();
}

void TelemetryCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintCardSurface(painter, QRectF(rect()), 10, m_palette);
}

} // namespace ferrow

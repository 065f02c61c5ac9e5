#include "views/report/battery_packs_view.h"

#include "views/main_window_model.h"
#include "views/report/report_panel.h"
#include "views/value_rows_view.h"
#include "views/view_painting.h"

#include <QGridLayout>

namespace ferrow {
namespace {

// Two packs share the panel's width; a third would leave each too narrow for its labels.
constexpr int kColumnsPerRow = 2;

} // namespace

BatteryPacksView::BatteryPacksView(QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(28);
    m_grid->setVerticalSpacing(12);
}

void BatteryPacksView::setPacks(const std::vector<BatteryPack> &packs)
{
    while (m_columns.size() > packs.size()) {
        delete m_columns.back().holder;
        m_columns.pop_back();
    }
    while (m_columns.size() < packs.size()) {
        const int index = static_cast<int>(m_columns.size());
        auto *holder = new QWidget;
        // Made without a parent, as every piece that reads itself to a screen reader: one made
        // inside its parent is asked for its interface before it is all there. The layout adopts it.
        Column column{holder, new PanelText(uiFont(13, QFont::DemiBold), ColorRole::primaryText, 4, 20, 28),
                      new ValueRowsView(ValueRowsView::Size::regular)};
        column.title->readAsHeading();
        auto *stack = new QVBoxLayout(holder);
        stack->setContentsMargins(0, 0, 0, 0);
        stack->setSpacing(0);
        stack->addWidget(column.title);
        stack->addWidget(column.rows);
        stack->addStretch();
        applyPalette(column);
        m_grid->addWidget(holder, index / kColumnsPerRow, index % kColumnsPerRow);
        m_grid->setColumnStretch(index % kColumnsPerRow, 1);
        m_columns.push_back(column);
    }
    for (std::size_t i = 0; i < packs.size(); ++i) {
        m_columns[i].title->setText(batteryPackTitle(packs[i]));
        m_columns[i].rows->setRows(batteryPackRows(packs[i]));
    }
}

void BatteryPacksView::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    for (const Column &column : m_columns)
        applyPalette(column);
}

void BatteryPacksView::applyPalette(const Column &column) const
{
    column.title->setFerrowPalette(m_palette);
    column.rows->setFerrowPalette(m_palette);
    // Charging green and discharging pink are chosen here, not by the palette.
    column.rows->setLegibleOn(m_palette.reportPanelBackground());
}

} // namespace ferrow

#include "views/report/device_panel.h"

#include "model/localized_text.h"
#include "views/main_window_model.h"
#include "views/value_rows_view.h"
#include "views/view_painting.h"


namespace ferrow {

DevicePanel::DevicePanel(QWidget *parent)
    : ReportPanel("device.title", Glyph::info, std::nullopt, parent)
    , m_device(new ValueRowsView(ValueRowsView::Size::regular))
    , m_lifetimeHeading(new PanelText(uiFont(13, QFont::DemiBold), ColorRole::primaryText, 8, 20, 32))
    , m_lifetime(new ValueRowsView(ValueRowsView::Size::regular))
{
    m_lifetimeHeading->setText(localizedText("device.history"));
    m_lifetimeHeading->readAsHeading();
    addContent(m_device);
    addContent(m_lifetimeHeading);
    addContent(m_lifetime);
}

void DevicePanel::setSnapshot(const PowerSnapshot &snapshot)
{
    m_device->setRows(deviceRows(snapshot));
    m_lifetime->setRows(lifetimeRows(snapshot));
}

void DevicePanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_device->setFerrowPalette(palette);
    m_lifetimeHeading->setFerrowPalette(palette);
    m_lifetime->setFerrowPalette(palette);
}

} // namespace ferrow

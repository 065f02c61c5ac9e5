#include "views/report/battery_panel.h"

#include "model/localized_text.h"
#include "views/accessibility_model.h"
#include "views/main_window_model.h"
#include "views/report/battery_packs_view.h"
#include "views/report/unavailable_note.h"
#include "views/snapshot_view.h"
#include "views/value_rows_view.h"
#include "views/view_painting.h"

#include <QPainter>

namespace ferrow {

// The charge as a figure and a bar, with the battery's state beside the figure.
class BatteryPanel::Charge : public SnapshotView, public AccessibleContent {
public:
    Charge() { setFixedHeight(60); }

    std::vector<AccessibleItem> accessibleParts() const override
    {
        const PowerSnapshot &s = snapshot();
        return {{QAccessible::StaticText, spokenReading(localizedText("battery.pack_charge"), QStringLiteral("%1%").arg(s.batteryPercent)), {}},
                {QAccessible::StaticText, s.statusText(), {}}};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const FerrowPalette &palette = ferrowPalette();
        const PowerSnapshot &s = snapshot();
        painter.translate(contentsRect().topLeft());
        const double width = contentsRect().width();
        painter.setPen(palette.primaryText());
        painter.setFont(uiFont(28, QFont::DemiBold));
        painter.drawText(QRectF(0, 0, width / 2, 40), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("%1%").arg(s.batteryPercent));
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(width / 2, 0, width / 2, 40), s.statusText(), uiFont(13), 0.85, Qt::AlignRight);
        paintProgress(painter, QRectF(0, 44, width, 6), s.batteryPercent / 100.0, FixedColor::chargeGreen, palette);
    }
};

BatteryPanel::BatteryPanel(QWidget *parent)
    : ReportPanel("battery.title", Glyph::battery, FixedColor::chargeGreen, parent)
    , m_charge(new Charge)
    , m_rows(new ValueRowsView(ValueRowsView::Size::regular))
    , m_packsHeading(new PanelText(uiFont(13, QFont::DemiBold), ColorRole::secondaryText, 8, 20, 32))
    , m_packs(new BatteryPacksView)
    , m_absent(new UnavailableNote(132))
{
    m_absent->setText(localizedText("battery.not_detected"), localizedText("battery.not_detected_description"));
    m_packsHeading->setText(localizedText("battery.packs"));
    m_packsHeading->readAsHeading();
    addContent(m_charge);
    addContent(m_rows);
    addContent(m_packsHeading);
    addContent(m_packs);
    addContent(m_absent);
}

void BatteryPanel::setSnapshot(const PowerSnapshot &snapshot)
{
    m_charge->setVisible(snapshot.hasBattery);
    m_rows->setVisible(snapshot.hasBattery);
    m_absent->setVisible(!snapshot.hasBattery);
    m_charge->setSnapshot(snapshot);
    m_rows->setRows(snapshot.hasBattery ? batteryRows(snapshot) : std::vector<ValueRow>{});
    const bool severalPacks = snapshot.hasBattery && !snapshot.batteryPacks.empty();
    m_packsHeading->setVisible(severalPacks);
    m_packs->setVisible(severalPacks);
    m_packs->setPacks(severalPacks ? snapshot.batteryPacks : std::vector<BatteryPack>{});
}

void BatteryPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_charge->setFerrowPalette(palette);
    m_rows->setFerrowPalette(palette);
    m_packsHeading->setFerrowPalette(palette);
    m_packs->setFerrowPalette(palette);
    m_absent->setFerrowPalette(palette);
}

} // namespace ferrow

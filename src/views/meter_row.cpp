#include "views/meter_row.h"

#include "views/dashboard_model.h"

#include <QHBoxLayout>

namespace ferrow {

MeterRow::MeterRow(MeterCard::Size size, QWidget *parent)
    : QWidget(parent)
    , m_voltage(new MeterCard(QStringLiteral("VBUS"), QStringLiteral("V"), FixedColor::meterInput, size))
    , m_current(new MeterCard(QStringLiteral("IBUS"), QStringLiteral("A"), FixedColor::meterCurrent, size))
    , m_power(new MeterCard(QStringLiteral("PWR"), QStringLiteral("W"), FixedColor::meterPower, size))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(size == MeterCard::Size::compact ? 6 : 12);
    for (MeterCard *meter : {m_voltage, m_current, m_power})
        row->addWidget(meter);
}

void MeterRow::setSnapshot(const PowerSnapshot &s)
{
    m_voltage->setValue(displayVoltageV(s));
    m_current->setValue(s.displayCurrentA());
    m_power->setValue(s.displayPowerW());
}

void MeterRow::setFerrowPalette(const FerrowPalette &palette)
{
    for (MeterCard *card : {m_voltage, m_current, m_power})
        card->setFerrowPalette(palette);
}

} // namespace ferrow

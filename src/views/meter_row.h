#pragma once

#include "model/power_snapshot.h"
#include "views/meter_card.h"

#include <QWidget>

namespace ferrow {

// The three meters side by side: the bus voltage, its current and the power.
class MeterRow : public QWidget {
public:
    explicit MeterRow(MeterCard::Size size, QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setFerrowPalette(const FerrowPalette &palette);

private:
    MeterCard *m_voltage;
    MeterCard *m_current;
    MeterCard *m_power;
};

} // namespace ferrow

#pragma once

#include <QColor>
#include <QWidget>

#include <optional>

namespace ferrow {

// A coloured instrument tile: a code ("VBUS"), a large five-decimal figure and its unit.
class MeterCard : public QWidget {
    Q_OBJECT
public:
    MeterCard(QString code, QString unit, QColor color, QWidget *parent = nullptr);

    void setValue(std::optional<double> value);
    std::optional<double> value() const { return m_value; }
    QSize sizeHint() const override { return {130, 55}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_code;
    QString m_unit;
    QColor m_color;
    std::optional<double> m_value;
};

} // namespace ferrow

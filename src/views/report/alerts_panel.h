#pragma once

#include "alerts/alert_settings.h"
#include "views/report/report_panel.h"

#include <vector>

class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QSpinBox;

namespace ferrow {

// The alerts the user wants, with the thresholds they chose. Tells of the user's edits only.
class AlertsPanel : public ReportPanel {
    Q_OBJECT
public:
    explicit AlertsPanel(QWidget *parent = nullptr);

    AlertSettings settings() const;
    void setSettings(const AlertSettings &settings);
    // Why alerts may not reach the user (empty hides it).
    void setNotificationNote(const QString &note);
    void setFerrowPalette(const FerrowPalette &palette) override;

signals:
    void settingsChanged(const AlertSettings &settings);

private:
    void tellChange();

    QLabel *m_caption;
    std::vector<std::pair<QCheckBox *, bool AlertSettings::*>> m_switches;
    QDoubleSpinBox *m_hotWhileCharging;
    QDoubleSpinBox *m_hot;
    QSpinBox *m_chargeLevel;
    QLabel *m_note;
};

} // namespace ferrow

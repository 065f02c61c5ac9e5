#pragma once

#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace ferrow {

class BatteryStatusView;
class FerrowLogoLink;
class MeterCard;
class OfficialWebsiteLink;
class PowerFlowView;
class SnapshotView;

// The popover's content on a 430 × 560 panel: header, meters, flow diagram, battery card,
// telemetry, the details button, the two settings with the version, and the website link.
class DashboardView : public QWidget {
    Q_OBJECT
public:
    static constexpr QSize kSize{430, 560};

    explicit DashboardView(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setFerrowPalette(const FerrowPalette &palette);
    void setSubtitle(const QString &subtitle);
    void setVersion(const QString &version);
    void setLaunchAtLogin(bool enabled);
    // One line under the settings saying what the system needs from the user; empty hides it.
    void setLaunchAtLoginNote(const QString &note);
    // False where the window has the platform's own material behind it.
    void setPaintsBackground(bool paints);
    void setShowPowerInMenuBar(bool shown);
    void setReduceMotion(bool reduceMotion);
    PowerFlowView *flowView() const { return m_flow; }

signals:
    void detailsRequested();
    void launchAtLoginToggled(bool enabled);
    void launchAtLoginNoteClicked();
    void showPowerInMenuBarToggled(bool shown);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void applyPaletteToControls();

    FerrowPalette m_palette;
    SnapshotView *m_header;
    FerrowLogoLink *m_logo;
    SnapshotView *m_meterCaption;
    MeterCard *m_voltageMeter;
    MeterCard *m_currentMeter;
    MeterCard *m_powerMeter;
    PowerFlowView *m_flow;
    BatteryStatusView *m_battery;
    SnapshotView *m_telemetry;
    QCheckBox *m_launchAtLogin;
    QPushButton *m_launchAtLoginNote;
    bool m_paintsBackground = true;
    QCheckBox *m_showPower;
    QLabel *m_version;
    OfficialWebsiteLink *m_website;
    QString m_subtitle;
};

} // namespace ferrow

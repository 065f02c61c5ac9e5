#pragma once

#include "apps/app_energy.h"
#include "history/history_records.h"
#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"

#include <QWidget>

#include <optional>

namespace ferrow {

class AppsCard;
class BatteryStatusView;
class DetailsButton;
class Divider;
class MeterCaption;
class MeterRow;
class PopoverHeader;
class PowerFlowView;
class SettingsRow;
class TelemetryCard;
class ViewFooter;

// The popover's content on a 430 × 650 panel: header, meters, flow diagram, battery card, the
// applications that used the most this session, telemetry, the details button, the two settings
// with the version, and the website link.
class DashboardView : public QWidget {
    Q_OBJECT
public:
    static constexpr QSize kSize{430, 650};

    explicit DashboardView(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    // The stretch on battery or on the adapter so far, under the battery card's figures.
    void setCurrentSession(std::optional<SessionRecord> session, UnixSeconds now);
    // The current session's applications; the popover shows the three that used the most.
    void setTopApplications(const AppEnergyList &session);
    void setFerrowPalette(const FerrowPalette &palette);
    void setSubtitle(const QString &subtitle);
    void setAlertLine(const QString &line);
    void setVersion(const QString &version);
    void setLaunchAtLogin(bool enabled);
    // One line under the settings saying what the system needs from the user; empty hides it.
    void setLaunchAtLoginNote(const QString &note);
    // False where the window has the platform's own material behind it.
    void setPaintsBackground(bool paints);
    // The popover's edge where no platform material gives it one: a hairline border, around
    // rounded corners where the window system composites.
    enum class Frame { none, square, rounded };
    void setFrame(Frame frame);
    void setShowPowerInMenuBar(bool shown);
    void setReduceMotion(bool reduceMotion);
    // The keyboard starts on the first control that does something here, not on the brand link.
    void focusFirstControl();
    PowerFlowView *flowView() const { return m_flow; }

signals:
    void detailsRequested();
    // A line of the applications was clicked: the details window's list of them is wanted.
    void applicationsRequested();
    void launchAtLoginToggled(bool enabled);
    void launchAtLoginNoteClicked();
    void showPowerInMenuBarToggled(bool shown);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showSession();

    FerrowPalette m_palette;
    bool m_paintsBackground = true;
    Frame m_frame = Frame::none;
    bool m_hasBattery = false;
    std::optional<SessionRecord> m_session;
    UnixSeconds m_sessionNow = 0;
    PopoverHeader *m_header;
    MeterRow *m_meters;
    MeterCaption *m_meterCaption;
    PowerFlowView *m_flow;
    Divider *m_flowDivider;
    QWidget *m_batteryBox = nullptr;
    BatteryStatusView *m_battery;
    AppsCard *m_apps;
    TelemetryCard *m_telemetry;
    DetailsButton *m_details;
    SettingsRow *m_settings;
    ViewFooter *m_footer;
};

} // namespace ferrow

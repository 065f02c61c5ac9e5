#include "views/dashboard_view.h"

#include "model/value_text.h"
#include "views/accessibility_model.h"
#include "views/battery_status_view.h"
#include "views/divider.h"
#include "views/history_model.h"
#include "views/meter_row.h"
#include "views/popover/apps_card.h"
#include "views/popover/details_button.h"
#include "views/popover/meter_caption.h"
#include "views/popover/popover_header.h"
#include "views/popover/settings_row.h"
#include "views/popover/telemetry_card.h"
#include "views/power_flow_view.h"
#include "views/view_footer.h"

#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ferrow {
namespace {

QWidget *padded(QWidget *child, int left, int top, int right, int bottom)
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(left, top, right, bottom);
    layout->addWidget(child);
    return box;
}

} // namespace

DashboardView::DashboardView(QWidget *parent)
    : QWidget(parent)
    , m_header(new PopoverHeader)
    , m_meters(new MeterRow(MeterCard::Size::compact))
    , m_meterCaption(new MeterCaption)
    , m_flow(new PowerFlowView)
    , m_flowDivider(new Divider)
    , m_battery(new BatteryStatusView)
    , m_apps(new AppsCard)
    , m_telemetry(new TelemetryCard)
    , m_details(new DetailsButton)
    , m_settings(new SettingsRow)
    , m_footer(new ViewFooter(ViewFooter::Kind::popover))
{
    setObjectName(QStringLiteral("dashboard"));
    setFixedSize(kSize);
    m_meters->setContentsMargins(8, 8, 8, 5);
    m_flow->setObjectName(QStringLiteral("flow"));
    m_battery->setObjectName(QStringLiteral("battery"));
    m_apps->setObjectName(QStringLiteral("apps"));
    m_telemetry->setObjectName(QStringLiteral("telemetry"));
    m_details->setObjectName(QStringLiteral("details"));
    m_footer->noteButton()->setObjectName(QStringLiteral("launchAtLoginNote"));
    connect(m_details, &QAbstractButton::clicked, this, &DashboardView::detailsRequested);
    connect(m_apps, &AppsCard::applicationsRequested, this, &DashboardView::applicationsRequested);
    connect(m_settings, &SettingsRow::launchAtLoginToggled, this, &DashboardView::launchAtLoginToggled);
    connect(m_settings, &SettingsRow::showPowerInMenuBarToggled, this, &DashboardView::showPowerInMenuBarToggled);
    connect(m_footer, &ViewFooter::noteClicked, this, &DashboardView::launchAtLoginNoteClicked);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_meters);
    column->addWidget(m_meterCaption);
    column->addWidget(m_flow);
    column->addWidget(m_flowDivider);
    m_batteryBox = padded(m_battery, 8, 8, 8, 8);
    column->addWidget(m_batteryBox);
    column->addWidget(padded(m_apps, 8, 0, 8, 8));
    // The pieces fill the popover's height exactly; a point more anywhere squeezes whatever is tallest.
    column->addWidget(padded(m_telemetry, 8, 0, 8, 0));
    column->addWidget(padded(m_details, 8, 5, 8, 0));
    column->addWidget(m_settings);
    column->addWidget(m_footer);
    column->addStretch();

    setVersion(absentText());
    setFerrowPalette(m_palette);
    setSnapshot(PowerSnapshot::empty());
}

void DashboardView::setSnapshot(const PowerSnapshot &s)
{
    const bool announced = isAnnouncedChange(m_header->snapshot(), s);
    m_header->setSnapshot(s);
    if (announced)
        m_header->announceStatus();
    m_meters->setSnapshot(s);
    m_meterCaption->setSnapshot(s);
    m_flow->setSnapshot(s);
    m_battery->setSnapshot(s);
    m_telemetry->setSnapshot(s);
    m_apps->setHasSessions(s.hasBattery);
    if (s.hasBattery != m_hasBattery) {
        m_hasBattery = s.hasBattery;
        showSession();
    }
}

void DashboardView::setCurrentSession(std::optional<SessionRecord> session, UnixSeconds now)
{
    m_session = std::move(session);
    m_sessionNow = now;
    showSession();
}

void DashboardView::setTopApplications(const AppEnergyList &session)
{
    m_apps->setSession(session);
}

void DashboardView::showSession()
{
    const bool shown = m_session && m_hasBattery;
    m_battery->setSessionText(shown ? currentSessionText(*m_session, m_sessionNow) : QString());
    // The card's extra height comes out of the room around it.
    const int gap = shown ? 5 : 8;
    m_batteryBox->layout()->setContentsMargins(8, gap, 8, gap);
}

void DashboardView::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    m_header->setFerrowPalette(palette);
    m_meters->setFerrowPalette(palette);
    m_meterCaption->setFerrowPalette(palette);
    m_flow->setFerrowPalette(palette);
    m_flowDivider->setFerrowPalette(palette);
    m_battery->setFerrowPalette(palette);
    m_apps->setFerrowPalette(palette);
    m_telemetry->setFerrowPalette(palette);
    m_details->setFerrowPalette(palette);
    m_settings->setFerrowPalette(palette);
    m_footer->setFerrowPalette(palette);
    update();
}

void DashboardView::setSubtitle(const QString &subtitle)
{
    m_header->setSubtitle(subtitle);
}

void DashboardView::setAlertLine(const QString &line)
{
    m_header->setAlertLine(line);
}

void DashboardView::setVersion(const QString &version)
{
    m_settings->setVersion(version);
}

void DashboardView::setLaunchAtLogin(bool enabled)
{
    m_settings->setLaunchAtLogin(enabled);
}

void DashboardView::setLaunchAtLoginNote(const QString &note)
{
    m_footer->setNote(note);
}

void DashboardView::setPaintsBackground(bool paints)
{
    m_paintsBackground = paints;
    update();
}

void DashboardView::setShowPowerInMenuBar(bool shown)
{
    m_settings->setShowPowerInMenuBar(shown);
}

void DashboardView::setReduceMotion(bool reduceMotion)
{
    m_flow->setReduceMotion(reduceMotion);
    m_header->setReduceMotion(reduceMotion);
}

void DashboardView::focusFirstControl()
{
    // The popover is opened to be used at once, by keyboard as much as by pointer: its focus shows.
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    m_details->setFocus(Qt::TabFocusReason);
}

void DashboardView::setFrame(Frame frame)
{
    m_frame = frame;
    update();
}

void DashboardView::paintEvent(QPaintEvent *)
{
    if (!m_paintsBackground)
        return;
    QPainter painter(this);
    if (m_frame != Frame::rounded)
        painter.fillRect(rect(), m_palette.panelBackground());
    if (m_frame == Frame::none)
        return;
    // Around the popover's own ground, so it stands apart from a light desktop or a window below.
    constexpr double kPopoverRadius = 10;
    const double radius = m_frame == Frame::rounded ? kPopoverRadius : 0;
    painter.setRenderHint(QPainter::Antialiasing, m_frame == Frame::rounded);
    QColor border = m_palette.separator();
    border.setAlphaF(std::min(1.0f, border.alphaF() * 2)); // the hairline of a divider is too faint for an edge
    painter.setPen(QPen(border, 1));
    painter.setBrush(m_frame == Frame::rounded ? QBrush(m_palette.panelBackground()) : Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace ferrow

#include "views/main_window_view.h"

#include "model/localized_text.h"
#include "model/value_text.h"
#include "views/accessible_content.h"
#include "views/dashboard_model.h"
#include "views/glyphs.h"
#include "views/meter_row.h"
#include "views/history_model.h"
#include "views/power_history_chart.h"
#include "views/report/alerts_panel.h"
#include "views/report/applications_panel.h"
#include "views/report/battery_health_panel.h"
#include "views/report/battery_panel.h"
#include "views/report/cells_panel.h"
#include "views/report/chart_panel.h"
#include "views/report/device_panel.h"
#include "views/report/distribution_panel.h"
#include "views/report/energy_chart_panel.h"
#include "views/report/report_sidebar.h"
#include "views/report/section_heading.h"
#include "views/report/sessions_panel.h"
#include "views/view_footer.h"
#include "views/view_painting.h"

#include <QAction>
#include <QCheckBox>
#include <QEasingCurve>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLocale>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace ferrow {
namespace {

constexpr int kColumnMargin = 24; // around the detail column, and between its sections

QIcon glyphIcon(Glyph glyph, const QColor &color)
{
    QPixmap pixmap(QSize(32, 32));
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintGlyph(painter, glyph, QRectF(2, 2, 28, 28), color);
    painter.end();
    return QIcon(pixmap);
}

} // namespace

MainWindowView::MainWindowView(QWidget *parent)
    : QMainWindow(parent)
    , m_scrollAnimation(nullptr, "value")
{
    setObjectName(QStringLiteral("main"));
    setWindowTitle(localizedText("window.device_details"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/ferrow-256.png")));
    setMinimumSize(900, 620);
    resize(1040, 720);
    buildToolbar();

    // The sidebar keeps its width as the window grows; the user may drag it within its bounds or
    // collapse it (by dragging or with the toolbar's toggle).
    m_sidebar = new ReportSidebar;
    connect(m_sidebar, &ReportSidebar::sectionPicked, this, &MainWindowView::pickSection);
    m_splitter = new QSplitter(Qt::Horizontal);
    m_splitter->setObjectName(QStringLiteral("split"));
    m_splitter->setHandleWidth(1);
    m_splitter->addWidget(m_sidebar);
    m_splitter->addWidget(buildDetail());
    m_splitter->setCollapsible(0, true);
    m_splitter->setCollapsible(1, false);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({m_sidebarWidth, width() - m_sidebarWidth});
    m_splitter->handle(1)->setAutoFillBackground(true); // a hairline between the columns
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] {
        const int shown = m_splitter->sizes().constFirst();
        if (shown > 0)
            m_sidebarWidth = shown;
        m_sidebarToggle->setChecked(shown > 0);
    });
    setCentralWidget(m_splitter);

    m_scroll->viewport()->installEventFilter(this);
    m_blocks.at(MainSection::history)->installEventFilter(this);
    m_scrollAnimation.setTargetObject(m_scroll->verticalScrollBar());
    m_scrollAnimation.setDuration(350);
    m_scrollAnimation.setEasingCurve(QEasingCurve::InOutQuad);
    connect(m_scroll->verticalScrollBar(), &QScrollBar::valueChanged, this, &MainWindowView::followScroll);
    connect(&m_scrollAnimation, &QPropertyAnimation::finished, this, &MainWindowView::followScroll);

    setSelection(MainSection::overview, false);
    showHistory();
    setVersion(absentText());
    setSnapshot(m_snapshot);
    setFerrowPalette(m_palette);
}

void MainWindowView::buildToolbar()
{
    auto *toolbar = addToolBar(localizedText("window.device_details"));
    toolbar->setMovable(false);
    m_sidebarToggle = toolbar->addAction(glyphIcon(Glyph::sidebar, FixedColor::macBlue), localizedText("action.toggle_sidebar"));
    m_sidebarToggle->setObjectName(QStringLiteral("toggleSidebar"));
    m_sidebarToggle->setCheckable(true);
    m_sidebarToggle->setChecked(true);
    m_sidebarToggle->setShortcut(QKeySequence(Qt::CTRL | Qt::META | Qt::Key_S));
    connect(m_sidebarToggle, &QAction::triggered, this, &MainWindowView::setSidebarShown);
    auto *titles = new QWidget;
    auto *titleColumn = new QVBoxLayout(titles);
    titleColumn->setContentsMargins(8, 2, 8, 2);
    titleColumn->setSpacing(0);
    // The window's title bar carries the title; the toolbar says what the window holds.
    m_toolbarSubtitle = fontLabel(uiFont(12), localizedText("app.subtitle"));
    titleColumn->addWidget(m_toolbarSubtitle);
    toolbar->addWidget(titles);
    auto *spring = new QWidget;
    spring->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    hideFromAccessibility(spring);
    toolbar->addWidget(spring);
    auto *refresh = new QToolButton;
    refresh->setObjectName(QStringLiteral("refresh"));
    refresh->setText(localizedText("action.refresh"));
    refresh->setToolTip(localizedText("action.refresh_help"));
    refresh->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    refresh->setIcon(glyphIcon(Glyph::refresh, FixedColor::macBlue));
    connect(refresh, &QToolButton::clicked, this, &MainWindowView::refreshRequested);
    toolbar->addWidget(refresh);
    // A toolbar's buttons take no focus by default; these are the window's first stops for Tab.
    for (QWidget *button : {toolbar->widgetForAction(m_sidebarToggle), static_cast<QWidget *>(refresh)})
        button->setFocusPolicy(Qt::TabFocus);
}

QWidget *MainWindowView::buildDetail()
{
    m_scroll = new QScrollArea;
    m_scroll->setObjectName(QStringLiteral("detailScroll"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *page = new QWidget;
    auto *leading = new QHBoxLayout(page);
    leading->setContentsMargins(0, 0, 0, 0);
    leading->setSpacing(0);
    // The column fills the window up to a comfortable reading width, then keeps to the leading edge.
    auto *columnWidget = new QWidget;
    columnWidget->setObjectName(QStringLiteral("detailColumn"));
    columnWidget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    columnWidget->setMaximumWidth(880);
    leading->addWidget(columnWidget, 1);
    leading->addStretch(0);
    auto *column = new QVBoxLayout(columnWidget);
    column->setContentsMargins(kColumnMargin, kColumnMargin, kColumnMargin, kColumnMargin);
    column->setSpacing(kColumnMargin);

    const auto block = [&](MainSection section, std::initializer_list<QWidget *> content) {
        auto *box = new QWidget;
        box->setObjectName(QStringLiteral("block.") + QLatin1String(sectionTitleKey(section)));
        auto *layout = new QVBoxLayout(box);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(section == MainSection::overview ? 4 : 14);
        if (section != MainSection::overview) {
            m_headings.push_back(new SectionHeading(section));
            layout->addWidget(m_headings.back());
        }
        for (QWidget *widget : content)
            layout->addWidget(widget);
        m_blocks[section] = box;
        column->addWidget(box);
    };
    const auto named = [](QWidget *widget, const char *name) {
        widget->setObjectName(QLatin1String(name));
        return widget;
    };

    m_overviewTitle = fontLabel(uiFont(26, QFont::DemiBold));
    m_overviewSubtitle = fontLabel(uiFont(13));
    m_overviewSubtitle->setWordWrap(true);
    block(MainSection::overview, {m_overviewTitle, m_overviewSubtitle});

    m_meters = new MeterRow(MeterCard::Size::branded);
    m_meterCaption = fontLabel(uiFont(11));
    m_powerNotice = fontLabel(uiFont(11));
    m_powerNotice->setObjectName(QStringLiteral("powerNotice"));
    m_powerNotice->setWordWrap(true);
    m_powerNotice->hide();
    m_distribution = new DistributionPanel;
    m_chart = new ChartPanel;
    block(MainSection::power, {m_meters, m_meterCaption, m_powerNotice, named(m_distribution, "distribution"), named(m_chart, "historyPanel")});
    m_battery = new BatteryPanel;
    block(MainSection::battery, {named(m_battery, "batteryPanel")});
    m_cells = new CellsPanel;
    block(MainSection::cells, {named(m_cells, "cellsPanel")});
    m_historyCaption = fontLabel(uiFont(12));
    m_historyCaption->setObjectName(QStringLiteral("historyCaption"));
    m_historyCaption->setWordWrap(true);
    m_keepHistory = new QCheckBox(localizedText("history.keep"));
    m_keepHistory->setObjectName(QStringLiteral("keepHistory"));
    m_keepHistory->setChecked(m_historyEnabled);
    connect(m_keepHistory, &QCheckBox::clicked, this, &MainWindowView::historyEnabledToggled);
    m_energy = new EnergyChartPanel;
    m_sessions = new SessionsPanel;
    m_batteryHealth = new BatteryHealthPanel;
    block(MainSection::energy, {m_keepHistory, m_historyCaption, named(m_energy, "energyPanel"), named(m_sessions, "sessionsPanel"),
                                named(m_batteryHealth, "batteryHealthPanel")});
    m_applications = new ApplicationsPanel;
    m_applications->setHistoryEnabled(m_historyEnabled);
    connect(m_applications, &ApplicationsPanel::periodRequested, this, &MainWindowView::applicationsPeriodRequested);
    block(MainSection::applications, {named(m_applications, "applicationsPanel")});
    m_device = new DevicePanel;
    m_alerts = new AlertsPanel;
    connect(m_alerts, &AlertsPanel::settingsChanged, this, &MainWindowView::alertSettingsChanged);
    block(MainSection::history, {named(m_device, "devicePanel"), named(m_alerts, "alertsPanel")});

    // Room after the last section, so that every section can be scrolled to the top.
    m_endSpacer = new QWidget;
    m_endSpacer->setAttribute(Qt::WA_TransparentForMouseEvents);
    hideFromAccessibility(m_endSpacer);
    column->addWidget(m_endSpacer);
    column->addStretch();
    m_scroll->setWidget(page);

    m_footer = new ViewFooter(ViewFooter::Kind::window);
    m_footer->setObjectName(QStringLiteral("footer"));
    m_version = fontLabel(uiFont(10));
    m_version->setObjectName(QStringLiteral("version"));
    m_footer->addTrailing(m_version);

    auto *detail = new QWidget;
    auto *detailColumn = new QVBoxLayout(detail);
    detailColumn->setContentsMargins(0, 0, 0, 0);
    detailColumn->setSpacing(0);
    detailColumn->addWidget(m_scroll, 1);
    detailColumn->addWidget(m_footer);
    return detail;
}

void MainWindowView::setSnapshot(const PowerSnapshot &s)
{
    m_snapshot = s;
    m_sidebar->setSnapshot(s);
    m_overviewTitle->setText(localizedText(overviewTitleKey(s)));
    m_overviewSubtitle->setText(localizedText(overviewSubtitleKey(s)));
    m_meters->setSnapshot(s);
    m_meterCaption->setText(meterCaption(s));
    m_distribution->setSnapshot(s);
    m_battery->setSnapshot(s);
    m_cells->setSnapshot(s);
    m_device->setSnapshot(s);
    updateEndSpacer();
}

void MainWindowView::setHistory(const PowerHistory &history)
{
    historyChart()->setHistory(history);
}

void MainWindowView::setHistoryOverview(const HistoryOverview &overview, const QDate &today)
{
    m_historyOverview = overview;
    m_historyToday = today;
    showHistory();
}

void MainWindowView::setHistoryEnabled(bool enabled)
{
    m_historyEnabled = enabled;
    m_keepHistory->setChecked(enabled);
    m_applications->setHistoryEnabled(enabled);
    showHistory();
}

void MainWindowView::showHistory()
{
    m_historyCaption->setText(historyCaption(m_historyEnabled, m_historyOverview, QLocale()));
    const bool kept = historyState(m_historyEnabled, m_historyOverview) == HistoryState::kept;
    m_energy->setVisible(kept);
    m_sessions->setVisible(kept);
    if (kept) {
        m_energy->setOverview(m_historyOverview, m_historyToday);
        m_sessions->setSessions(m_historyOverview.recentSessions);
    }
    // A desktop keeps no battery days: no panel rather than an empty one.
    const bool batteries = m_batteryHealth->setBatteryDays(kept ? m_historyOverview.batteryDays : std::vector<BatteryDayRecord>{});
    m_batteryHealth->setVisible(kept && batteries);
    updateEndSpacer();
}

PowerHistoryChart *MainWindowView::historyChart() const
{
    return m_chart->chart();
}

void MainWindowView::setVersion(const QString &version)
{
    m_version->setText(localizedFormatText("app.version", {version}));
}

void MainWindowView::setPowerNotice(const QString &notice)
{
    m_powerNotice->setText(notice);
    m_powerNotice->setVisible(!notice.isEmpty());
    updateEndSpacer();
}

void MainWindowView::setAlertLine(const QString &line)
{
    m_sidebar->setAlertLine(line);
}

void MainWindowView::setAlertSettings(const AlertSettings &settings)
{
    m_alerts->setSettings(settings);
}

void MainWindowView::setNotificationNote(const QString &note)
{
    m_alerts->setNotificationNote(note);
    updateEndSpacer();
}

void MainWindowView::setApplications(AppPeriod period, const AppEnergyList &list)
{
    m_applications->setList(period, list);
}

AppPeriod MainWindowView::applicationsPeriod() const
{
    return m_applications->period();
}

void MainWindowView::setReduceMotion(bool reduceMotion)
{
    m_reduceMotion = reduceMotion;
    m_sidebar->setReduceMotion(reduceMotion);
}

void MainWindowView::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    applyPalette();
}

void MainWindowView::applyPalette()
{
    const FerrowPalette &p = m_palette;
    QPalette window = palette();
    window.setColor(QPalette::Window, p.windowBackground());
    window.setColor(QPalette::WindowText, p.primaryText());
    window.setColor(QPalette::Button, p.windowBackground());
    window.setColor(QPalette::ButtonText, p.primaryText());
    setPalette(window);
    QPalette divider = window;
    divider.setColor(QPalette::Window, p.separator());
    m_splitter->handle(1)->setPalette(divider);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_scroll->widget()->setAutoFillBackground(false);

    for (QLabel *l : {m_overviewSubtitle, m_meterCaption, m_powerNotice, m_version, m_toolbarSubtitle, m_historyCaption})
        setTextColor(l, p.secondaryText());
    m_sidebar->setFerrowPalette(p);
    for (SectionHeading *heading : m_headings)
        heading->setFerrowPalette(p);
    for (ReportPanel *panel : std::initializer_list<ReportPanel *>{m_distribution, m_chart, m_battery, m_cells, m_energy, m_sessions, m_batteryHealth, m_applications, m_device, m_alerts})
        panel->setFerrowPalette(p);
    m_footer->setFerrowPalette(p);
    m_meters->setFerrowPalette(p);
}

void MainWindowView::setSidebarShown(bool shown)
{
    const int total = m_splitter->width();
    m_splitter->setSizes(shown ? QList<int>{m_sidebarWidth, total - m_sidebarWidth} : QList<int>{0, total});
    m_sidebarToggle->setChecked(shown);
}

void MainWindowView::pickSection(MainSection section)
{
    setSelection(section, false);
    QScrollBar *bar = m_scroll->verticalScrollBar();
    const int target = std::clamp(m_blocks.at(section)->mapTo(m_scroll->widget(), QPoint(0, 0)).y() - kColumnMargin, bar->minimum(), bar->maximum());
    m_scrollAnimation.stop();
    m_scrollAnimation.setStartValue(bar->value());
    m_scrollAnimation.setEndValue(target);
    m_scrollAnimation.start();
}

void MainWindowView::setSelection(MainSection section, bool animated)
{
    m_selection = section;
    m_sidebar->setSelection(section, animated);
}

void MainWindowView::followScroll()
{
    if (m_scrollAnimation.state() == QAbstractAnimation::Running)
        return; // a picked section scrolls into place; the pick holds meanwhile
    std::map<MainSection, double> offsets;
    const int scrolled = m_scroll->verticalScrollBar()->value();
    for (const auto &[section, block] : m_blocks)
        offsets[section] = block->mapTo(m_scroll->widget(), QPoint(0, 0)).y() - scrolled;
    if (const std::optional<MainSection> followed = sectionFollowingScroll(offsets); followed && *followed != m_selection)
        setSelection(*followed, !m_reduceMotion);
}

void MainWindowView::updateEndSpacer()
{
    // Enough room under the last section for it to reach the top of the viewport.
    const int last = m_blocks.at(MainSection::history)->sizeHint().height();
    m_endSpacer->setFixedHeight(std::max(0, m_scroll->viewport()->height() - last - 2 * kColumnMargin));
}

bool MainWindowView::eventFilter(QObject *watched, QEvent *event)
{
    // The viewport's height and the last section's both set the room under it; the section's
    // changes when a panel relays out for a new reading.
    if ((watched == m_scroll->viewport() || watched == m_blocks.at(MainSection::history)) && event->type() == QEvent::Resize)
        updateEndSpacer();
    return QMainWindow::eventFilter(watched, event);
}

} // namespace ferrow

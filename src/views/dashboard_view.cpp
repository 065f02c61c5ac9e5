#include "views/dashboard_view.h"

#include "model/localized_text.h"
#include "views/battery_status_view.h"
#include "views/brand_links.h"
#include "views/dashboard_model.h"
#include "views/glyphs.h"
#include "views/meter_card.h"
#include "views/power_flow_view.h"
#include "views/view_painting.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

namespace ferrow {
namespace {

// Header: logo (a child link), title and subtitle, and the live/waiting status on the right.
class HeaderView : public SnapshotView {
public:
    HeaderView(const QString *subtitle, QWidget *parent) : SnapshotView(parent), m_subtitle(subtitle) { setFixedHeight(51); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const FerrowPalette &palette = ferrowPalette();
        const QRectF area = QRectF(rect()).adjusted(12, 0, -12, 0);
        const double textLeft = area.left() + 31 + 9;

        const StatusIndicator status = statusIndicator(snapshot());
        const QFont statusFont = uiFont(9);
        const double statusWidth = QFontMetricsF(statusFont).horizontalAdvance(status.text);
        const double statusLeft = area.right() - statusWidth;

        painter.setPen(palette.primaryText());
        drawFittedText(painter, QRectF(textLeft, area.center().y() - 15, statusLeft - textLeft - 20, 16), localizedText("FERROW"),
                       uiFont(12, QFont::DemiBold), 0.9, Qt::AlignLeft);
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(textLeft, area.center().y() + 1, statusLeft - textLeft - 20, 13), *m_subtitle, uiFont(9), 0.85,
                       Qt::AlignLeft);

        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.color(status.dotColor));
        painter.drawEllipse(QPointF(statusLeft - 8, area.center().y()), 3, 3);
        painter.setPen(palette.secondaryText());
        painter.setFont(statusFont);
        painter.drawText(QRectF(statusLeft, area.top(), statusWidth + 1, area.height()), Qt::AlignLeft | Qt::AlignVCenter, status.text);
        paintBottomSeparator(painter, QRectF(rect()), palette);
    }

private:
    const QString *m_subtitle;
};

// The caption under the meters, and the divider that closes the meter block.
class MeterCaptionView : public SnapshotView {
public:
    explicit MeterCaptionView(QWidget *parent) : SnapshotView(parent) { setFixedHeight(17); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(ferrowPalette().secondaryText());
        painter.setFont(uiFont(9, QFont::DemiBold));
        painter.drawText(QRectF(rect()), Qt::AlignCenter, meterCaption(snapshot()));
        paintBottomSeparator(painter, QRectF(rect()), ferrowPalette());
    }
};

// Four label/value rows on a card.
class TelemetryView : public SnapshotView {
public:
    explicit TelemetryView(QWidget *parent) : SnapshotView(parent) { setFixedHeight(118); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const FerrowPalette &palette = ferrowPalette();
        paintCardSurface(painter, QRectF(rect()), 10, palette);
        const QRectF inner = QRectF(rect()).adjusted(10, (height() - 4 * 25) / 2.0, -10, 0);
        double y = inner.top();
        for (const TelemetryRowModel &row : telemetryRows(snapshot())) {
            const QRectF line(inner.left(), y, inner.width(), 25);
            painter.setPen(palette.secondaryText());
            drawFittedText(painter, QRectF(line.left(), line.top(), line.width() * 0.45, line.height()), row.label, uiFont(9), 0.85,
                           Qt::AlignLeft);
            painter.setPen(palette.color(row.valueColor));
            drawFittedText(painter, QRectF(line.left() + line.width() * 0.45, line.top(), line.width() * 0.55, line.height()), row.value,
                           monospacedFont(10, QFont::Bold), 0.8, Qt::AlignRight);
            if (row.showsSeparator)
                paintBottomSeparator(painter, line, palette);
            y += 25;
        }
    }
};

// The row that opens the details window.
class DetailsButton : public QAbstractButton {
public:
    explicit DetailsButton(const FerrowPalette *palette, QWidget *parent) : QAbstractButton(parent), m_palette(palette)
    {
        setFixedHeight(38);
        setCursor(Qt::PointingHandCursor);
        setAccessibleName(localizedText("action.open_details"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const FerrowPalette &palette = *m_palette;
        painter.setOpacity(isEnabled() ? (isDown() ? 0.75 : 1.0) : 0.45);
        paintCardSurface(painter, QRectF(rect()), 8, palette);
        const QRectF inner = QRectF(rect()).adjusted(8, 0, -8, 0);

        const QRectF iconTile(inner.left(), inner.center().y() - 13, 27, 26);
        QColor tileColor = palette.accent();
        tileColor.setAlphaF(0.11f);
        QPainterPath tile;
        tile.addRoundedRect(iconTile, 5, 5);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(tile, tileColor);
        paintGlyph(painter, Glyph::listRectangle, iconTile.adjusted(5, 5, -5, -5), palette.accent());

        const double textLeft = iconTile.right() + 7;
        painter.setPen(palette.primaryText());
        drawFittedText(painter, QRectF(textLeft, inner.center().y() - 14, inner.right() - textLeft - 20, 14),
                       localizedText("action.open_details"), uiFont(10, QFont::DemiBold), 0.85, Qt::AlignLeft);
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(textLeft, inner.center().y(), inner.right() - textLeft - 20, 13),
                       localizedText("action.open_details_subtitle"), uiFont(9), 0.85, Qt::AlignLeft);
        paintGlyph(painter, Glyph::chevronRight, QRectF(inner.right() - 9, inner.center().y() - 5, 9, 10), palette.secondaryText());
    }

private:
    const FerrowPalette *m_palette;
};

// A hairline across the column, in the palette's separator colour.
class Divider : public QWidget {
public:
    explicit Divider(const FerrowPalette *palette) : m_palette(palette) { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintBottomSeparator(painter, QRectF(rect()), *m_palette);
    }

private:
    const FerrowPalette *m_palette;
};

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
    , m_subtitle(localizedText("app.menu_subtitle"))
{
    setObjectName(QStringLiteral("dashboard"));
    setFixedSize(kSize);

    m_header = new HeaderView(&m_subtitle, this);
    m_logo = new FerrowLogoLink(31, 7, m_header);
    m_logo->move(12, (51 - m_logo->height()) / 2);

    m_voltageMeter = new MeterCard(QStringLiteral("VBUS"), QStringLiteral("V"), FixedColor::meterInput);
    m_currentMeter = new MeterCard(QStringLiteral("IBUS"), QStringLiteral("A"), FixedColor::meterCurrent);
    m_powerMeter = new MeterCard(QStringLiteral("PWR"), QStringLiteral("W"), FixedColor::meterPower);
    auto *meters = new QWidget;
    auto *meterRow = new QHBoxLayout(meters);
    meterRow->setContentsMargins(8, 8, 8, 5);
    meterRow->setSpacing(6);
    for (MeterCard *meter : {m_voltageMeter, m_currentMeter, m_powerMeter})
        meterRow->addWidget(meter);
    m_meterCaption = new MeterCaptionView(this);

    m_flow = new PowerFlowView;
    m_flow->setObjectName(QStringLiteral("flow"));
    m_battery = new BatteryStatusView;
    m_battery->setObjectName(QStringLiteral("battery"));
    m_telemetry = new TelemetryView(this);
    m_telemetry->setObjectName(QStringLiteral("telemetry"));

    auto *details = new DetailsButton(&m_palette, this);
    details->setObjectName(QStringLiteral("details"));
    connect(details, &QAbstractButton::clicked, this, &DashboardView::detailsRequested);

    m_launchAtLogin = new QCheckBox(localizedText("setting.launch_at_login"));
    m_launchAtLogin->setObjectName(QStringLiteral("launchAtLogin"));
    m_showPower = new QCheckBox(localizedText("setting.menu_bar_power"));
    m_showPower->setObjectName(QStringLiteral("showPowerInMenuBar"));
    m_version = new QLabel;
    m_version->setObjectName(QStringLiteral("version"));
    m_launchAtLoginNote = new QPushButton;
    m_launchAtLoginNote->setObjectName(QStringLiteral("launchAtLoginNote"));
    m_launchAtLoginNote->setFlat(true);
    m_launchAtLoginNote->setCursor(Qt::PointingHandCursor);
    m_launchAtLoginNote->hide();
    connect(m_launchAtLoginNote, &QPushButton::clicked, this, &DashboardView::launchAtLoginNoteClicked);
    connect(m_launchAtLogin, &QCheckBox::toggled, this, &DashboardView::launchAtLoginToggled);
    connect(m_showPower, &QCheckBox::toggled, this, &DashboardView::showPowerInMenuBarToggled);
    auto *settings = new QWidget;
    settings->setFixedHeight(27);
    auto *settingsRow = new QHBoxLayout(settings);
    settingsRow->setContentsMargins(8, 0, 8, 0);
    settingsRow->setSpacing(11);
    settingsRow->addWidget(m_launchAtLogin);
    settingsRow->addWidget(m_showPower);
    settingsRow->addStretch();
    settingsRow->addWidget(m_version);

    m_website = new OfficialWebsiteLink;
    m_website->setObjectName(QStringLiteral("website"));
    m_launchAtLoginNote->setFixedHeight(m_website->sizeHint().height());

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(meters);
    column->addWidget(m_meterCaption);
    column->addWidget(m_flow);
    column->addWidget(new Divider(&m_palette));
    column->addWidget(padded(m_battery, 8, 8, 8, 8));
    column->addWidget(padded(m_telemetry, 8, 0, 8, 5));
    column->addWidget(padded(details, 8, 6, 8, 0));
    column->addWidget(settings);
    auto *footer = new QWidget;
    auto *footerColumn = new QVBoxLayout(footer);
    footerColumn->setContentsMargins(10, 6, 10, 0);
    footerColumn->setSpacing(0);
    footerColumn->addWidget(new Divider(&m_palette));
    footerColumn->addWidget(m_website);
    footerColumn->addWidget(m_launchAtLoginNote); // in the website's place while it shows
    column->addWidget(footer);
    column->addStretch();

    setVersion(absentText());
    setFerrowPalette(m_palette);
    setSnapshot(PowerSnapshot::empty());
}

void DashboardView::setSnapshot(const PowerSnapshot &s)
{
    for (SnapshotView *view : {m_header, m_meterCaption, static_cast<SnapshotView *>(m_flow), static_cast<SnapshotView *>(m_battery), m_telemetry})
        view->setSnapshot(s);
    m_voltageMeter->setValue(displayVoltageV(s));
    m_currentMeter->setValue(s.displayCurrentA());
    m_powerMeter->setValue(s.displayPowerW());
}

void DashboardView::setFerrowPalette(const FerrowPalette &palette)
{
    m_palette = palette;
    for (SnapshotView *view : {m_header, m_meterCaption, static_cast<SnapshotView *>(m_flow), static_cast<SnapshotView *>(m_battery), m_telemetry})
        view->setFerrowPalette(palette);
    m_website->setFerrowPalette(palette);
    applyPaletteToControls();
    update();
}

void DashboardView::applyPaletteToControls()
{
    QPalette controls = palette();
    controls.setColor(QPalette::WindowText, m_palette.secondaryText());
    controls.setColor(QPalette::Text, m_palette.primaryText());
    controls.setColor(QPalette::Base, m_palette.isDark() ? QColor(58, 58, 62) : QColor(255, 255, 255));
    controls.setColor(QPalette::Window, m_palette.panelBackground());
    controls.setColor(QPalette::Button, m_palette.panelBackground());
    controls.setColor(QPalette::Highlight, m_palette.accent());
    for (QCheckBox *box : {m_launchAtLogin, m_showPower}) {
        box->setPalette(controls);
        box->setFont(uiFont(9));
    }
    // A link-like line: no frame, the accent colour.
    m_launchAtLoginNote->setStyleSheet(QStringLiteral("QPushButton { border: none; padding: 0; text-align: center; color: %1; }")
                                           .arg(m_palette.accent().name()));
    m_launchAtLoginNote->setFont(uiFont(9));
    QPalette versionPalette = controls;
    versionPalette.setColor(QPalette::WindowText, m_palette.tertiaryText());
    m_version->setPalette(versionPalette);
    m_version->setFont(monospacedFont(8, QFont::Medium));
}

void DashboardView::setSubtitle(const QString &subtitle)
{
    m_subtitle = subtitle;
    m_header->update();
}

void DashboardView::setVersion(const QString &version)
{
    m_version->setText(u'v' + version);
    m_version->setAccessibleName(localizedFormatText("app.version", version));
}

void DashboardView::setLaunchAtLogin(bool enabled)
{
    const QSignalBlocker blocker(m_launchAtLogin);
    m_launchAtLogin->setChecked(enabled);
}

void DashboardView::setLaunchAtLoginNote(const QString &note)
{
    m_launchAtLoginNote->setText(note);
    m_launchAtLoginNote->setVisible(!note.isEmpty());
    m_website->setVisible(note.isEmpty());
}

void DashboardView::setPaintsBackground(bool paints)
{
    m_paintsBackground = paints;
    update();
}

void DashboardView::setShowPowerInMenuBar(bool shown)
{
    const QSignalBlocker blocker(m_showPower);
    m_showPower->setChecked(shown);
}

void DashboardView::setReduceMotion(bool reduceMotion)
{
    m_flow->setReduceMotion(reduceMotion);
    m_logo->setReduceMotion(reduceMotion);
}

void DashboardView::paintEvent(QPaintEvent *)
{
    if (!m_paintsBackground)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), m_palette.panelBackground());
}

} // namespace ferrow

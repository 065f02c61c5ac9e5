#include "views/main_window_view.h"

#include "model/localized_text.h"
#include "views/brand_links.h"
#include "views/dashboard_model.h"
#include "views/glyphs.h"
#include "views/meter_card.h"
#include "views/power_history_chart.h"
#include "views/snapshot_view.h"
#include "views/view_painting.h"

#include <QAbstractButton>
#include <QAction>
#include <QDateTime>
#include <QEasingCurve>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariantAnimation>

namespace ferrow {
namespace {

constexpr double kPanelPadding = 16;
constexpr double kPanelHeader = 18;
constexpr double kPanelSpacing = 14;
constexpr double kRowHeight = 24;
const QColor kSystemGreen(52, 199, 89);
const QColor kCellsAccent(52, 167, 126);

Glyph sectionGlyph(MainSection section)
{
    switch (section) {
    case MainSection::overview:
        return Glyph::gauge;
    case MainSection::power:
        return Glyph::bolt;
    case MainSection::battery:
        return Glyph::battery;
    case MainSection::cells:
        return Glyph::grid;
    case MainSection::history:
        return Glyph::info;
    }
    return Glyph::info;
}

QColor windowBackground(const FerrowPalette &palette)
{
    return palette.isDark() ? QColor(36, 36, 39) : QColor(246, 246, 248);
}

QColor sidebarBackground(const FerrowPalette &palette)
{
    return palette.isDark() ? QColor(44, 44, 48) : QColor(232, 232, 236);
}

// A panel's fill: a shade lighter than the window, as a material over it would be.
QColor panelGround(const FerrowPalette &palette)
{
    return palette.isDark() ? QColor(48, 48, 51) : QColor(253, 253, 254);
}

QIcon glyphIcon(Glyph glyph, const QColor &color)
{
    QPixmap pixmap(QSize(32, 32));
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintGlyph(painter, glyph, QRectF(2, 2, 28, 28), color);
    painter.end();
    return QIcon(pixmap);
}

QString cssColor(const QColor &color)
{
    return color.name(QColor::HexArgb);
}

// A panel's rounded ground and its header (glyph and title in the accent colour); returns where
// the content goes.
QRectF paintNativePanel(QPainter &painter, const QRectF &rect, const QString &title, Glyph glyph, const QColor &accent,
                        const FerrowPalette &palette)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(rect.adjusted(0.25, 0.25, -0.25, -0.25), 14, 14);
    painter.fillPath(shape, panelGround(palette));
    QColor outline = palette.separator();
    outline.setAlphaF(outline.alphaF() * 0.7f);
    painter.setPen(QPen(outline, 0.5));
    painter.drawPath(shape);
    painter.restore();

    const QRectF inner = rect.adjusted(kPanelPadding, kPanelPadding, -kPanelPadding, -kPanelPadding);
    paintGlyph(painter, glyph, QRectF(inner.left(), inner.top() + 1, 16, 16), accent);
    painter.setPen(accent);
    drawFittedText(painter, QRectF(inner.left() + 22, inner.top(), inner.width() - 22, kPanelHeader), title, uiFont(13, QFont::DemiBold), 0.85,
                   Qt::AlignLeft);
    return inner.adjusted(0, kPanelHeader + kPanelSpacing, 0, 0);
}

// With legibleTints, a value's tint is darkened or lightened as far as it takes to read on the panel.
double paintValueRows(QPainter &painter, double top, double left, double width, const std::vector<ValueRow> &rows,
                      const FerrowPalette &palette, bool legibleTints = false)
{
    for (const ValueRow &row : rows) {
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(left, top, width * 0.55, kRowHeight), row.label, uiFont(12), 0.85, Qt::AlignLeft);
        const QColor tint = palette.color(row.tint);
        painter.setPen(legibleTints ? readableOn(tint, panelGround(palette)) : tint);
        drawFittedText(painter, QRectF(left + width * 0.55, top, width * 0.45, kRowHeight), row.value, monospacedFont(12), 0.8, Qt::AlignRight);
        top += kRowHeight;
    }
    return top;
}

void paintUnavailable(QPainter &painter, const QRectF &rect, const QString &title, const QString &description, const FerrowPalette &palette)
{
    const double middle = rect.center().y();
    paintGlyph(painter, Glyph::battery, QRectF(rect.center().x() - 16, middle - 40, 32, 28), palette.secondaryText(), 0.0);
    painter.setPen(palette.primaryText());
    drawFittedText(painter, QRectF(rect.left(), middle - 6, rect.width(), 18), title, uiFont(13, QFont::DemiBold), 0.85, Qt::AlignHCenter);
    painter.setPen(palette.secondaryText());
    drawFittedText(painter, QRectF(rect.left(), middle + 14, rect.width(), 16), description, uiFont(12), 0.85, Qt::AlignHCenter);
}

void paintProgress(QPainter &painter, const QRectF &rect, double fraction, const QColor &tint, const FerrowPalette &palette)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.cardTint());
    painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    if (fraction > 0) {
        painter.setBrush(tint);
        painter.drawRoundedRect(QRectF(rect.left(), rect.top(), rect.width() * std::clamp(fraction, 0.0, 1.0), rect.height()), rect.height() / 2,
                                rect.height() / 2);
    }
    painter.restore();
}

// A section's heading: its glyph and title.
class SectionHeading : public SnapshotView {
public:
    SectionHeading(MainSection section, QWidget *parent = nullptr) : SnapshotView(parent), m_section(section)
    {
        setFixedHeight(30);
        setAccessibleName(localizedText(sectionTitleKey(section)));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintGlyph(painter, sectionGlyph(m_section), QRectF(0, 4, 22, 22), ferrowPalette().primaryText());
        painter.setPen(ferrowPalette().primaryText());
        drawFittedText(painter, QRectF(30, 0, width() - 30, 30), localizedText(sectionTitleKey(m_section)), uiFont(20, QFont::DemiBold), 0.8,
                       Qt::AlignLeft);
    }

private:
    MainSection m_section;
};

// A panel of the report: its ground and header, its height from its content, and the content
// itself, which each panel paints from the snapshot.
class NativePanel : public SnapshotView {
public:
    // Sizes the panel for the snapshot it shows.
    void fitToContent() { setFixedHeight(static_cast<int>(2 * kPanelPadding + kPanelHeader + kPanelSpacing + contentHeight())); }

protected:
    virtual QString title() const = 0;
    virtual Glyph glyph() const = 0;
    virtual QColor accent() const = 0;
    virtual double contentHeight() const = 0;
    virtual void paintContent(QPainter &painter, const QRectF &content) const = 0;

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintContent(painter, paintNativePanel(painter, QRectF(rect()), title(), glyph(), accent(), ferrowPalette()));
    }
};

class DistributionPanel : public NativePanel {
protected:
    QString title() const override { return localizedText("power.distribution"); }
    Glyph glyph() const override { return Glyph::nodes; }
    QColor accent() const override { return ferrowPalette().accent(); }
    double contentHeight() const override { return kRowHeight * distributionRows(snapshot()).size() + 30; }

    void paintContent(QPainter &painter, const QRectF &content) const override
    {
        const FerrowPalette &palette = ferrowPalette();
        // The battery's green or pink is this panel's own choice, so it has to read on a light panel too.
        const double y = paintValueRows(painter, content.top(), content.left(), content.width(), distributionRows(snapshot()), palette, true);
        painter.setPen(QPen(palette.separator(), 1));
        painter.drawLine(QPointF(content.left(), y + 5.5), QPointF(content.right(), y + 5.5));
        painter.setPen(palette.secondaryText());
        painter.setFont(uiFont(11));
        painter.drawText(QRectF(content.left(), y + 10, content.width(), 20), Qt::AlignLeft | Qt::AlignVCenter, distributionCaption(snapshot()));
        painter.drawText(QRectF(content.left(), y + 10, content.width(), 20), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("1 Hz"));
    }
};

// The history panel: its ground and header, with the chart as a child in its content area.
class ChartPanel : public SnapshotView {
public:
    explicit ChartPanel(PowerHistoryChart *chart)
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(int(kPanelPadding), int(kPanelPadding + kPanelHeader + kPanelSpacing), int(kPanelPadding), int(kPanelPadding));
        layout->addWidget(chart);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintNativePanel(painter, QRectF(rect()), localizedText("power_history.title"), Glyph::chart, ferrowPalette().accent(), ferrowPalette());
    }
};

class BatteryPanel : public NativePanel {
protected:
    QString title() const override { return localizedText("battery.title"); }
    Glyph glyph() const override { return Glyph::battery; }
    QColor accent() const override { return kSystemGreen; }
    double contentHeight() const override { return snapshot().hasBattery ? 60 + kRowHeight * 6 : 132; }

    void paintContent(QPainter &painter, const QRectF &content) const override
    {
        const FerrowPalette &palette = ferrowPalette();
        const PowerSnapshot &s = snapshot();
        if (!s.hasBattery) {
            paintUnavailable(painter, content, localizedText("battery.not_detected"), localizedText("battery.not_detected_description"), palette);
            return;
        }
        painter.setPen(palette.primaryText());
        painter.setFont(uiFont(28, QFont::DemiBold));
        painter.drawText(QRectF(content.left(), content.top(), content.width() / 2, 40), Qt::AlignLeft | Qt::AlignVCenter,
                         QStringLiteral("%1%").arg(s.batteryPercent));
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(content.center().x(), content.top(), content.width() / 2, 40), s.statusText(), uiFont(13), 0.85,
                       Qt::AlignRight);
        paintProgress(painter, QRectF(content.left(), content.top() + 44, content.width(), 6), s.batteryPercent / 100.0, kSystemGreen, palette);
        paintValueRows(painter, content.top() + 60, content.left(), content.width(), batteryRows(s), palette);
    }
};

class CellsPanel : public NativePanel {
protected:
    static constexpr double kTileHeight = 72;

    QString title() const override { return localizedText("cells.status"); }
    Glyph glyph() const override { return Glyph::grid; }
    QColor accent() const override { return kCellsAccent; }
    double contentHeight() const override
    {
        const PowerSnapshot &s = snapshot();
        if (s.cellVoltagesV.empty())
            return 110;
        const int columns = cellGridColumns(s.cellVoltagesV.size());
        const auto rows = static_cast<double>((s.cellVoltagesV.size() + columns - 1) / columns);
        return (s.cellVoltageSource ? 22 : 0) + rows * kTileHeight + (rows - 1) * 10;
    }

    void paintContent(QPainter &painter, const QRectF &content) const override
    {
        const FerrowPalette &palette = ferrowPalette();
        const PowerSnapshot &s = snapshot();
        if (s.cellVoltagesV.empty()) {
            if (s.hasBattery)
                paintUnavailable(painter, content, localizedText("cells.no_data"), localizedText("cells.no_data_description"), palette);
            else
                paintUnavailable(painter, content, localizedText("battery.not_detected"), localizedText("battery.not_detected_description"), palette);
            return;
        }
        double top = content.top();
        if (s.cellVoltageSource) {
            painter.setPen(palette.secondaryText());
            painter.setFont(uiFont(11));
            painter.drawText(QRectF(content.left(), top, content.width(), 16), Qt::AlignLeft | Qt::AlignVCenter,
                             localizedText(*s.cellVoltageSource == BatteryCellSource::smc ? "cells.source.smc" : "cells.source.registry"));
            top += 22;
        }
        const int columns = cellGridColumns(s.cellVoltagesV.size());
        const double tileWidth = (content.width() - 10 * (columns - 1)) / columns;
        painter.setRenderHint(QPainter::Antialiasing);
        for (std::size_t i = 0; i < s.cellVoltagesV.size(); ++i) {
            const QRectF tile(content.left() + static_cast<double>(i % columns) * (tileWidth + 10),
                              top + static_cast<double>(i / columns) * (kTileHeight + 10), tileWidth, kTileHeight);
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette.cardTint());
            painter.drawRoundedRect(tile, 10, 10);
            const QRectF inner = tile.adjusted(12, 8, -12, -10);
            painter.setPen(palette.secondaryText());
            painter.setFont(uiFont(11));
            painter.drawText(QRectF(inner.left(), inner.top(), inner.width(), 14), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("S%1").arg(i + 1));
            painter.setPen(palette.primaryText());
            drawFittedText(painter, QRectF(inner.left(), inner.top() + 16, inner.width(), 24), QString::asprintf("%.3f V", s.cellVoltagesV[i]),
                           uiFont(17, QFont::DemiBold), 0.75, Qt::AlignLeft);
            paintProgress(painter, QRectF(inner.left(), inner.bottom() - 5, inner.width(), 5), cellBarFraction(s.cellVoltagesV[i]), kSystemGreen,
                          palette);
        }
    }
};

class DevicePanel : public NativePanel {
protected:
    QString title() const override { return localizedText("device.title"); }
    Glyph glyph() const override { return Glyph::info; }
    QColor accent() const override { return ferrowPalette().accent(); }
    double contentHeight() const override { return kRowHeight * 12 + 32; }

    void paintContent(QPainter &painter, const QRectF &content) const override
    {
        const FerrowPalette &palette = ferrowPalette();
        const double y = paintValueRows(painter, content.top(), content.left(), content.width(), deviceRows(snapshot()), palette);
        painter.setPen(palette.primaryText());
        painter.setFont(uiFont(13, QFont::DemiBold));
        painter.drawText(QRectF(content.left(), y + 8, content.width(), 20), Qt::AlignLeft | Qt::AlignVCenter, localizedText("device.history"));
        paintValueRows(painter, y + 32, content.left(), content.width(), lifetimeRows(snapshot()), palette);
    }
};

// A sidebar row: the section's glyph and title, the selection behind it.
class SidebarRow : public QAbstractButton {
public:
    SidebarRow(MainSection section, const FerrowPalette *palette) : m_section(section), m_palette(palette)
    {
        setCheckable(true);
        setFixedHeight(30);
        setCursor(Qt::PointingHandCursor);
        setAccessibleName(localizedFormatText("accessibility.scroll_to", localizedText(sectionTitleKey(section))));
        m_fade.setDuration(160);
        m_fade.setEasingCurve(QEasingCurve::OutQuad);
        connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
            m_highlight = value.toDouble();
            update();
        });
    }

    // Puts the selection behind the row or takes it away, fading when animated.
    void setSelected(bool selected, bool animated)
    {
        setChecked(selected);
        m_fade.stop();
        const double target = selected ? 1.0 : 0.0;
        if (!animated || m_highlight == target) {
            m_highlight = target;
            update();
            return;
        }
        m_fade.setStartValue(m_highlight);
        m_fade.setEndValue(target);
        m_fade.start();
    }

protected:
    void nextCheckState() override {} // the window decides what is selected

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (m_highlight > 0) {
            QColor highlight = m_palette->accent();
            highlight.setAlphaF(static_cast<float>((m_palette->isDark() ? 0.26 : 0.15) * m_highlight));
            painter.setPen(Qt::NoPen);
            painter.setBrush(highlight);
            painter.drawRoundedRect(QRectF(rect()), 6, 6);
        }
        paintGlyph(painter, sectionGlyph(m_section), QRectF(8, 7, 16, 16), m_palette->accent());
        painter.setPen(m_palette->primaryText());
        drawFittedText(painter, QRectF(32, 0, width() - 40, height()), localizedText(sectionTitleKey(m_section)), uiFont(13), 0.85, Qt::AlignLeft);
    }

private:
    MainSection m_section;
    const FerrowPalette *m_palette;
    double m_highlight = 0; // 0 without the selection, 1 with it
    QVariantAnimation m_fade;
};

QLabel *label(const QFont &font, const QString &text = QString())
{
    auto *l = new QLabel(text);
    l->setFont(font);
    return l;
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
    m_toolbarTitle = label(uiFont(13, QFont::DemiBold), localizedText("window.device_details"));
    m_toolbarSubtitle = label(uiFont(11), localizedText("app.subtitle"));
    titleColumn->addWidget(m_toolbarTitle);
    titleColumn->addWidget(m_toolbarSubtitle);
    toolbar->addWidget(titles);
    auto *spring = new QWidget;
    spring->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    toolbar->addWidget(spring);
    auto *refresh = new QToolButton;
    refresh->setObjectName(QStringLiteral("refresh"));
    refresh->setText(localizedText("action.refresh"));
    refresh->setToolTip(localizedText("action.refresh_help"));
    refresh->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    refresh->setIcon(glyphIcon(Glyph::refresh, FixedColor::macBlue));
    connect(refresh, &QToolButton::clicked, this, &MainWindowView::refreshRequested);
    toolbar->addWidget(refresh);

    // The sidebar keeps its width as the window grows; the user may drag it within its bounds or
    // collapse it (by dragging or with the toolbar's toggle).
    m_splitter = new QSplitter(Qt::Horizontal);
    m_splitter->setObjectName(QStringLiteral("split"));
    m_splitter->setHandleWidth(1);
    m_splitter->addWidget(buildSidebar());
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
    m_scrollAnimation.setTargetObject(m_scroll->verticalScrollBar());
    m_scrollAnimation.setDuration(350);
    m_scrollAnimation.setEasingCurve(QEasingCurve::InOutQuad);
    connect(m_scroll->verticalScrollBar(), &QScrollBar::valueChanged, this, &MainWindowView::followScroll);
    connect(&m_scrollAnimation, &QPropertyAnimation::finished, this, &MainWindowView::followScroll);

    setSelection(MainSection::overview, false);
    setVersion(absentText());
    setSnapshot(m_snapshot);
    setFerrowPalette(m_palette);
}

QWidget *MainWindowView::buildSidebar()
{
    m_sidebar = new QWidget;
    m_sidebar->setObjectName(QStringLiteral("sidebar"));
    m_sidebar->setMinimumWidth(184);
    m_sidebar->setMaximumWidth(244);
    m_sidebar->setAutoFillBackground(true);
    auto *column = new QVBoxLayout(m_sidebar);
    column->setContentsMargins(8, 10, 8, 10);
    column->setSpacing(2);

    auto *brand = new QHBoxLayout;
    brand->setContentsMargins(6, 0, 6, 8);
    brand->setSpacing(10);
    m_logo = new FerrowLogoLink(34, 8);
    brand->addWidget(m_logo);
    auto *brandText = new QVBoxLayout;
    brandText->setSpacing(0);
    brandText->setAlignment(Qt::AlignVCenter);
    brandText->addWidget(label(uiFont(13, QFont::DemiBold), localizedText("FERROW")));
    m_sidebarStatus = label(uiFont(11));
    m_sidebarStatus->setObjectName(QStringLiteral("sidebarStatus"));
    m_sidebarStatus->setWordWrap(true); // a narrow sidebar takes a longer status on two lines
    brandText->addWidget(m_sidebarStatus);
    brand->addLayout(brandText, 1);
    column->addLayout(brand);

    const auto addHeader = [&](const char *key) {
        QLabel *header = label(uiFont(11, QFont::DemiBold), localizedText(key));
        header->setContentsMargins(8, 10, 8, 4);
        header->setProperty("role", QStringLiteral("sidebarHeader"));
        column->addWidget(header);
    };
    addHeader("sidebar.monitor");
    for (const MainSection section : kMainSections) {
        if (section == MainSection::history)
            addHeader("sidebar.system");
        auto *row = new SidebarRow(section, &m_palette);
        row->setObjectName(QStringLiteral("sidebar.") + QLatin1String(sectionTitleKey(section)));
        connect(row, &QAbstractButton::clicked, this, [this, section] { pickSection(section); });
        m_sidebarRows[section] = row;
        column->addWidget(row);
    }
    column->addStretch();
    m_updatedAt = label(uiFont(10));
    m_updatedAt->setObjectName(QStringLiteral("updatedAt"));
    m_updatedAt->setContentsMargins(8, 0, 8, 0);
    column->addWidget(m_updatedAt);
    return m_sidebar;
}

QWidget *MainWindowView::buildDetail()
{
    auto *detail = new QWidget;
    auto *detailColumn = new QVBoxLayout(detail);
    detailColumn->setContentsMargins(0, 0, 0, 0);
    detailColumn->setSpacing(0);

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
    m_detailContent = new QWidget;
    m_detailContent->setObjectName(QStringLiteral("detailColumn"));
    m_detailContent->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_detailContent->setMaximumWidth(880);
    leading->addWidget(m_detailContent, 1);
    leading->addStretch(0);
    auto *column = new QVBoxLayout(m_detailContent);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(24);

    const auto block = [&](MainSection section) {
        auto *box = new QWidget;
        box->setObjectName(QStringLiteral("block.") + QLatin1String(sectionTitleKey(section)));
        auto *layout = new QVBoxLayout(box);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(14);
        if (section != MainSection::overview) {
            auto *heading = new SectionHeading(section);
            m_paletteViews.push_back(heading);
            layout->addWidget(heading);
        }
        m_blocks[section] = box;
        column->addWidget(box);
        return layout;
    };
    const auto panel = [&](QVBoxLayout *layout, SnapshotView *view, const char *name) {
        view->setObjectName(QLatin1String(name));
        m_paletteViews.push_back(view);
        layout->addWidget(view);
    };

    QVBoxLayout *overview = block(MainSection::overview);
    m_overviewTitle = label(uiFont(26, QFont::DemiBold));
    m_overviewSubtitle = label(uiFont(13));
    m_overviewSubtitle->setWordWrap(true);
    overview->setSpacing(4);
    overview->addWidget(m_overviewTitle);
    overview->addWidget(m_overviewSubtitle);

    QVBoxLayout *power = block(MainSection::power);
    auto *meterRow = new QHBoxLayout;
    meterRow->setSpacing(12);
    for (const auto &[code, unit, color] : {std::tuple{"VBUS", "V", FixedColor::meterInput}, std::tuple{"IBUS", "A", FixedColor::meterCurrent},
                                            std::tuple{"PWR", "W", FixedColor::meterPower}}) {
        auto *meter = new MeterCard(QLatin1String(code), QLatin1String(unit), color, MeterCard::Size::branded);
        m_meters.push_back(meter);
        meterRow->addWidget(meter);
    }
    power->addLayout(meterRow);
    m_meterCaption = label(uiFont(11));
    power->addWidget(m_meterCaption);
    m_powerNotice = label(uiFont(11));
    m_powerNotice->setObjectName(QStringLiteral("powerNotice"));
    m_powerNotice->setWordWrap(true);
    m_powerNotice->hide();
    power->addWidget(m_powerNotice);
    panel(power, new DistributionPanel, "distribution");
    m_chart = new PowerHistoryChart;
    panel(power, new ChartPanel(m_chart), "historyPanel");

    panel(block(MainSection::battery), new BatteryPanel, "batteryPanel");
    panel(block(MainSection::cells), new CellsPanel, "cellsPanel");
    panel(block(MainSection::history), new DevicePanel, "devicePanel");

    // Room after the last section, so that every section can be scrolled to the top.
    m_endSpacer = new QWidget;
    m_endSpacer->setAttribute(Qt::WA_TransparentForMouseEvents);
    column->addWidget(m_endSpacer);
    column->addStretch();
    m_scroll->setWidget(page);
    detailColumn->addWidget(m_scroll, 1);

    m_footerDivider = new QWidget;
    m_footerDivider->setObjectName(QStringLiteral("footerDivider"));
    m_footerDivider->setFixedHeight(1);
    m_footerDivider->setAutoFillBackground(true);
    detailColumn->addWidget(m_footerDivider);
    auto *footer = new QWidget;
    footer->setObjectName(QStringLiteral("footer"));
    auto *footerRow = new QHBoxLayout(footer);
    footerRow->setContentsMargins(24, 10, 24, 10);
    m_website = new OfficialWebsiteLink(Qt::AlignLeading);
    m_website->setObjectName(QStringLiteral("website"));
    m_website->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    footerRow->addWidget(m_website, 1);
    footerRow->addStretch(1);
    m_version = label(uiFont(10));
    m_version->setObjectName(QStringLiteral("version"));
    footerRow->addWidget(m_version);
    detailColumn->addWidget(footer);
    return detail;
}

void MainWindowView::setSnapshot(const PowerSnapshot &s)
{
    m_snapshot = s;
    for (QWidget *view : m_paletteViews)
        static_cast<SnapshotView *>(view)->setSnapshot(s);
    for (QWidget *view : m_paletteViews) {
        if (auto *panel = dynamic_cast<NativePanel *>(view))
            panel->fitToContent();
    }

    m_sidebarStatus->setText(s.statusText());
    const QTime time = QDateTime::fromMSecsSinceEpoch(std::chrono::duration_cast<std::chrono::milliseconds>(s.updatedAt.time_since_epoch()).count())
                           .time();
    m_updatedAt->setText(localizedFormatText("sidebar.updated_at", timeOfDayText(time, QLocale())));
    m_overviewTitle->setText(localizedText(overviewTitleKey(s)));
    m_overviewSubtitle->setText(localizedText(overviewSubtitleKey(s)));
    m_meters[0]->setValue(displayVoltageV(s));
    m_meters[1]->setValue(s.displayCurrentA());
    m_meters[2]->setValue(s.displayPowerW());
    m_meterCaption->setText(meterCaption(s));
    updateEndSpacer();
}

void MainWindowView::setHistory(const PowerHistory &history)
{
    m_chart->setHistory(history);
}

void MainWindowView::setVersion(const QString &version)
{
    m_version->setText(localizedFormatText("app.version", version));
}

void MainWindowView::setPowerNotice(const QString &notice)
{
    m_powerNotice->setText(notice);
    m_powerNotice->setVisible(!notice.isEmpty());
    updateEndSpacer();
}

void MainWindowView::setReduceMotion(bool reduceMotion)
{
    m_reduceMotion = reduceMotion;
    m_logo->setReduceMotion(reduceMotion);
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
    window.setColor(QPalette::Window, windowBackground(p));
    window.setColor(QPalette::WindowText, p.primaryText());
    window.setColor(QPalette::Button, windowBackground(p));
    window.setColor(QPalette::ButtonText, p.primaryText());
    setPalette(window);
    QPalette sidebar = window;
    sidebar.setColor(QPalette::Window, sidebarBackground(p));
    m_sidebar->setPalette(sidebar);
    QPalette divider = window;
    divider.setColor(QPalette::Window, p.separator());
    m_footerDivider->setPalette(divider);
    m_splitter->handle(1)->setPalette(divider);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_scroll->widget()->setAutoFillBackground(false);

    const auto colour = [](QLabel *l, const QColor &c) { l->setStyleSheet(QStringLiteral("color: %1").arg(cssColor(c))); };
    for (QLabel *l : {m_sidebarStatus, m_overviewSubtitle, m_meterCaption, m_powerNotice, m_version, m_toolbarSubtitle})
        colour(l, p.secondaryText());
    colour(m_updatedAt, p.tertiaryText());
    for (QLabel *l : m_sidebar->findChildren<QLabel *>()) {
        // The headers' grey is ours to choose, so it is one that reads on the sidebar.
        if (l->property("role").toString() == u"sidebarHeader")
            colour(l, readableOn(p.secondaryText(), sidebarBackground(p)));
    }
    for (QWidget *view : m_paletteViews)
        static_cast<SnapshotView *>(view)->setFerrowPalette(p);
    m_chart->setFerrowPalette(p);
    m_website->setFerrowPalette(p);
    for (auto &[section, row] : m_sidebarRows)
        row->update();
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
    const int target = std::clamp(m_blocks.at(section)->mapTo(m_scroll->widget(), QPoint(0, 0)).y() - 24, bar->minimum(), bar->maximum());
    m_scrollAnimation.stop();
    m_scrollAnimation.setStartValue(bar->value());
    m_scrollAnimation.setEndValue(target);
    m_scrollAnimation.start();
}

void MainWindowView::setSelection(MainSection section, bool animated)
{
    m_selection = section;
    for (auto &[rowSection, row] : m_sidebarRows)
        static_cast<SidebarRow *>(row)->setSelected(rowSection == section, animated);
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
    m_endSpacer->setFixedHeight(std::max(0, m_scroll->viewport()->height() - last - 2 * 24));
}

bool MainWindowView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_scroll->viewport() && event->type() == QEvent::Resize)
        updateEndSpacer();
    return QMainWindow::eventFilter(watched, event);
}

} // namespace ferrow

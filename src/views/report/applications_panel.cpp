#include "views/report/applications_panel.h"

#include "model/localized_text.h"
#include "views/accessible_content.h"
#include "views/ferrow_button.h"
#include "views/history_model.h"
#include "views/view_painting.h"

#include <QButtonGroup>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

constexpr int kRowHeight = 30;
constexpr int kHeaderHeight = 24;
constexpr double kFootGap = 8; // sets the lines that sum up the rest apart from the ranked ones
constexpr double kIconSide = 18;
constexpr double kNameLeft = 28;
constexpr double kColumnGap = 20;
constexpr double kAmountWidth = 92;
constexpr double kPowerWidth = 96;
constexpr double kShareWidth = 150;
constexpr double kBarWidth = 92;
constexpr double kButtonInset = 4; // a sort button reaches past its column by its focus ring

struct Span {
    double left = 0;
    double right = 0;
    double width() const { return right - left; }
};

// Where each column lies across a line: the headings and the lines share them.
struct Columns {
    Span name, amount, power, share;
};

Columns columnsFor(double width, bool energy)
{
    Columns c;
    c.share = {width - kShareWidth, width};
    const double powerRight = c.share.left - kColumnGap;
    c.power = energy ? Span{powerRight - kPowerWidth, powerRight} : Span{powerRight, powerRight};
    const double amountRight = energy ? c.power.left - kColumnGap : powerRight;
    c.amount = {amountRight - kAmountWidth, amountRight};
    c.name = {kNameLeft, c.amount.left - 12};
    return c;
}

bool isFoot(const AppRow &row)
{
    return row.pinned || row.kind == AppEnergy::Kind::others || row.kind == AppEnergy::Kind::rest;
}

// A column heading that sorts the list by its column: its title against the column's trailing
// edge, over the figures, the chosen one marked.
class SortButton : public FerrowButton {
public:
    SortButton(const char *titleKey, const char *actionKey)
        : m_title(localizedText(titleKey))
    {
        setCheckable(true);
        setAutoExclusive(true); // one column always sorts
        setFixedHeight(kHeaderHeight - 2);
        setAccessibleName(localizedText(actionKey));
    }

    void setFerrowPalette(const FerrowPalette &palette)
    {
        m_palette = palette;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRectF area = QRectF(rect()).adjusted(kButtonInset, 0, -kButtonInset, 0);
        const QFont font = uiFont(11, isChecked() ? QFont::DemiBold : QFont::Normal);
        painter.setPen(isChecked() ? m_palette.primaryText() : m_palette.secondaryText());
        drawFittedText(painter, area.adjusted(12, 0, 0, 0), m_title, font, 0.8, Qt::AlignRight);
        if (isChecked()) {
            // The mark points down, most first, just before the title.
            const double titleW = std::min(QFontMetricsF(painter.font()).horizontalAdvance(m_title), area.width() - 12);
            painter.save();
            painter.translate(area.right() - titleW - 7, area.center().y());
            painter.rotate(90);
            paintGlyph(painter, Glyph::chevronRight, QRectF(-4, -4, 8, 8), m_palette.accent());
            painter.restore();
        }
        paintFocusRing(painter, QRectF(rect()), 5, m_palette, m_palette.reportPanelBackground());
    }

private:
    QString m_title;
    FerrowPalette m_palette;
};

} // namespace

// The columns' headings; energy and mean power sort the list.
class ApplicationsPanel::Header : public QWidget, public AccessibleContent {
public:
    explicit Header(ApplicationsPanel *panel)
        : m_panel(panel)
        , m_byEnergy(new SortButton("apps.column_energy", "apps.sort_by_energy"))
        , m_byPower(new SortButton("apps.column_mean_power", "apps.sort_by_mean_power"))
    {
        setFixedHeight(kHeaderHeight);
        m_byEnergy->setObjectName(QStringLiteral("sortByEnergy"));
        m_byPower->setObjectName(QStringLiteral("sortByMeanPower"));
        for (SortButton *button : {m_byEnergy, m_byPower})
            button->setParent(this);
        connect(m_byEnergy, &QAbstractButton::clicked, panel, [panel] { panel->setSort(AppSort::energy); });
        connect(m_byPower, &QAbstractButton::clicked, panel, [panel] { panel->setSort(AppSort::meanPower); });
    }

    void setColumns(bool energy, AppSort sort)
    {
        m_energy = energy;
        m_byEnergy->setVisible(energy);
        m_byPower->setVisible(energy);
        (sort == AppSort::energy ? m_byEnergy : m_byPower)->setChecked(true);
        place();
        update();
    }

    void setFerrowPalette(const FerrowPalette &palette)
    {
        m_byEnergy->setFerrowPalette(palette);
        m_byPower->setFerrowPalette(palette);
        update();
    }

    std::vector<AccessibleItem> accessibleParts() const override
    {
        std::vector<AccessibleItem> parts = {{QAccessible::ColumnHeader, localizedText("apps.column_application"), {}}};
        if (!m_energy)
            parts.push_back({QAccessible::ColumnHeader, localizedText("apps.column_cpu_time"), {}});
        parts.push_back({QAccessible::ColumnHeader, localizedText(m_energy ? "apps.column_share" : "apps.column_cpu_share"), {}});
        return parts;
    }

protected:
    void resizeEvent(QResizeEvent *) override { place(); }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const FerrowPalette &palette = m_panel->m_palette;
        painter.translate(contentsRect().topLeft());
        const Columns c = columnsFor(contentsRect().width(), m_energy);
        painter.setPen(palette.secondaryText());
        const QFont font = uiFont(11);
        drawFittedText(painter, QRectF(c.name.left, 0, c.name.width(), kHeaderHeight), localizedText("apps.column_application"), font, 0.8,
                       Qt::AlignLeft);
        if (!m_energy)
            drawFittedText(painter, QRectF(c.amount.left, 0, c.amount.width(), kHeaderHeight), localizedText("apps.column_cpu_time"), font, 0.8,
                           Qt::AlignRight);
        drawFittedText(painter, QRectF(c.share.left, 0, c.share.width(), kHeaderHeight),
                       localizedText(m_energy ? "apps.column_share" : "apps.column_cpu_share"), font, 0.8, Qt::AlignLeft);
        paintBottomSeparator(painter, QRectF(0, 0, contentsRect().width(), kHeaderHeight), palette);
    }

private:
    void place()
    {
        const Columns c = columnsFor(contentsRect().width(), m_energy);
        // A title may reach over the gap before its column: the figures under it keep to the trailing edge.
        const auto at = [&](QWidget *button, const Span &column) {
            const double left = column.left - kColumnGap / 2;
            button->setGeometry(QRectF(contentsRect().left() + left - kButtonInset, 0, column.right - left + 2 * kButtonInset, kHeaderHeight - 2)
                                    .toRect());
        };
        at(m_byEnergy, c.amount);
        at(m_byPower, c.power);
    }

    ApplicationsPanel *m_panel;
    SortButton *m_byEnergy;
    SortButton *m_byPower;
    bool m_energy = true;
};

// The lines, painted: icon, name, energy, mean power and share; the lines that sum up the rest
// apart at the foot.
class ApplicationsPanel::Rows : public QWidget, public AccessibleContent {
public:
    explicit Rows(ApplicationsPanel *panel)
        : m_panel(panel)
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    void setRows(std::vector<AppRow> rows, bool energy)
    {
        m_rows = std::move(rows);
        m_energy = energy;
        m_tops.clear();
        double top = 0;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (i > 0 && isFoot(m_rows[i]) && !isFoot(m_rows[i - 1]))
                top += kFootGap;
            m_tops.push_back(top);
            top += kRowHeight;
        }
        setFixedHeight(static_cast<int>(std::ceil(top)));
        update();
    }

    std::vector<AccessibleItem> accessibleParts() const override
    {
        std::vector<AccessibleItem> parts;
        for (std::size_t i = 0; i < m_rows.size(); ++i)
            parts.push_back({QAccessible::StaticText, spokenAppRow(m_rows[i], true, m_energy),
                             QRect(0, static_cast<int>(m_tops[i]), width(), kRowHeight)});
        return parts;
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const FerrowPalette &palette = m_panel->m_palette;
        painter.translate(contentsRect().topLeft());
        const double width = contentsRect().width();
        const Columns c = columnsFor(width, m_energy);
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const AppRow &row = m_rows[i];
            const double top = m_tops[i];
            const double middle = top + kRowHeight / 2.0;
            paintAppIcon(painter, QRectF(0, std::round(middle - kIconSide / 2), kIconSide, kIconSide), row, m_panel->m_icons, palette);
            paintName(painter, QRectF(c.name.left, top, c.name.width(), kRowHeight), row, palette);
            paintAppAmount(painter, QRectF(c.amount.left, top, c.amount.width(), kRowHeight), row, monospacedFont(12), palette);
            if (m_energy) {
                painter.setPen(palette.secondaryText());
                drawFittedText(painter, QRectF(c.power.left, top, c.power.width(), kRowHeight), row.meanPower, monospacedFont(12), 0.8,
                               Qt::AlignRight);
            }
            const bool summed = row.kind == AppEnergy::Kind::others || row.kind == AppEnergy::Kind::rest;
            paintProgress(painter, QRectF(c.share.left, middle - 3, kBarWidth, 6), row.shareFraction,
                          summed ? palette.secondaryText() : palette.accent(), palette);
            painter.setPen(palette.secondaryText());
            drawFittedText(painter, QRectF(c.share.left + kBarWidth + 6, top, c.share.width() - kBarWidth - 6, kRowHeight), row.share,
                           monospacedFont(11), 0.8, Qt::AlignRight);
            if (i + 1 < m_rows.size() && m_tops[i + 1] == top + kRowHeight) // a gap parts the foot without a rule
                paintBottomSeparator(painter, QRectF(0, top, width, kRowHeight), palette);
        }
    }

private:
    // The name, and after it in the lighter grey what its figures cover where that is less.
    static void paintName(QPainter &painter, const QRectF &rect, const AppRow &row, const FerrowPalette &palette)
    {
        const QFont font = uiFont(12);
        double nameW = rect.width();
        if (!row.note.isEmpty())
            nameW = std::min(QFontMetricsF(font).horizontalAdvance(row.name) + 1, rect.width() * 0.6);
        painter.setPen(palette.primaryText());
        drawFittedText(painter, QRectF(rect.left(), rect.top(), nameW, rect.height()), row.name, font, 0.85, Qt::AlignLeft);
        if (row.note.isEmpty())
            return;
        painter.setPen(palette.secondaryText());
        drawFittedText(painter, QRectF(rect.left() + nameW, rect.top(), rect.width() - nameW, rect.height()),
                       QStringLiteral(" \u00B7 ") + row.note, uiFont(11), 0.85, Qt::AlignLeft);
    }

    ApplicationsPanel *m_panel;
    std::vector<AppRow> m_rows;
    std::vector<double> m_tops;
    bool m_energy = true;
};

ApplicationsPanel::ApplicationsPanel(QWidget *parent)
    : ReportPanel("apps.panel_title", Glyph::apps, std::nullopt, parent)
    , m_periods(new QButtonGroup(this))
    , m_covered(fontLabel(uiFont(12)))
    , m_header(new Header(this))
    , m_rows(new Rows(this))
    , m_note(fontLabel(uiFont(12)))
    , m_caption(fontLabel(uiFont(11)))
    , m_legend(fontLabel(uiFont(11)))
{
    auto *picker = new QWidget;
    picker->setObjectName(QStringLiteral("periodPicker"));
    picker->setFixedWidth(320);
    picker->setAccessibleName(localizedText("apps.period"));
    auto *pickerRow = new QHBoxLayout(picker);
    pickerRow->setContentsMargins(2, 2, 2, 2);
    pickerRow->setSpacing(2);
    for (const AppPeriod period : kAppPeriods) {
        auto *choice = new QToolButton;
        choice->setCheckable(true);
        choice->setChecked(period == m_period);
        choice->setText(localizedText(appPeriodKey(period)));
        choice->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_periods->addButton(choice, static_cast<int>(period));
        pickerRow->addWidget(choice);
    }
    connect(m_periods, &QButtonGroup::idClicked, this, [this](int id) { pickPeriod(static_cast<AppPeriod>(id)); });
    auto *top = new QWidget;
    auto *topRow = new QHBoxLayout(top);
    topRow->setContentsMargins(0, 0, 0, 8);
    m_covered->setObjectName(QStringLiteral("appsCovered"));
    readWhenAsked(m_covered); // its figure grows with the session
    topRow->addWidget(m_covered);
    topRow->addStretch();
    topRow->addWidget(picker);

    m_rows->setObjectName(QStringLiteral("appsRows"));
    m_note->setObjectName(QStringLiteral("appsNote"));
    m_note->setWordWrap(true);
    m_caption->setObjectName(QStringLiteral("appsMethod"));
    m_caption->setWordWrap(true);
    m_legend->setObjectName(QStringLiteral("appsEstimatedLegend"));
    m_legend->setWordWrap(true);
    m_legend->setText(localizedFormatText("apps.estimated_legend", {QString::fromUtf16(kEstimatedMark)}));
    addContent(top);
    addContent(m_header);
    addContent(m_rows);
    addContent(m_note);
    addContent(m_caption);
    addContent(m_legend);
    m_note->setContentsMargins(m_note->contentsMargins() + QMargins(0, 6, 0, 6));
    m_caption->setContentsMargins(m_caption->contentsMargins() + QMargins(0, 10, 0, 0));
    showList();
    setFerrowPalette(m_palette);
}

void ApplicationsPanel::setList(AppPeriod period, const AppEnergyList &list)
{
    if (period != m_period)
        return; // an answer to a period the user has since left
    m_list = list;
    showList();
}

void ApplicationsPanel::setHistoryEnabled(bool enabled)
{
    m_historyEnabled = enabled;
    showList();
}

void ApplicationsPanel::pickPeriod(AppPeriod period)
{
    if (period == m_period)
        return;
    m_period = period;
    m_list.reset();
    showList();
    emit periodRequested(period);
}

void ApplicationsPanel::setSort(AppSort sort)
{
    m_sort = sort;
    showList();
}

void ApplicationsPanel::showList()
{
    const AppEnergyList list = m_list.value_or(AppEnergyList{});
    const AppListState state = appListState(m_period, m_historyEnabled, list);
    const bool shown = m_list && state == AppListState::shown;
    const bool energy = listsEnergy(list);
    std::vector<AppRow> rows = shown ? appRows(list, m_sort) : std::vector<AppRow>{};
    const bool marked = std::any_of(rows.begin(), rows.end(), [](const AppRow &row) { return row.estimated; });
    m_header->setColumns(energy, m_sort);
    m_rows->setRows(std::move(rows), energy);
    for (QWidget *piece : {static_cast<QWidget *>(m_header), static_cast<QWidget *>(m_rows), static_cast<QWidget *>(m_caption)})
        piece->setVisible(shown);
    m_legend->setVisible(shown && marked);
    m_note->setVisible(!shown);
    m_note->setText(localizedText(!m_list ? "apps.reading" : state == AppListState::historyOff ? "apps.history_off" : "apps.none"));
    m_caption->setText(attributionCaption(list.method));
    m_covered->setText(shown && list.coveredS >= 60 ? localizedFormatText("apps.covered", {sessionDurationText(std::llround(list.coveredS))})
                                                      : QString());
    m_covered->setVisible(!m_covered->text().isEmpty()); // an empty label would be read as a nameless one
}

void ApplicationsPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    m_palette = palette;
    styleSegmentedPicker(*findChild<QWidget *>(QStringLiteral("periodPicker")), m_periods->buttons(), palette, palette.reportPanelBackground());
    for (QLabel *label : {m_covered, m_note, m_caption, m_legend})
        setTextColor(label, palette.secondaryText());
    m_header->setFerrowPalette(palette);
    m_rows->update();
}

} // namespace ferrow

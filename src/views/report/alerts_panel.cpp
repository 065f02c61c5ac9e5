#include "views/report/alerts_panel.h"

#include "alerts/alert_gate.h"
#include "alerts/alert_text.h"
#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace ferrow {
namespace {

constexpr int kThresholdIndent = 22; // under the check box's text, past its box

struct Switch {
    AlertKind kind;
    bool AlertSettings::*member;
    const char *name;
};

constexpr Switch kSwitches[] = {
    {AlertKind::chargerCannotKeepUp, &AlertSettings::chargerCannotKeepUp, "alertChargerCannotKeepUp"},
    {AlertKind::chargingSlowly, &AlertSettings::chargingSlowly, "alertChargingSlowly"},
    {AlertKind::batteryHot, &AlertSettings::batteryHot, "alertBatteryHot"},
    {AlertKind::cellsOutOfBalance, &AlertSettings::cellsOutOfBalance, "alertCellsOutOfBalance"},
    {AlertKind::chargeLevelReached, &AlertSettings::chargeLevelReached, "alertChargeLevelReached"},
};

QDoubleSpinBox *temperatureBox(const char *name)
{
    auto *box = new QDoubleSpinBox;
    box->setObjectName(QLatin1String(name));
    box->setRange(kBatteryHotRangeC.lowest, kBatteryHotRangeC.highest);
    box->setDecimals(1);
    box->setSingleStep(0.5);
    box->setSuffix(QStringLiteral(" \u00B0C"));
    box->setKeyboardTracking(false); // a typed figure counts once it is whole
    return box;
}

QWidget *row(int indent, std::initializer_list<QWidget *> pieces)
{
    auto *line = new QWidget;
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(indent, 3, 0, 3);
    layout->setSpacing(8);
    for (QWidget *piece : pieces)
        layout->addWidget(piece);
    layout->addStretch();
    return line;
}

} // namespace

AlertsPanel::AlertsPanel(QWidget *parent)
    : ReportPanel("alerts.title", Glyph::gauge, std::nullopt, parent)
    , m_caption(fontLabel(uiFont(12)))
    , m_hotWhileCharging(temperatureBox("alertHotWhileCharging"))
    , m_hot(temperatureBox("alertHot"))
    , m_chargeLevel(new QSpinBox)
    , m_note(fontLabel(uiFont(12)))
{
    m_caption->setText(localizedCount("alerts.caption", std::llround(AlertGate::kRepeatS / 60)));
    m_caption->setWordWrap(true);
    addContent(m_caption);
    m_caption->setContentsMargins(m_caption->contentsMargins() + QMargins(0, 0, 0, 6));

    m_chargeLevel->setObjectName(QStringLiteral("alertChargeLevel"));
    m_chargeLevel->setRange(static_cast<int>(kChargeLevelRangePercent.lowest), static_cast<int>(kChargeLevelRangePercent.highest));
    m_chargeLevel->setSuffix(QStringLiteral("%"));
    m_chargeLevel->setKeyboardTracking(false);

    std::vector<QLabel *> thresholdLabels;
    const auto threshold = [&](const char *key, QDoubleSpinBox *box) {
        auto *label = thresholdLabels.emplace_back(new QLabel(localizedText(key)));
        label->setBuddy(box);
        box->setAccessibleName(label->text());
        addContent(row(kThresholdIndent, {label, box}));
    };
    for (const Switch &s : kSwitches) {
        auto *box = new QCheckBox(alertTitle(s.kind));
        box->setObjectName(QLatin1String(s.name));
        connect(box, &QCheckBox::toggled, this, &AlertsPanel::tellChange);
        m_switches.emplace_back(box, s.member);
        if (s.kind == AlertKind::chargeLevelReached) {
            m_chargeLevel->setAccessibleName(box->text());
            addContent(row(0, {box, m_chargeLevel}));
        } else {
            addContent(row(0, {box}));
        }
        if (s.kind == AlertKind::batteryHot) {
            threshold("alerts.hot_while_charging", m_hotWhileCharging);
            threshold("alerts.hot_any_time", m_hot);
        }
    }
    // The two figures line up, whatever the language's words before them.
    int labelW = 0;
    for (const QLabel *label : thresholdLabels)
        labelW = std::max(labelW, label->sizeHint().width());
    for (QLabel *label : thresholdLabels)
        label->setMinimumWidth(labelW);
    connect(m_hotWhileCharging, &QDoubleSpinBox::valueChanged, this, &AlertsPanel::tellChange);
    connect(m_hot, &QDoubleSpinBox::valueChanged, this, &AlertsPanel::tellChange);
    connect(m_chargeLevel, &QSpinBox::valueChanged, this, &AlertsPanel::tellChange);

    m_note->setObjectName(QStringLiteral("alertNotificationNote"));
    m_note->setWordWrap(true);
    m_note->hide();
    addContent(m_note);
    m_note->setContentsMargins(m_note->contentsMargins() + QMargins(0, 6, 0, 0));
    setSettings(AlertSettings{});
}

AlertSettings AlertsPanel::settings() const
{
    AlertSettings settings;
    for (const auto &[box, member] : m_switches)
        settings.*member = box->isChecked();
    settings.hotWhileChargingC = m_hotWhileCharging->value();
    settings.hotC = m_hot->value();
    settings.chargeLevelPercent = m_chargeLevel->value();
    return settings;
}

void AlertsPanel::setSettings(const AlertSettings &settings)
{
    const QSignalBlocker blocker(this);
    for (const auto &[box, member] : m_switches)
        box->setChecked(settings.*member);
    m_hotWhileCharging->setValue(settings.hotWhileChargingC);
    m_hot->setValue(settings.hotC);
    m_chargeLevel->setValue(static_cast<int>(settings.chargeLevelPercent));
}

void AlertsPanel::setNotificationNote(const QString &note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

void AlertsPanel::tellChange()
{
    emit settingsChanged(settings());
}

void AlertsPanel::setFerrowPalette(const FerrowPalette &palette)
{
    ReportPanel::setFerrowPalette(palette);
    QPalette controls = this->palette();
    controls.setColor(QPalette::Window, palette.reportPanelBackground());
    controls.setColor(QPalette::WindowText, palette.primaryText());
    controls.setColor(QPalette::Text, palette.primaryText());
    controls.setColor(QPalette::Base, palette.reportTileGround());
    controls.setColor(QPalette::Button, palette.reportPanelBackground());
    controls.setColor(QPalette::ButtonText, palette.primaryText());
    controls.setColor(QPalette::Highlight, palette.accent());
    setPalette(controls);
    setTextColor(m_caption, palette.secondaryText());
    setTextColor(m_note, readableOn(palette.color(ColorRole::orange), palette.reportPanelBackground()));
}

} // namespace ferrow

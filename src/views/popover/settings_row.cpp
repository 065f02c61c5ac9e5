#include "views/popover/settings_row.h"

#include "model/localized_text.h"
#include "views/view_painting.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

namespace ferrow {

SettingsRow::SettingsRow(QWidget *parent)
    : QWidget(parent)
    , m_launchAtLogin(new QCheckBox(localizedText("setting.launch_at_login")))
    , m_showPower(new QCheckBox(localizedText("setting.menu_bar_power")))
    , m_version(new QLabel)
{
    m_launchAtLogin->setObjectName(QStringLiteral("launchAtLogin"));
    m_showPower->setObjectName(QStringLiteral("showPowerInMenuBar"));
    m_version->setObjectName(QStringLiteral("version"));
    connect(m_launchAtLogin, &QCheckBox::toggled, this, &SettingsRow::launchAtLoginToggled);
    connect(m_showPower, &QCheckBox::toggled, this, &SettingsRow::showPowerInMenuBarToggled);

    setFixedHeight(27);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(11);
    row->addWidget(m_launchAtLogin);
    row->addWidget(m_showPower);
    row->addStretch();
    row->addWidget(m_version);
}

void SettingsRow::setFerrowPalette(const FerrowPalette &palette)
{
    QPalette controls = this->palette();
    controls.setColor(QPalette::WindowText, palette.secondaryText());
    controls.setColor(QPalette::Text, palette.primaryText());
    controls.setColor(QPalette::Base, palette.isDark() ? QColor(58, 58, 62) : QColor(255, 255, 255));
    controls.setColor(QPalette::Window, palette.panelBackground());
    controls.setColor(QPalette::Button, palette.panelBackground());
    controls.setColor(QPalette::Highlight, palette.accent());
    for (QCheckBox *box : {m_launchAtLogin, m_showPower}) {
        box->setPalette(controls);
        box->setFont(uiFont(9));
    }
    QPalette versionPalette = controls;
    versionPalette.setColor(QPalette::WindowText, palette.tertiaryText());
    m_version->setPalette(versionPalette);
    m_version->setFont(monospacedFont(8, QFont::Medium));
}

void SettingsRow::setVersion(const QString &version)
{
    m_version->setText(u'v' + version);
    m_version->setAccessibleName(localizedFormatText("app.version", {version}));
}

void SettingsRow::setLaunchAtLogin(bool enabled)
{
    const QSignalBlocker blocker(m_launchAtLogin);
    m_launchAtLogin->setChecked(enabled);
}

void SettingsRow::setShowPowerInMenuBar(bool shown)
{
    const QSignalBlocker blocker(m_showPower);
    m_showPower->setChecked(shown);
}

} // namespace ferrow


#pragma once

#include "views/ferrow_palette.h"

#include <QWidget>

class QCheckBox;
class QLabel;

namespace ferrow {

// The popover's two settings, with the version at the row's end.
class SettingsRow : public QWidget {
    Q_OBJECT
public:
    explicit SettingsRow(QWidget *parent = nullptr);

    void setFerrowPalette(const FerrowPalette &palette);
    void setVersion(const QString &version);
    void setLaunchAtLogin(bool enabled);
    void setShowPowerInMenuBar(bool shown);

signals:
    void launchAtLoginToggled(bool enabled);
    void showPowerInMenuBarToggled(bool shown);

private:
    QCheckBox *m_launchAtLogin;
    QCheckBox *m_showPower;
    QLabel *m_version;
};

} // namespace ferrow

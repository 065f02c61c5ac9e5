#pragma once

#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"
#include "views/main_window_model.h"

#include <QWidget>

#include <map>
#include <vector>

class QLabel;

namespace ferrow {

class FerrowLogoLink;
class SidebarRow;

// The details window's sidebar: the brand with the machine's state, a row per section of the
// report under its group's header, and when the figures were read.
class ReportSidebar : public QWidget {
    Q_OBJECT
public:
    explicit ReportSidebar(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    // An alert that holds now, in words, under the state; empty when none.
    void setAlertLine(const QString &line);
    void setFerrowPalette(const FerrowPalette &palette);
    void setSelection(MainSection section, bool animated);
    // Stills the logo's hover.
    void setReduceMotion(bool reduceMotion);

signals:
    void sectionPicked(MainSection section);

private:
    FerrowLogoLink *m_logo;
    QLabel *m_status;
    QLabel *m_alertLine;
    QLabel *m_updatedAt;
    std::vector<QLabel *> m_headers;
    std::map<MainSection, SidebarRow *> m_rows;
};

} // namespace ferrow

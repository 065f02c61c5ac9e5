#pragma once

#include "model/power_history.h"
#include "model/power_snapshot.h"
#include "views/ferrow_palette.h"
#include "views/main_window_model.h"

#include <QMainWindow>
#include <QPropertyAnimation>

#include <map>

class QAction;
class QLabel;
class QScrollArea;
class QSplitter;

namespace ferrow {

class FerrowLogoLink;
class MeterCard;
class OfficialWebsiteLink;
class PowerHistoryChart;

// The details window: a sidebar of the report's five sections and a scrolling column that shows
// them all. Picking a section scrolls to it; scrolling by hand moves the sidebar's selection.
class MainWindowView : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindowView(QWidget *parent = nullptr);

    void setSnapshot(const PowerSnapshot &snapshot);
    void setHistory(const PowerHistory &history);
    void setFerrowPalette(const FerrowPalette &palette);
    void setVersion(const QString &version);
    // A note under the meters about what this machine keeps from us (empty hides it).
    void setPowerNotice(const QString &notice);
    // Stills the sidebar's selection and the logo's hover.
    void setReduceMotion(bool reduceMotion);

    MainSection selection() const { return m_selection; }
    void pickSection(MainSection section); // as a click on its sidebar row
    QScrollArea *detailScrollArea() const { return m_scroll; }
    QSplitter *splitter() const { return m_splitter; }
    QAction *sidebarToggle() const { return m_sidebarToggle; }
    QWidget *sectionBlock(MainSection section) const { return m_blocks.at(section); }
    PowerHistoryChart *historyChart() const { return m_chart; }

signals:
    void refreshRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildSidebar();
    QWidget *buildDetail();
    void followScroll();
    void setSelection(MainSection section, bool animated);
    void setSidebarShown(bool shown);
    void updateEndSpacer();
    void applyPalette();

    FerrowPalette m_palette;
    PowerSnapshot m_snapshot = PowerSnapshot::empty();
    MainSection m_selection = MainSection::overview;
    bool m_reduceMotion = false;
    QSplitter *m_splitter = nullptr;
    QAction *m_sidebarToggle = nullptr;
    int m_sidebarWidth = 208; // the width to bring the sidebar back at
    QScrollArea *m_scroll = nullptr;
    QPropertyAnimation m_scrollAnimation;
    std::map<MainSection, QWidget *> m_blocks;
    std::map<MainSection, QWidget *> m_sidebarRows;
    QWidget *m_endSpacer = nullptr;
    QWidget *m_sidebar = nullptr;
    FerrowLogoLink *m_logo = nullptr;
    QWidget *m_footerDivider = nullptr;
    QWidget *m_detailContent = nullptr;
    QLabel *m_sidebarStatus = nullptr;
    QLabel *m_updatedAt = nullptr;
    QLabel *m_overviewTitle = nullptr;
    QLabel *m_overviewSubtitle = nullptr;
    QLabel *m_meterCaption = nullptr;
    QLabel *m_powerNotice = nullptr;
    QLabel *m_version = nullptr;
    QLabel *m_toolbarTitle = nullptr;
    QLabel *m_toolbarSubtitle = nullptr;
    std::vector<MeterCard *> m_meters;
    PowerHistoryChart *m_chart = nullptr;
    std::vector<QWidget *> m_paletteViews; // painted pieces that take the palette
    OfficialWebsiteLink *m_website = nullptr;
};

} // namespace ferrow

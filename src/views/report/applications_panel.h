#pragma once

#include "apps/app_energy.h"
#include "views/app_painting.h"
#include "views/apps_model.h"
#include "views/report/report_panel.h"

#include <optional>

class QButtonGroup;
class QLabel;

namespace ferrow {

// The applications that used the energy over a period the user picks, sortable by energy or by
// mean power, with how the figures were come by.
class ApplicationsPanel : public ReportPanel {
    Q_OBJECT
public:
    explicit ApplicationsPanel(QWidget *parent = nullptr);

    AppPeriod period() const { return m_period; }
    // The list of a period; one for a period other than the picked one is left alone.
    void setList(AppPeriod period, const AppEnergyList &list);
    // Without a history only the current session has a list.
    void setHistoryEnabled(bool enabled);
    AppSort sort() const { return m_sort; }
    void setFerrowPalette(const FerrowPalette &palette) override;

signals:
    // The user picked a period: its list is wanted.
    void periodRequested(AppPeriod period);

private:
    class Header;
    class Rows;

    void pickPeriod(AppPeriod period);
    void setSort(AppSort sort);
    void showList();

    AppPeriod m_period = AppPeriod::session;
    std::optional<AppEnergyList> m_list = AppEnergyList{}; // absent while the picked period's is awaited
    bool m_historyEnabled = true;
    AppSort m_sort = AppSort::energy;
    FerrowPalette m_palette;
    AppIcons m_icons;
    QButtonGroup *m_periods;
    QLabel *m_covered;
    Header *m_header;
    Rows *m_rows;
    QLabel *m_note;
    QLabel *m_caption;
    QLabel *m_legend;
};

} // namespace ferrow

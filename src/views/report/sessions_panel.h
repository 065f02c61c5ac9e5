#pragma once

#include "views/history_model.h"
#include "views/report/report_panel.h"

namespace ferrow {

// The recent stretches on battery and on the adapter, newest first.
class SessionsPanel : public ReportPanel {
public:
    explicit SessionsPanel(QWidget *parent = nullptr);

    void setSessions(const std::vector<SessionRecord> &sessions);
    void setFerrowPalette(const FerrowPalette &palette) override;

private:
    class Rows;

    Rows *m_rows;
    PanelText *m_none;
};

} // namespace ferrow

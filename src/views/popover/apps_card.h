#pragma once

#include "apps/app_energy.h"
#include "views/accessible_content.h"
#include "views/app_painting.h"
#include "views/ferrow_palette.h"

#include <QWidget>

#include <array>

namespace ferrow {

// The popover's card of the three applications that used the most energy this session, or a line
// saying there are none yet. Each line is a button that asks for the details window's list.
class AppsCard : public QWidget, public AccessibleContent {
    Q_OBJECT
public:
    static constexpr int kHeight = 82;

    explicit AppsCard(QWidget *parent = nullptr);

    void setSession(const AppEnergyList &session);
    // A machine without a battery has no sessions: its list runs from this program's start.
    void setHasSessions(bool hasSessions);
    const char *noneKey() const { return m_hasSessions ? "apps.popover_none" : "apps.popover_none_since_start"; }
    void setFerrowPalette(const FerrowPalette &palette);
    // The card's title, a heading of its lines.
    std::vector<AccessibleItem> accessibleParts() const override;

signals:
    void applicationsRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    class Line;

    FerrowPalette m_palette;
    AppIcons m_icons;
    std::array<Line *, 3> m_lines{};
    bool m_hasSessions = true;
    const char *m_titleKey = "apps.popover_title";
};

} // namespace ferrow

#pragma once

#include "views/accessible_content.h"
#include "views/snapshot_view.h"

namespace ferrow {

class FerrowLogoLink;

// The popover's header: the logo (a link), title and subtitle, and the live or waiting status.
class PopoverHeader : public SnapshotView, public AccessibleContent {
public:
    explicit PopoverHeader(QWidget *parent = nullptr);

    void setSubtitle(const QString &subtitle);
    // An alert that holds now, in words, in place of the subtitle; empty when none.
    void setAlertLine(const QString &line);
    void setReduceMotion(bool reduceMotion);
    // The title, the subtitle, then the status, which tells a screen reader of a new state.
    std::vector<AccessibleItem> accessibleParts() const override;
    void announceStatus();

protected:
    void ferrowPaletteChanged() override;
    void paintEvent(QPaintEvent *event) override;
    bool paintsDifferently(const PowerSnapshot &shown, const PowerSnapshot &next) const override;

private:
    FerrowLogoLink *m_logo;
    QString m_subtitle;
    QString m_alertLine;
};

} // namespace ferrow

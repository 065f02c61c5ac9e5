#pragma once

#include "views/accessible_content.h"
#include "views/snapshot_view.h"

namespace ferrow {

// The caption under the popover's meters (what they measure), and the hairline that closes them.
class MeterCaption : public SnapshotView, public AccessibleContent {
public:
    explicit MeterCaption(QWidget *parent = nullptr);
    AccessibleItem accessibleSelf() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool paintsDifferently(const PowerSnapshot &shown, const PowerSnapshot &next) const override;
};

} // namespace ferrow

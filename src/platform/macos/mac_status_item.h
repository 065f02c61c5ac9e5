#pragma once

#include "platform/menu_bar_item.h"

#include <memory>

namespace ferrow {

// The menu-bar item as the platform's own status item: the "bolt.fill" or "battery.50percent"
// symbol and the "%.1f W" title in monospaced digits; a click opens the popover under it.
class MacStatusItem final : public MenuBarItem {
public:
    MacStatusItem();
    ~MacStatusItem() override;

    void showReading(const MenuBarReading &reading) override;
    QRect geometry() const override;
    // Alerts go to the system's notification centre, which every Mac has.
    void showMessage(const QString &, const QString &) override {}

    void notifyClicked() { emit activated(); }

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace ferrow

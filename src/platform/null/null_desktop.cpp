#include "platform/native_desktop.h"

// A desktop this program has no backend for: the toolkit's tray icon where there is a tray (and
// its messages for alerts), no sleep or wake signals, and a login item that is never on.

namespace ferrow {
namespace {

class NoLoginItem final : public LoginItem {
public:
    LoginItemState state() const override { return LoginItemState::disabled; }
    bool setEnabled(bool enabled) override { return !enabled; }
};

} // namespace

std::unique_ptr<MenuBarItem> createNativeMenuBarItem(const MenuBarSymbolPainter &)
{
    return nullptr;
}

std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier()
{
    return std::make_unique<SleepWakeNotifier>();
}

std::unique_ptr<LoginItem> createLoginItem()
{
    return std::make_unique<NoLoginItem>();
}

std::unique_ptr<Notifier> createNotifier()
{
    return nullptr;
}

std::optional<bool> systemIncreasesContrast()
{
    return std::nullopt;
}

bool windowSystemComposites()
{
    return false;
}

} // namespace ferrow

#pragma once

#include "app/app_services.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

class QWidget;

namespace ferrow {

// Launch at login as the application's own login item (SMAppService).
class MainAppLoginItem final : public LoginItem {
public:
    LoginItemState state() const override;
    bool setEnabled(bool enabled) override;
    void openSettingsForState() override;
};

// "CFBundleShortVersionString" and "CFBundleVersion" of the bundle, when they are texts.
std::pair<std::optional<QString>, std::optional<QString>> bundleVersions();

// The accessibility setting "Reduce motion".
bool reducesMotion();

// A regular application: a Dock icon and a menu, not a background agent.
void setRegularActivationPolicy();
// Brings the application to the front even while another application is active.
void activateApplication();
// Calls handler when the user clicks the Dock icon (or opens the running app again).
void installReopenHandler(std::function<void()> handler);
// Puts the system's popover material (translucent, following the wallpaper) behind window.
void putPopoverMaterialBehind(QWidget &window);

} // namespace ferrow

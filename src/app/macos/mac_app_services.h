#pragma once

#include "app/app_services.h"

#include <QString>

#include <optional>
#include <utility>

namespace ferrow {

// Launch at login as the application's own login item (SMAppService).
class MainAppLoginItem final : public LoginItem {
public:
    bool isEnabled() const override;
    bool setEnabled(bool enabled) override;
};

// "CFBundleShortVersionString" and "CFBundleVersion" of the bundle, when they are texts.
std::pair<std::optional<QString>, std::optional<QString>> bundleVersions();

// The accessibility setting "Reduce motion".
bool reducesMotion();

// A regular application: a Dock icon and a menu, not a background agent.
void setRegularActivationPolicy();
// Brings the application to the front even while another application is active.
void activateApplication();

} // namespace ferrow

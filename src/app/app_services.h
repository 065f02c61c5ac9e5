#pragma once

#include "platform/login_item.h"

#include <QString>

#include <optional>

namespace ferrow {

// The version a user sees: the short version when it is a non-empty text, else the build number
// when there is one (even empty), else the dash.
QString appVersionString(const std::optional<QString> &shortVersion, const std::optional<QString> &buildVersion);

// The version this application shows, from what the installed copy declares.
QString applicationVersionText();

// Registers the brand font (Google Sans Flex) for this process; a missing file is skipped.
void registerBrandFonts();

// How the launch-at-login switch shows a state: on or off, and the one line that says what the
// user must do (a text key), if anything.
struct LoginItemPresentation {
    bool switchOn = false;
    const char *noteKey = nullptr;
};
LoginItemPresentation loginItemPresentation(LoginItemState state);

} // namespace ferrow

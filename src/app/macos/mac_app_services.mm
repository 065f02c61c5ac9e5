#include "app/macos/mac_app_services.h"

#import <AppKit/AppKit.h>
#import <ServiceManagement/ServiceManagement.h>

namespace ferrow {

bool MainAppLoginItem::isEnabled() const
{
    return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
}

bool MainAppLoginItem::setEnabled(bool enabled)
{
    NSError *error = nil; // dropped: the caller shows the real state again on failure
    return enabled ? [SMAppService.mainAppService registerAndReturnError:&error] : [SMAppService.mainAppService unregisterAndReturnError:&error];
}

std::pair<std::optional<QString>, std::optional<QString>> bundleVersions()
{
    NSDictionary *info = NSBundle.mainBundle.infoDictionary;
    const auto text = [info](NSString *key) -> std::optional<QString> {
        id value = info[key];
        if (![value isKindOfClass:NSString.class])
            return std::nullopt;
        return QString::fromNSString(value);
    };
    return {text(@"CFBundleShortVersionString"), text(@"CFBundleVersion")};
}

bool reducesMotion()
{
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
}

void setRegularActivationPolicy()
{
    [NSApp setActivationPolicy:NSApplicationActivationPolicyRegular];
}

void activateApplication()
{
    if (@available(macOS 14.0, *))
        [NSApp activate];
    else
        [NSApp activateIgnoringOtherApps:YES];
}

} // namespace ferrow

#include "platform/native_desktop.h"

#include "platform/macos/mac_status_item.h"
#include "platform/macos/workspace_sleep_notifier.h"

#include <QWidget>

#import <AppKit/AppKit.h>
#import <ServiceManagement/ServiceManagement.h>

#include <sys/xattr.h>

@interface FerrowReopenHandler : NSObject
@property(nonatomic) std::function<void()> handler;
- (void)reopen:(NSAppleEventDescriptor *)event withReplyEvent:(NSAppleEventDescriptor *)reply;
@end

@implementation FerrowReopenHandler
- (void)reopen:(NSAppleEventDescriptor *)event withReplyEvent:(NSAppleEventDescriptor *)reply
{
    (void)event;
    (void)reply;
    if (self.handler)
        self.handler();
}
@end

namespace ferrow {
namespace {

// The system registers no login item for a copy it runs translocated (a quarantined download
// started where it lies) or for a quarantined copy outside an Applications folder.
bool runsWhereLoginItemsAreRefused()
{
    NSString *path = NSBundle.mainBundle.bundlePath;
    if ([path containsString:@"/AppTranslocation/"])
        return true;
    const bool quarantined = getxattr(path.fileSystemRepresentation, "com.apple.quarantine", nullptr, 0, 0, XATTR_NOFOLLOW) >= 0;
    NSString *userApplications = [NSHomeDirectory() stringByAppendingPathComponent:@"Applications/"];
    const bool inApplications = [path hasPrefix:@"/Applications/"] || [path hasPrefix:userApplications];
    return quarantined && !inApplications;
}

// Launch at login as the application's own login item (SMAppService).
class MainAppLoginItem final : public LoginItem {
public:
    LoginItemState state() const override;
    bool setEnabled(bool enabled) override;
    void openSettingsForState() override;
};

} // namespace

LoginItemState MainAppLoginItem::state() const
{
    switch (SMAppService.mainAppService.status) {
    case SMAppServiceStatusEnabled:
        return LoginItemState::enabled;
    case SMAppServiceStatusRequiresApproval:
        return LoginItemState::awaitingApproval;
    case SMAppServiceStatusNotRegistered:
    case SMAppServiceStatusNotFound:
        break;
    }
    return runsWhereLoginItemsAreRefused() ? LoginItemState::needsApplicationsFolder : LoginItemState::disabled;
}

bool MainAppLoginItem::setEnabled(bool enabled)
{
    if (enabled && runsWhereLoginItemsAreRefused())
        return false;
    NSError *error = nil; // dropped: the caller shows the system's state again
    return enabled ? [SMAppService.mainAppService registerAndReturnError:&error] : [SMAppService.mainAppService unregisterAndReturnError:&error];
}

void MainAppLoginItem::openSettingsForState()
{
    switch (state()) {
    case LoginItemState::awaitingApproval:
        [SMAppService openSystemSettingsLoginItems];
        break;
    case LoginItemState::needsApplicationsFolder:
        [NSWorkspace.sharedWorkspace openURL:[NSURL fileURLWithPath:@"/Applications" isDirectory:YES]];
        break;
    case LoginItemState::enabled:
    case LoginItemState::disabled:
        break;
    }
}

std::unique_ptr<MenuBarItem> createNativeMenuBarItem(const MenuBarSymbolPainter &)
{
    return std::make_unique<MacStatusItem>();
}

std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier()
{
    return std::make_unique<WorkspaceSleepNotifier>();
}

std::unique_ptr<LoginItem> createLoginItem()
{
    return std::make_unique<MainAppLoginItem>();
}

std::unique_ptr<Notifier> createNotifier()
{
    // Not yet the system's notification centre (UserNotifications): alerts show in the windows.
    return nullptr;
}

DeclaredVersions declaredVersions()
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

std::optional<bool> systemReducesMotion()
{
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
}

bool windowSystemComposites()
{
    return true;
}

std::optional<bool> systemIncreasesContrast()
{
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldIncreaseContrast;
}

void prepareApplication()
{
    [NSApp setActivationPolicy:NSApplicationActivationPolicyRegular];
}

void bringApplicationToFront()
{
    if (@available(macOS 14.0, *))
        [NSApp activate];
    else
        [NSApp activateIgnoringOtherApps:YES];
}

void onApplicationReopen(std::function<void()> handler)
{
    // The reopen event ('aevt'/'rapp') is what the Dock sends; handled here, it no longer reaches
    // the toolkit's delegate, which would only activate the application.
    static FerrowReopenHandler *target = [[FerrowReopenHandler alloc] init];
    target.handler = std::move(handler);
    [NSAppleEventManager.sharedAppleEventManager setEventHandler:target
                                                     andSelector:@selector(reopen:withReplyEvent:)
                                                   forEventClass:kCoreEventClass
                                                      andEventID:kAEReopenApplication];
}

bool usePopoverMaterial(QWidget &window)
{
    window.setAttribute(Qt::WA_TranslucentBackground);
    NSView *content = (__bridge NSView *)reinterpret_cast<void *>(window.winId());
    NSWindow *nativeWindow = content.window;
    if (!nativeWindow || !content.superview)
        return false;
    nativeWindow.opaque = NO;
    nativeWindow.backgroundColor = NSColor.clearColor;
    nativeWindow.hasShadow = YES;

    NSVisualEffectView *effect = [[NSVisualEffectView alloc] initWithFrame:content.frame];
    effect.material = NSVisualEffectMaterialPopover;
    effect.blendingMode = NSVisualEffectBlendingModeBehindWindow;
    effect.state = NSVisualEffectStateFollowsWindowActiveState;
    effect.emphasized = NO;
    effect.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
    // Rounded like the system's popovers; the cap insets let the mask stretch to any size.
    constexpr CGFloat radius = 10;
    NSImage *mask = [NSImage imageWithSize:NSMakeSize(2 * radius + 1, 2 * radius + 1)
                                   flipped:NO
                            drawingHandler:^BOOL(NSRect rect) {
                                [NSColor.blackColor setFill];
                                [[NSBezierPath bezierPathWithRoundedRect:rect xRadius:radius yRadius:radius] fill];
                                return YES;
                            }];
    mask.capInsets = NSEdgeInsetsMake(radius, radius, radius, radius);
    mask.resizingMode = NSImageResizingModeStretch;
    effect.maskImage = mask;
    [content.superview addSubview:effect positioned:NSWindowBelow relativeTo:content];
    return true;
}

} // namespace ferrow

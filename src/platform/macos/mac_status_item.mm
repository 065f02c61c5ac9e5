#include "platform/macos/mac_status_item.h"

#import <AppKit/AppKit.h>

@interface FerrowStatusItemTarget : NSObject
@property(nonatomic, assign) ferrow::MacStatusItem *owner;
- (void)clicked:(id)sender;
@end

@implementation FerrowStatusItemTarget
- (void)clicked:(id)sender
{
    (void)sender;
    if (self.owner)
        self.owner->notifyClicked();
}
@end

namespace ferrow {

struct MacStatusItem::Native {
    NSStatusItem *item = nil; // strong (ARC)
    FerrowStatusItemTarget *target = nil;
};

MacStatusItem::MacStatusItem()
    : m_native(std::make_unique<Native>())
{
    m_native->item = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
    m_native->target = [[FerrowStatusItemTarget alloc] init];
    m_native->target.owner = this;
    m_native->item.button.target = m_native->target;
    m_native->item.button.action = @selector(clicked:);
    m_native->item.button.imagePosition = NSImageLeading;
    m_native->item.button.font = [NSFont monospacedSystemFontOfSize:12 weight:NSFontWeightSemibold];
}

MacStatusItem::~MacStatusItem()
{
    m_native->target.owner = nullptr;
    [NSStatusBar.systemStatusBar removeStatusItem:m_native->item];
}

void MacStatusItem::showReading(const MenuBarReading &reading)
{
    NSStatusBarButton *button = m_native->item.button;
    NSString *symbol = reading.onExternalPower ? @"bolt.fill" : @"battery.50percent";
    NSImage *image = [NSImage imageWithSystemSymbolName:symbol accessibilityDescription:nil];
    [image setTemplate:YES]; // the menu bar recolours it for its appearance
    button.image = image;
    // A plain title in the button's font: the system then colours it for the menu bar's
    // appearance and dims it on an inactive display, as it does every status item.
    button.title = reading.showsPower ? reading.figureText.toNSString() : @"";
    button.toolTip = reading.toolTip.toNSString();
}

QRect MacStatusItem::geometry() const
{
    NSStatusBarButton *button = m_native->item.button;
    if (!button.window)
        return {};
    const NSRect frame = [button.window convertRectToScreen:[button convertRect:button.bounds toView:nil]];
    // Cocoa measures from the bottom of the primary screen; Qt from its top.
    const CGFloat primaryHeight = NSScreen.screens.firstObject.frame.size.height;
    return QRect(static_cast<int>(frame.origin.x), static_cast<int>(primaryHeight - frame.origin.y - frame.size.height),
                 static_cast<int>(frame.size.width), static_cast<int>(frame.size.height));
}

} // namespace ferrow

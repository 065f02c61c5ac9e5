#include "platform/macos/user_notification_notifier.h"

#include <QPointer>

#import <AppKit/AppKit.h>
#import <UserNotifications/UserNotifications.h>

// The centre keeps an application's notifications silent while it is in front, unless told to
// show them: an alert matters as much when the dashboard is open.
@interface FerrowNotificationPresenter : NSObject <UNUserNotificationCenterDelegate>
@end

@implementation FerrowNotificationPresenter
- (void)userNotificationCenter:(UNUserNotificationCenter *)center
       willPresentNotification:(UNNotification *)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions))completionHandler
{
    (void)center;
    (void)notification;
    completionHandler(UNNotificationPresentationOptionBanner | UNNotificationPresentationOptionList | UNNotificationPresentationOptionSound);
}
@end

namespace ferrow {
namespace {

// Stable across runs: the centre keeps delivered notifications after the application quits.
NSString *requestIdentifier(AlertKind kind)
{
    switch (kind) {
    case AlertKind::chargerCannotKeepUp:
        return @"alert.charger-cannot-keep-up";
    case AlertKind::chargingSlowly:
        return @"alert.charging-slowly";
    case AlertKind::batteryHot:
        return @"alert.battery-hot";
    case AlertKind::cellsOutOfBalance:
        return @"alert.cells-out-of-balance";
    case AlertKind::chargeLevelReached:
        return @"alert.charge-level-reached";
    }
    return @"alert";
}

NotificationPermission permissionOf(UNAuthorizationStatus status)
{
    switch (status) {
    case UNAuthorizationStatusNotDetermined:
        return NotificationPermission::notAsked;
    case UNAuthorizationStatusDenied:
        return NotificationPermission::denied;
    default: // authorized, or provisionally (quietly, into the list)
        return NotificationPermission::granted;
    }
}

} // namespace

struct UserNotificationNotifier::Native {
    FerrowNotificationPresenter *presenter = nil; // the centre holds its delegate weakly
    id activation = nil;                         // the observer of the application coming to the front
};

UserNotificationNotifier::UserNotificationNotifier()
    : m_native(std::make_unique<Native>())
{
    m_native->presenter = [[FerrowNotificationPresenter alloc] init];
    UNUserNotificationCenter.currentNotificationCenter.delegate = m_native->presenter;
    const QPointer<UserNotificationNotifier> guard(this);
    m_native->activation = [NSNotificationCenter.defaultCenter addObserverForName:NSApplicationDidBecomeActiveNotification
                                                                           object:nil
                                                                            queue:NSOperationQueue.mainQueue
                                                                       usingBlock:^(NSNotification *) {
                                                                           if (guard)
                                                                               guard->readPermission();
                                                                       }];
    readPermission();
}

UserNotificationNotifier::~UserNotificationNotifier()
{
    [NSNotificationCenter.defaultCenter removeObserver:m_native->activation];
    UNUserNotificationCenter *centre = UNUserNotificationCenter.currentNotificationCenter;
    if (centre.delegate == m_native->presenter)
        centre.delegate = nil;
}

void UserNotificationNotifier::notify(const Alert &alert)
{
    UNMutableNotificationContent *content = [[UNMutableNotificationContent alloc] init];
    content.title = alert.title.toNSString();
    content.body = alert.body.toNSString();
    content.sound = UNNotificationSound.defaultSound;
    UNNotificationRequest *request = [UNNotificationRequest requestWithIdentifier:requestIdentifier(alert.kind) content:content trigger:nil];
    // Refused only where the user said no, which permission() tells.
    [UNUserNotificationCenter.currentNotificationCenter addNotificationRequest:request withCompletionHandler:nil];
}

void UserNotificationNotifier::requestPermission()
{
    // The system asks the user the first time only; later it answers at once with what was said.
    const QPointer<UserNotificationNotifier> guard(this);
    [UNUserNotificationCenter.currentNotificationCenter requestAuthorizationWithOptions:UNAuthorizationOptionAlert | UNAuthorizationOptionSound
                                                                      completionHandler:^(BOOL, NSError *) {
                                                                          dispatch_async(dispatch_get_main_queue(), ^{
                                                                              if (guard)
                                                                                  guard->readPermission();
                                                                          });
                                                                      }];
}

void UserNotificationNotifier::readPermission()
{
    // The centre answers on a queue of its own; the permission is kept on the main thread.
    const QPointer<UserNotificationNotifier> guard(this);
    [UNUserNotificationCenter.currentNotificationCenter getNotificationSettingsWithCompletionHandler:^(UNNotificationSettings *settings) {
        const NotificationPermission permission = permissionOf(settings.authorizationStatus);
        dispatch_async(dispatch_get_main_queue(), ^{
            if (guard)
                guard->setPermission(permission);
        });
    }];
}

void UserNotificationNotifier::setPermission(NotificationPermission permission)
{
    if (permission == m_permission)
        return;
    m_permission = permission;
    emit permissionChanged();
}

} // namespace ferrow

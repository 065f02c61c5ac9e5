#include "platform/macos/workspace_sleep_notifier.h"

#include <QPointer>

#import <AppKit/AppKit.h>

namespace ferrow {

struct WorkspaceSleepNotifier::Observers {
    id sleep = nil; // the tokens the notification centre hands back, strong (ARC)
    id wake = nil;
};

WorkspaceSleepNotifier::WorkspaceSleepNotifier(QObject *parent)
    : SleepWakeNotifier(parent)
    , m_observers(std::make_unique<Observers>())
{
    NSNotificationCenter *center = NSWorkspace.sharedWorkspace.notificationCenter;
    const QPointer<WorkspaceSleepNotifier> self(this); // the blocks must not outlive us unnoticed
    m_observers->sleep = [center addObserverForName:NSWorkspaceWillSleepNotification
                                             object:nil
                                              queue:NSOperationQueue.mainQueue
                                         usingBlock:^(NSNotification *) {
                                           if (self)
                                               emit self->willSleep();
                                         }];
    m_observers->wake = [center addObserverForName:NSWorkspaceDidWakeNotification
                                            object:nil
                                             queue:NSOperationQueue.mainQueue
                                        usingBlock:^(NSNotification *) {
                                          if (self)
                                              emit self->didWake();
                                        }];
}

WorkspaceSleepNotifier::~WorkspaceSleepNotifier()
{
    NSNotificationCenter *center = NSWorkspace.sharedWorkspace.notificationCenter;
    [center removeObserver:m_observers->sleep];
    [center removeObserver:m_observers->wake];
}

} // namespace ferrow

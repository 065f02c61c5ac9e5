#include "platform/macos/mac_system.h"

#import <Foundation/Foundation.h>

#include <sys/sysctl.h>

namespace ferrow {
namespace {

QString sysctlText(const char *name)
{
    char text[128] = {};
    size_t size = sizeof text - 1;
    if (sysctlbyname(name, text, &size, nullptr, 0) != 0)
        return {};
    return QString::fromUtf8(text);
}

} // namespace

QString reportedMacOSVersion()
{
    const NSOperatingSystemVersion version = NSProcessInfo.processInfo.operatingSystemVersion;
    return ProductVersion{static_cast<int>(version.majorVersion), static_cast<int>(version.minorVersion),
                          static_cast<int>(version.patchVersion)}
        .text();
}

QString darwinRelease()
{
    return sysctlText("kern.osrelease");
}

std::optional<ProductVersion> runningMacOSVersion()
{
    static const std::optional<ProductVersion> version = realMacOSVersion(reportedMacOSVersion(), darwinRelease());
    return version;
}

QString macModelIdentifier()
{
    return sysctlText("hw.model");
}

struct ActivityAssertion::Native {
    id<NSObject> activity = nil; // strong (ARC)
};

ActivityAssertion::ActivityAssertion()
    : m_native(std::make_unique<Native>())
{
    m_native->activity = [NSProcessInfo.processInfo beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                                                                      reason:@"Reads the machine's power once a second"];
}

ActivityAssertion::~ActivityAssertion()
{
    if (m_native->activity)
        [NSProcessInfo.processInfo endActivity:m_native->activity];
}

bool ActivityAssertion::isHeld() const
{
    return m_native->activity != nil;
}

} // namespace ferrow

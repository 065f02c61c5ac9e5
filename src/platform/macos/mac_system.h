#pragma once

#include "sources/system_version.h"

#include <QString>

#include <memory>
#include <optional>

namespace ferrow {

// The version this process is told (a compatibility version when the SDK that built it is older
// than the system), the kernel's release, and from both the version the system really is.
QString reportedMacOSVersion();
QString darwinRelease();
std::optional<ProductVersion> runningMacOSVersion();
// "Mac15,6"
QString macModelIdentifier();

// While held, the system does not nap the process: its once-a-second timer keeps its pace with
// no window in front. Idle system sleep stays allowed. Held from construction to destruction.
class ActivityAssertion {
public:
    ActivityAssertion();
    ~ActivityAssertion();
    ActivityAssertion(const ActivityAssertion &) = delete;
    ActivityAssertion &operator=(const ActivityAssertion &) = delete;

    bool isHeld() const;

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace ferrow

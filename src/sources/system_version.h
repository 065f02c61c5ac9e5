#pragma once

#include <QString>

#include <optional>

namespace ferrow {

struct ProductVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;

    QString text() const; // "26.1" or "26.1.2"
    friend bool operator==(const ProductVersion &, const ProductVersion &) = default;
};

// "26.1", "26.1.2" or "26": absent for anything else.
std::optional<ProductVersion> parseProductVersion(const QString &text);

// The macOS version the system really is. A process built against an older SDK is told a
// compatibility version (10.16 for 11 and later, 16 for 26 and later); the kernel's release
// ("25.1.0") names the real major in either case.
std::optional<ProductVersion> realMacOSVersion(const QString &reportedVersion, const QString &darwinRelease);

} // namespace ferrow

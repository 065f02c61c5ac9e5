#include "sources/system_version.h"

#include <QStringList>

namespace ferrow {
namespace {

// Darwin 20 to 24 were macOS 11 to 15, Darwin 25 was macOS 26; from then on the numbers agree.
std::optional<int> macOSMajorOfDarwin(int darwinMajor)
{
    if (darwinMajor >= 20 && darwinMajor <= 24)
        return darwinMajor - 9;
    if (darwinMajor == 25)
        return 26;
    if (darwinMajor >= 27)
        return darwinMajor;
    return std::nullopt;
}

bool isCompatibilityVersion(const ProductVersion &version)
{
    return version.major == 16 || (version.major == 10 && version.minor >= 16);
}

} // namespace

QString ProductVersion::text() const
{
    return patch ? QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(patch) : QStringLiteral("%1.%2").arg(major).arg(minor);
}

std::optional<ProductVersion> parseProductVersion(const QString &text)
{
    const QStringList parts = text.trimmed().split(u'.');
    if (parts.size() > 3)
        return std::nullopt;
    int numbers[3] = {0, 0, 0};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool ok = false;
        numbers[i] = parts[i].toInt(&ok);
        if (!ok || numbers[i] < 0 || parts[i].startsWith(u'+'))
            return std::nullopt;
    }
    if (numbers[0] == 0)
        return std::nullopt;
    return ProductVersion{numbers[0], numbers[1], numbers[2]};
}

std::optional<ProductVersion> realMacOSVersion(const QString &reportedVersion, const QString &darwinRelease)
{
    const std::optional<ProductVersion> reported = parseProductVersion(reportedVersion);
    if (reported && !isCompatibilityVersion(*reported))
        return reported;
    const std::optional<ProductVersion> darwin = parseProductVersion(darwinRelease);
    const std::optional<int> kernelMajor = darwin ? macOSMajorOfDarwin(darwin->major) : std::nullopt;
    if (!reported) {
        if (!kernelMajor)
            return std::nullopt;
        return ProductVersion{*kernelMajor, 0, 0};
    }
    // 16.x keeps its minor and patch; 10.16 hides them.
    if (reported->major == 10)
        return ProductVersion{kernelMajor.value_or(11), 0, 0};
    return ProductVersion{kernelMajor.value_or(26), reported->minor, reported->patch};
}

} // namespace ferrow

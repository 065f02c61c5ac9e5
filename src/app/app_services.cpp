#include "app/app_services.h"

#include "model/value_text.h"
#include "platform/native_desktop.h"

#include <QFontDatabase>

namespace ferrow {

QString appVersionString(const std::optional<QString> &shortVersion, const std::optional<QString> &buildVersion)
{
    if (shortVersion && !shortVersion->isEmpty())
        return *shortVersion;
    if (buildVersion)
        return *buildVersion;
    return absentText();
}

QString applicationVersionText()
{
    const DeclaredVersions versions = declaredVersions();
    return appVersionString(versions.shortVersion, versions.build);
}

void registerBrandFonts()
{
    for (const char *file : {":/fonts/GoogleSansFlex_400Regular.ttf", ":/fonts/GoogleSansFlex_600SemiBold.ttf"})
        QFontDatabase::addApplicationFont(QString::fromLatin1(file));
}

LoginItemPresentation loginItemPresentation(LoginItemState state)
{
    switch (state) {
    case LoginItemState::enabled:
        return {true, nullptr};
    case LoginItemState::disabled:
        break;
    case LoginItemState::awaitingApproval:
        return {true, "setting.login_awaiting_approval"}; // registered; the system starts it once approved
    case LoginItemState::needsApplicationsFolder:
        return {false, "setting.login_needs_applications"};
    }
    return {false, nullptr};
}

} // namespace ferrow

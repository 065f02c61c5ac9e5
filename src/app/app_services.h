#pragma once

#include <QString>

#include <optional>

namespace ferrow {

// The version a user sees: the short version when it is a non-empty text, else the build number
// when there is one (even empty), else the dash.
QString appVersionString(const std::optional<QString> &shortVersion, const std::optional<QString> &buildVersion);

// Registers the brand font (Google Sans Flex) for this process; a missing file is skipped.
void registerBrandFonts();

// The login item as the system has it. Registered and waiting for the user's approval, or refused
// because the app runs from where the system will not register it (a translocated or quarantined
// copy outside Applications): only the user can settle those.
enum class LoginItemState { enabled, disabled, awaitingApproval, needsApplicationsFolder };

// How the launch-at-login switch shows a state: on or off, and the one line that says what the
// user must do (a text key), if anything.
struct LoginItemPresentation {
    bool switchOn = false;
    const char *noteKey = nullptr;
};
LoginItemPresentation loginItemPresentation(LoginItemState state);

// The platform's login-item registration for this application.
class LoginItem {
public:
    virtual ~LoginItem() = default;
    virtual LoginItemState state() const = 0;
    // False when the system refused; the caller then shows state() again.
    virtual bool setEnabled(bool enabled) = 0;
    // Opens the place where the user settles what the state asks for.
    virtual void openSettingsForState() {}
};

// Launch at login on Linux desktops: an entry in the user's XDG autostart folder.
class XdgAutostartLoginItem final : public LoginItem {
public:
    // The user's autostart folder and this program, unless given.
    explicit XdgAutostartLoginItem(QString autostartFolder = QString(), QString executable = QString());

    LoginItemState state() const override;
    bool setEnabled(bool enabled) override;
    QString entryPath() const;
    // This program's name when the search path finds this very file, else its full path.
    static QString launchCommand();

private:
    QString m_folder;
    QString m_executable;
};

} // namespace ferrow

#pragma once

namespace ferrow {

// The login item as the system has it. Registered and waiting for the user's approval, or refused
// because the app runs from where the system will not register it (a translocated or quarantined
// copy outside Applications): only the user can settle those.
enum class LoginItemState { enabled, disabled, awaitingApproval, needsApplicationsFolder };

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

} // namespace ferrow

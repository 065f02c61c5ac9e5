#include "platform/native_desktop.h"

#include "platform/linux/logind_sleep_notifier.h"
#include "platform/linux/xdg_autostart_login_item.h"

namespace ferrow {

std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier()
{
    return std::make_unique<LogindSleepNotifier>();
}

std::unique_ptr<LoginItem> createLoginItem()
{
    return std::make_unique<XdgAutostartLoginItem>();
}

} // namespace ferrow

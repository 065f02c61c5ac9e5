#include "platform/native_desktop.h"

#include <QCoreApplication>

// The desktop services of a system whose toolkit does it all: Linux and the null backend. No
// bundle, no Dock, no popover material.

namespace ferrow {

DeclaredVersions declaredVersions()
{
    return {QCoreApplication::applicationVersion(), std::nullopt};
}

std::optional<bool> systemReducesMotion()
{
    return std::nullopt;
}

void prepareApplication()
{
}

void bringApplicationToFront()
{
}

void onApplicationReopen(std::function<void()>)
{
}

bool usePopoverMaterial(QWidget &)
{
    return false;
}

} // namespace ferrow

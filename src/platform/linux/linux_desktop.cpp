#include "platform/native_desktop.h"

#include "platform/linux/freedesktop_notifier.h"
#include "platform/linux/logind_sleep_notifier.h"
#include "platform/linux/status_notifier_item.h"
#include "platform/linux/xdg_autostart_login_item.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

#include <xcb/xcb.h>

#include <cstdlib>

#include <QDBusMessage>
#include <QDBusVariant>

namespace ferrow {

// Where no panel shows status notifier items, the toolkit's tray icon is the way (an X11 tray).
std::unique_ptr<MenuBarItem> createNativeMenuBarItem(const MenuBarSymbolPainter &paintSymbol)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!hasStatusNotifierHost(bus))
        return nullptr;
    return std::make_unique<StatusNotifierItem>(bus, paintSymbol, statusIconThemePath());
}

std::unique_ptr<SleepWakeNotifier> createSleepWakeNotifier()
{
    return std::make_unique<LogindSleepNotifier>();
}

std::unique_ptr<LoginItem> createLoginItem()
{
    return std::make_unique<XdgAutostartLoginItem>();
}

std::unique_ptr<Notifier> createNotifier()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!hasNotificationService(bus))
        return nullptr;
    return std::make_unique<FreedesktopNotifier>(bus);
}

namespace {

// One setting through the desktop portal; nothing when no portal runs (none is started for this)
// or it does not answer at once.
std::optional<QVariant> portalSetting(const QString &group, const QString &key)
{
    QDBusMessage read = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
                                                       QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    read.setArguments({group, key});
    read.setAutoStartService(false);
    constexpr int kTimeoutMs = 300;
    const QDBusMessage reply = QDBusConnection::sessionBus().call(read, QDBus::Block, kTimeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return std::nullopt;
    // The answer comes wrapped in a variant, by some portals in two.
    QVariant value = reply.arguments().constFirst();
    for (int depth = 0; depth < 2 && value.canConvert<QDBusVariant>(); ++depth)
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

bool windowSystemComposites()
{
    if (QGuiApplication::platformName() == u"wayland")
        return true;
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11 || !x11->connection())
        return false;
    // A compositing manager owns the selection _NET_WM_CM_Sn of the X screen it composites; the
    // toolkit opens one X screen, the first, across all monitors.
    xcb_connection_t *connection = x11->connection();
    const QByteArray name = QByteArrayLiteral("_NET_WM_CM_S0");
    xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, static_cast<uint16_t>(name.size()), name.constData()), nullptr);
    if (!atom)
        return false;
    const xcb_atom_t selection = atom->atom;
    std::free(atom);
    if (selection == XCB_ATOM_NONE)
        return false;
    xcb_get_selection_owner_reply_t *owner = xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr);
    const bool composited = owner && owner->owner != XCB_WINDOW_NONE;
    std::free(owner);
    return composited;
}

std::optional<bool> systemIncreasesContrast()
{
    // Either asks for it; neither saying so leaves the choice to the user's preference.
    const std::optional<QVariant> contrast = portalSetting(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("contrast"));
    if (contrast && contrast->canConvert<uint>() && contrast->toUInt() == 1) // 0: no preference, 1: higher contrast
        return true;
    const std::optional<QVariant> highContrast = portalSetting(QStringLiteral("org.gnome.desktop.a11y.interface"), QStringLiteral("high-contrast"));
    if (highContrast && highContrast->typeId() == QMetaType::Bool && highContrast->toBool())
        return true;
    return std::nullopt;
}

} // namespace ferrow

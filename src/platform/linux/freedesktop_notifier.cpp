#include "platform/linux/freedesktop_notifier.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QTextStream>

namespace ferrow {
namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kAppName = QStringLiteral("Ferrow");
// The package installs its desktop entry and its icon under the application's id.
const QString kAppId = QStringLiteral("app.ferrow.Ferrow");
constexpr uchar kNormalUrgency = 1;
constexpr qint32 kServerDecidesExpiry = -1;
constexpr int kBusTimeoutMs = 1000;

} // namespace

FreedesktopNotifier::FreedesktopNotifier(const QDBusConnection &bus)
    : m_bus(bus)
{
    // Ids belong to the server that gave them; a restarted one may have given them to others.
    auto *serverWatch = new QDBusServiceWatcher(kService, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(serverWatch, &QDBusServiceWatcher::serviceUnregistered, this, &FreedesktopNotifier::forgetServer);
}

void FreedesktopNotifier::notify(const Alert &alert)
{
    m_waiting[alert.kind] = {alert.title, alert.body};
    postWaiting();
}

void FreedesktopNotifier::showMessage(const QString &title, const QString &body)
{
    m_waiting[std::nullopt] = {title, body};
    postWaiting();
}

void FreedesktopNotifier::postWaiting()
{
    if (!m_readsMarkup) {
        askCapabilities();
        return;
    }
    for (auto waiting = m_waiting.begin(); waiting != m_waiting.end();) {
        if (m_sending.contains(waiting->first)) {
            ++waiting;
            continue;
        }
        post(waiting->first, std::move(waiting->second));
        waiting = m_waiting.erase(waiting);
    }
}

void FreedesktopNotifier::askCapabilities()
{
    if (m_askingCapabilities)
        return;
    m_askingCapabilities = true;
    const QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("GetCapabilities"));
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, server = m_server](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        if (server != m_server)
            return;
        m_askingCapabilities = false;
        const QDBusPendingReply<QStringList> reply = *finished;
        m_readsMarkup = !reply.isError() && reply.value().contains(QStringLiteral("body-markup"));
        postWaiting();
    });
}

void FreedesktopNotifier::post(Slot slot, Message message)
{
    const auto shown = m_shown.find(slot);
    const uint replaces = shown == m_shown.end() ? 0 : shown->second;
    // A server that reads markup would take "<" or "&" in a figure or a translation for a tag.
    const QString body = *m_readsMarkup ? message.body.toHtmlEscaped() : message.body;
    const QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(kNormalUrgency)},
                            {QStringLiteral("desktop-entry"), kAppId},
                            {QStringLiteral("category"), QStringLiteral("device")}};
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Notify"));
    call << kAppName << replaces << kAppId << message.title << body << QStringList() << hints << kServerDecidesExpiry;
    m_sending.insert(slot);
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, slot, server = m_server](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        if (server != m_server)
            return;
        m_sending.erase(slot);
        const QDBusPendingReply<uint> reply = *finished;
        if (reply.isError())
            QTextStream(stderr) << "ferrow: the notification service did not show the alert: " << reply.error().message() << Qt::endl;
        else
            m_shown[slot] = reply.value();
        postWaiting();
    });
}

void FreedesktopNotifier::forgetServer()
{
    ++m_server;
    m_readsMarkup.reset();
    m_askingCapabilities = false;
    m_sending.clear();
    m_shown.clear();
    if (!m_waiting.empty())
        postWaiting();
}

bool hasNotificationService(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return false;
    const auto ask = [&bus](const QString &method, const QVariantList &arguments) {
        QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                                           QStringLiteral("org.freedesktop.DBus"), method);
        call.setArguments(arguments);
        const QDBusMessage reply = bus.call(call, QDBus::Block, kBusTimeoutMs);
        return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
    };
    // Many servers are started on demand, by the first notification.
    return ask(QStringLiteral("NameHasOwner"), {kService}).toBool()
        || ask(QStringLiteral("ListActivatableNames"), {}).toStringList().contains(kService);
}

} // namespace ferrow

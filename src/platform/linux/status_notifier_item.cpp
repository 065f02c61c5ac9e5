#include "platform/linux/status_notifier_item.h"

#include "platform/linux/dbus_menu.h"
#include "platform/linux/freedesktop_notifier.h"
#include "platform/menu_bar_menu.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTextStream>
#include <QtEndian>

namespace ferrow {
namespace {

const QString kWatcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString kItemPath = QStringLiteral("/StatusNotifierItem");
const QString kMenuPath = QStringLiteral("/MenuBar");
// Monochrome icons that the panel paints in its own text colour, as it does its own.
const QString kBoltIcon = QStringLiteral("ferrow-bolt-symbolic");
const QString kBatteryIcon = QStringLiteral("ferrow-battery-symbolic");
constexpr int kWatcherTimeoutMs = 2000;

// ARGB32 in network byte order, one entry per size.
struct SniIconPixmap {
    int width = 0;
    int height = 0;
    QByteArray argb;
};
using SniIconPixmapList = QList<SniIconPixmap>;

struct SniToolTip {
    QString iconName;
    SniIconPixmapList iconPixmaps;
    QString title;
    QString description;
};

} // namespace
} // namespace ferrow

Q_DECLARE_METATYPE(ferrow::SniIconPixmap)
Q_DECLARE_METATYPE(ferrow::SniToolTip)

namespace ferrow {
namespace {

QDBusArgument &operator<<(QDBusArgument &argument, const SniIconPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.argb;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, SniIconPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.argb;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const SniToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.iconPixmaps << toolTip.title << toolTip.description;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, SniToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.iconPixmaps >> toolTip.title >> toolTip.description;
    argument.endStructure();
    return argument;
}

SniIconPixmapList symbolPixmaps(const MenuBarSymbolPainter &paintSymbol, bool onExternalPower)
{
    SniIconPixmapList pixmaps;
    if (!paintSymbol)
        return pixmaps;
    for (const int side : {16, 22, 24, 32, 48}) {
        const QImage image = paintSymbol(onExternalPower, side).convertToFormat(QImage::Format_ARGB32);
        if (image.isNull())
            continue;
        SniIconPixmap pixmap{image.width(), image.height(), {}};
        pixmap.argb.reserve(qsizetype(image.width()) * image.height() * 4);
        for (int y = 0; y < image.height(); ++y) {
            const auto *line = reinterpret_cast<const quint32 *>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                const quint32 pixel = qToBigEndian(line[x]);
                pixmap.argb.append(reinterpret_cast<const char *>(&pixel), sizeof pixel);
            }
        }
        pixmaps.append(pixmap);
    }
    return pixmaps;
}

// A panel gives screen positions in device pixels, Qt takes them device-independent; (0, 0) is
// what a panel sends when it cannot tell.
std::optional<QPoint> fromDevicePixels(QPoint point)
{
    if (point.isNull())
        return std::nullopt;
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRect geometry = screen->geometry();
        const double ratio = screen->devicePixelRatio();
        if (QRect(geometry.topLeft(), geometry.size() * ratio).contains(point))
            return geometry.topLeft() + (point - geometry.topLeft()) / ratio;
    }
    return point;
}

} // namespace

// What the panel reads of the item and the calls it makes on it.
class StatusNotifierItemAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconThemePath READ iconThemePath)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(SniIconPixmapList IconPixmap READ iconPixmap)
    Q_PROPERTY(SniToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide)

public:
    StatusNotifierItemAdaptor(StatusNotifierItem &item, MenuBarSymbolPainter paintSymbol, const QString &iconThemePath)
        : QDBusAbstractAdaptor(&item)
        , m_item(item)
        , m_paintSymbol(std::move(paintSymbol))
        , m_iconThemePath(iconThemePath)
    {
        showIcon(false);
    }

    QString category() const { return QStringLiteral("Hardware"); }
    QString id() const { return QCoreApplication::applicationName(); }
    QString title() const { return QCoreApplication::applicationName(); }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString iconThemePath() const { return m_iconThemePath; }
    QString iconName() const { return m_iconName; }
    SniIconPixmapList iconPixmap() const { return m_iconPixmaps; }
    SniToolTip toolTip() const { return {QString(), {}, m_toolTip, QString()}; }
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menu() const { return QDBusObjectPath(kMenuPath); }
    QString label() const { return m_label; }
    QString labelGuide() const { return m_labelGuide; }

    // Says on the bus only what changed: a reading comes every second, mostly the same.
    void show(const MenuBarReading &reading)
    {
        if (showIcon(reading.onExternalPower))
            emit NewIcon();
        if (reading.toolTip != m_toolTip) {
            m_toolTip = reading.toolTip;
            emit NewToolTip();
        }
        const QString label = reading.showsPower ? reading.figureText : QString();
        const QString guide = reading.showsPower ? reading.figureGuide : QString();
        if (label != m_label || guide != m_labelGuide) {
            m_label = label;
            m_labelGuide = guide;
            emit XAyatanaNewLabel(m_label, m_labelGuide);
        }
    }

public slots:
    void Activate(int x, int y) { m_item.activate({x, y}); }
    void SecondaryActivate(int x, int y) { m_item.activate({x, y}); } // the item has one action
    void ContextMenu(int x, int y) { m_item.showMenu({x, y}); }
    void Scroll(int, const QString &) {}

signals:
    void NewTitle();
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString &status);
    void XAyatanaNewLabel(const QString &label, const QString &guide);

private:
    bool showIcon(bool onExternalPower)
    {
        const QString name = onExternalPower ? kBoltIcon : kBatteryIcon;
        if (name == m_iconName)
            return false;
        m_iconName = name;
        m_iconPixmaps = symbolPixmaps(m_paintSymbol, onExternalPower);
        return true;
    }

    StatusNotifierItem &m_item;
    MenuBarSymbolPainter m_paintSymbol;
    QString m_iconThemePath;
    QString m_iconName;
    SniIconPixmapList m_iconPixmaps;
    QString m_toolTip;
    QString m_label;
    QString m_labelGuide;
};

StatusNotifierItem::StatusNotifierItem(const QDBusConnection &bus, MenuBarSymbolPainter paintSymbol, const QString &iconThemePath)
    : m_bus(bus)
    , m_serviceName(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid()))
{
    qDBusRegisterMetaType<SniIconPixmap>();
    qDBusRegisterMetaType<SniIconPixmapList>();
    qDBusRegisterMetaType<SniToolTip>();
    addMenuBarItemActions(m_menu, *this);
    m_adaptor = new StatusNotifierItemAdaptor(*this, std::move(paintSymbol), iconThemePath);
    if (!exportDBusMenu(m_bus, kMenuPath, m_menu))
        QTextStream(stderr) << "ferrow: the tray item's menu could not be put on the session bus" << Qt::endl;
    if (!m_bus.registerObject(kItemPath, this, QDBusConnection::ExportAdaptors))
        QTextStream(stderr) << "ferrow: the tray item could not be put on the session bus" << Qt::endl;
    // Without its own name the item is known by the connection's.
    if (!m_bus.registerService(m_serviceName))
        m_serviceName = m_bus.baseService();
    m_watcherWatch = new QDBusServiceWatcher(kWatcherService, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(m_watcherWatch, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierItem::registerWithWatcher);
    registerWithWatcher();
}

StatusNotifierItem::~StatusNotifierItem()
{
    // The panel drops the item as soon as its name leaves the bus.
    if (m_serviceName != m_bus.baseService())
        m_bus.unregisterService(m_serviceName);
    m_bus.unregisterObject(kItemPath);
    m_bus.unregisterObject(kMenuPath);
}

void StatusNotifierItem::showReading(const MenuBarReading &reading)
{
    m_adaptor->show(reading);
}

QRect StatusNotifierItem::geometry() const
{
    return m_clickPoint ? QRect(*m_clickPoint, QSize(1, 1)) : QRect();
}

void StatusNotifierItem::showMessage(const QString &title, const QString &body)
{
    if (!m_messages && hasNotificationService(m_bus))
        m_messages = std::make_unique<FreedesktopNotifier>(m_bus);
    if (m_messages)
        m_messages->showMessage(title, body);
}

void StatusNotifierItem::registerWithWatcher()
{
    QDBusMessage call = QDBusMessage::createMethodCall(kWatcherService, kWatcherPath, kWatcherService, QStringLiteral("RegisterStatusNotifierItem"));
    call << m_serviceName;
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call, kWatcherTimeoutMs), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [](QDBusPendingCallWatcher *finished) {
        // A watcher that is gone again or refuses: the next watcher to come is asked anew.
        if (finished->isError())
            QTextStream(stderr) << "ferrow: the panel did not take the tray item: " << finished->error().message() << Qt::endl;
        finished->deleteLater();
    });
}

void StatusNotifierItem::activate(QPoint devicePoint)
{
    m_clickPoint = fromDevicePixels(devicePoint);
    emit activated();
}

void StatusNotifierItem::showMenu(QPoint devicePoint)
{
    m_clickPoint = fromDevicePixels(devicePoint);
    m_menu.popup(m_clickPoint.value_or(QCursor::pos()));
}

bool hasStatusNotifierHost(const QDBusConnection &bus)
{
    if (!bus.isConnected() || !bus.interface() || !bus.interface()->isServiceRegistered(kWatcherService))
        return false;
    QDBusMessage get = QDBusMessage::createMethodCall(kWatcherService, kWatcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    get << kWatcherService << QStringLiteral("IsStatusNotifierHostRegistered");
    get.setAutoStartService(false);
    const QDBusMessage reply = bus.call(get, QDBus::Block, kWatcherTimeoutMs);
    return reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()
        && reply.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

QString statusIconThemePath()
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString &candidate : {QStringLiteral("icons"), QStringLiteral("../share/icons")}) {
        const QString theme = program.absoluteFilePath(candidate);
        if (QFileInfo::exists(theme + QStringLiteral("/hicolor/scalable/status/") + kBoltIcon + QStringLiteral(".svg")))
            return QDir::cleanPath(theme);
    }
    return {};
}

} // namespace ferrow

#include "status_notifier_item.moc"

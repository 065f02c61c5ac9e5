#include "app/app_settings.h"
#include "support/private_home.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace ferrow;
using namespace ferrow::testing;

namespace {

const QString kWatcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kItemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString kItemPath = QStringLiteral("/StatusNotifierItem");
const QRegularExpression kFigureShape(QStringLiteral("^-?\\d+\\.\\d W$"));
constexpr int kStartMs = 30'000; // a sanitized build starts slowly

// A panel's side of the protocol: the watcher that items register with, with a host or without.
class Watcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ registeredItems)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

public:
    QStringList registrations; // every call, repeats included
    bool hasHost = true;

    QStringList registeredItems() const { return registrations; }
    bool isHostRegistered() const { return hasHost; }
    int protocolVersion() const { return 0; }

public slots:
    void RegisterStatusNotifierItem(const QString &service)
    {
        registrations.append(service);
        emit StatusNotifierItemRegistered(service);
    }
    void RegisterStatusNotifierHost(const QString &) {}

signals:
    void StatusNotifierItemRegistered(const QString &service);
    void StatusNotifierHostRegistered();
};

// The entries of a com.canonical.dbusmenu layout's root: id and label, "-" for a separator.
QList<std::pair<int, QString>> menuEntries(const QDBusArgument &root)
{
    QList<std::pair<int, QString>> entries;
    int id = 0;
    QVariantMap properties;
    root.beginStructure();
    root >> id >> properties;
    root.beginArray();
    while (!root.atEnd()) {
        QDBusVariant child;
        root >> child;
        const QDBusArgument entry = child.variant().value<QDBusArgument>();
        entry.beginStructure();
        entry >> id >> properties;
        entry.beginArray();
        while (!entry.atEnd()) {
            QDBusVariant grandchild;
            entry >> grandchild;
        }
        entry.endArray();
        entry.endStructure();
        const bool separator = properties.value(QStringLiteral("type")).toString() == u"separator";
        entries.append({id, separator ? QStringLiteral("-") : properties.value(QStringLiteral("label")).toString()});
    }
    root.endArray();
    root.endStructure();
    return entries;
}

} // namespace

// The real program on a private session bus and X server, seen from a panel's side: it registers
// its item with the watcher, shows the figure as the item's label and a symbolic icon the panel
// finds, opens the dashboard when clicked, and has its menu over D-Bus. Where no host is
// registered it is not an item at all, and the dashboard is a window.
class StatusNotifierItemTest : public QObject {
    Q_OBJECT

    QProcess m_busDaemon;
    QProcess m_xServer;
    QString m_busAddress;
    QString m_display;
    std::unique_ptr<QDBusConnection> m_bus;
    Watcher m_watcher;
    QTemporaryDir m_home;
    std::unique_ptr<QProcess> m_app;
    QString m_item; // the registered item's service
    QStringList m_labels; // the labels the item sent, in order

    static QString readLine(QProcess &process)
    {
        while (!process.canReadLine() && process.waitForReadyRead(10'000)) {
        }
        return QString::fromLocal8Bit(process.readLine()).trimmed();
    }

    void startApp(bool showPower)
    {
        QVERIFY(m_home.isValid());
        const QDir home(m_home.path());
        QDir(home.filePath(QStringLiteral("config/Ferrow"))).removeRecursively();
        QSettings settings(home.filePath(QStringLiteral("config/Ferrow/Ferrow.conf")), QSettings::IniFormat);
        QVERIFY(writePreferences(settings, Preferences{.showPowerInMenuBar = showPower, .keepHistory = false}));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        usePrivateHome(environment, home);
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("DISPLAY"), m_display);
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_busAddress);
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        m_app = std::make_unique<QProcess>();
        m_app->setProcessEnvironment(environment);
        m_app->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_app->setStandardOutputFile(QProcess::nullDevice());
        m_app->start(QStringLiteral(FERROW_APP_PATH), {});
        QVERIFY(m_app->waitForStarted());
    }

    void stopApp()
    {
        if (!m_app)
            return;
        m_app->terminate();
        if (!m_app->waitForFinished(10'000))
            m_app->kill();
        m_app->waitForFinished();
        m_app.reset();
    }

    // Waits for the next registration and listens to the item that made it.
    void waitForItem()
    {
        const qsizetype before = m_watcher.registrations.size();
        QTRY_VERIFY_WITH_TIMEOUT(m_watcher.registrations.size() > before, kStartMs);
        m_labels.clear();
        if (m_item == m_watcher.registrations.last())
            return;
        m_bus->disconnect(m_item, kItemPath, kItemInterface, QStringLiteral("XAyatanaNewLabel"), this, SLOT(newLabel(QString, QString)));
        m_item = m_watcher.registrations.last();
        QVERIFY(m_bus->connect(m_item, kItemPath, kItemInterface, QStringLiteral("XAyatanaNewLabel"), this,
                               SLOT(newLabel(QString, QString))));
    }

    QVariant itemProperty(const QString &name) const
    {
        QDBusMessage get = QDBusMessage::createMethodCall(m_item, kItemPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        get << kItemInterface << name;
        const QDBusMessage reply = m_bus->call(get, QDBus::Block, 5000);
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }

    QString xdotool(const QStringList &arguments) const
    {
        QProcess xdotool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), m_display);
        xdotool.setProcessEnvironment(environment);
        xdotool.start(QStringLiteral("xdotool"), arguments);
        xdotool.waitForFinished();
        return QString::fromLocal8Bit(xdotool.readAllStandardOutput());
    }

    // The id of the X server's visible window with that exact title; empty while there is none.
    QString visibleWindow(const QString &title) const
    {
        const QString found = xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"), u'^' + title + u'$'});
        return found.section(u'\n', 0, 0).trimmed();
    }

    QRect windowGeometry(const QString &window) const
    {
        QVariantMap values;
        for (const QString &line : xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), window}).split(u'\n'))
            values.insert(line.section(u'=', 0, 0), line.section(u'=', 1).toInt());
        return {values.value(QStringLiteral("X")).toInt(), values.value(QStringLiteral("Y")).toInt(),
                values.value(QStringLiteral("WIDTH")).toInt(), values.value(QStringLiteral("HEIGHT")).toInt()};
    }

    QList<std::pair<int, QString>> menu() const
    {
        const QString path = itemProperty(QStringLiteral("Menu")).value<QDBusObjectPath>().path();
        QDBusMessage getLayout = QDBusMessage::createMethodCall(m_item, path, QStringLiteral("com.canonical.dbusmenu"), QStringLiteral("GetLayout"));
        getLayout << 0 << -1 << QStringList();
        const QDBusMessage reply = m_bus->call(getLayout, QDBus::Block, 5000);
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().size() != 2) {
            qWarning("GetLayout: %s", qPrintable(reply.errorMessage()));
            return {};
        }
        return menuEntries(reply.arguments().at(1).value<QDBusArgument>());
    }

private slots:
    void newLabel(const QString &label, const QString &) { m_labels.append(label); }

    void initTestCase()
    {
        m_busDaemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
        QVERIFY(m_busDaemon.waitForStarted());
        m_busAddress = readLine(m_busDaemon);
        QVERIFY2(!m_busAddress.isEmpty(), "dbus-daemon said no address");
        m_xServer.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                                                 QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                                 QStringLiteral("-noreset")});
        QVERIFY(m_xServer.waitForStarted());
        m_display = u':' + readLine(m_xServer);
        QVERIFY2(m_display.size() > 1, "Xvfb said no display");

        m_bus = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(m_busAddress, QStringLiteral("panel")));
        QVERIFY(m_bus->isConnected());
        QVERIFY(m_bus->registerObject(QStringLiteral("/StatusNotifierWatcher"), &m_watcher,
                                      QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals | QDBusConnection::ExportAllProperties));
        QVERIFY(m_bus->registerService(kWatcherService));
    }

    void cleanupTestCase()
    {
        stopApp();
        m_bus.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("panel"));
        for (QProcess *process : {&m_xServer, &m_busDaemon}) {
            process->terminate();
            process->waitForFinished();
        }
    }

    void showsASymbolicIconThePanelFinds()
    {
        startApp(true);
        waitForItem();
        const QString icon = itemProperty(QStringLiteral("IconName")).toString();
        QVERIFY2(icon.endsWith(u"-symbolic"), qPrintable(icon));
        // A run from the build tree names where its icons are.
        const QString theme = itemProperty(QStringLiteral("IconThemePath")).toString();
        QVERIFY2(QFile::exists(theme + QStringLiteral("/hicolor/scalable/status/") + icon + QStringLiteral(".svg")), qPrintable(theme));
    }

    void labelIsTheFigureAndFollowsIt()
    {
        const QString label = itemProperty(QStringLiteral("XAyatanaLabel")).toString();
        const QString guide = itemProperty(QStringLiteral("XAyatanaLabelGuide")).toString();
        QVERIFY2(guide.size() >= label.size(), qPrintable(guide));
        if (label == u"\u2014 W")
            QSKIP("this machine's reading has no figure to follow");
        QVERIFY2(kFigureShape.match(label).hasMatch(), qPrintable(label));
        QTRY_VERIFY_WITH_TIMEOUT(m_labels.size() >= 2, 15'000);
        for (qsizetype i = 0; i < m_labels.size(); ++i) {
            QVERIFY2(kFigureShape.match(m_labels[i]).hasMatch(), qPrintable(m_labels[i]));
            QVERIFY2(i == 0 || m_labels[i] != m_labels[i - 1], qPrintable(m_labels[i] + QStringLiteral(" sent twice in a row")));
        }
        QCOMPARE(itemProperty(QStringLiteral("XAyatanaLabel")).toString(), m_labels.last());
    }

    void activateOpensTheDashboardWhereClicked()
    {
        QVERIFY(visibleWindow(QStringLiteral("FERROW")).isEmpty());
        const QPoint click(1000, 5);
        m_bus->call(QDBusMessage::createMethodCall(m_item, kItemPath, kItemInterface, QStringLiteral("Activate")) << click.x() << click.y());
        QString window;
        QTRY_VERIFY_WITH_TIMEOUT(!(window = visibleWindow(QStringLiteral("FERROW"))).isEmpty(), 10'000);
        const QRect dashboard = windowGeometry(window);
        QVERIFY2(qAbs(dashboard.center().x() - click.x()) <= 2 && dashboard.top() > click.y() && dashboard.top() < 40,
                 qPrintable(QStringLiteral("at %1,%2").arg(dashboard.x()).arg(dashboard.y())));
    }

    void menuShowsTheDashboardOrQuits()
    {
        const QList<std::pair<int, QString>> entries = menu();
        QStringList labels;
        for (const auto &[id, label] : entries)
            labels.append(label);
        QCOMPARE(labels, (QStringList{QStringLiteral("Show dashboard"), QStringLiteral("-"), QStringLiteral("Quit Ferrow")}));
        QDBusMessage click = QDBusMessage::createMethodCall(m_item, itemProperty(QStringLiteral("Menu")).value<QDBusObjectPath>().path(),
                                                           QStringLiteral("com.canonical.dbusmenu"), QStringLiteral("Event"));
        click << entries.last().first << QStringLiteral("clicked") << QVariant::fromValue(QDBusVariant(0)) << 0u;
        m_bus->call(click);
        QVERIFY(m_app->waitForFinished(10'000));
        QCOMPARE(m_app->exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_app->exitCode(), 0);
        m_app.reset();
    }

    // Switched off, the figure leaves an empty label, which is not sent again with each reading.
    void emptyLabelIsNotResent()
    {
        startApp(false);
        waitForItem();
        QCOMPARE(itemProperty(QStringLiteral("XAyatanaLabel")).toString(), QString());
        QTest::qWait(3500);
        QCOMPARE(m_labels, QStringList());
    }

    // A panel that restarts brings a new watcher, which the item registers with again.
    void registersAgainWithANewWatcher()
    {
        QVERIFY(m_bus->unregisterService(kWatcherService));
        QVERIFY(m_bus->registerService(kWatcherService));
        waitForItem();
        stopApp();
    }

    void withoutAHostTheDashboardIsAWindow()
    {
        m_watcher.hasHost = false;
        const qsizetype registrations = m_watcher.registrations.size();
        startApp(true);
        QTRY_VERIFY_WITH_TIMEOUT(!visibleWindow(QStringLiteral("FERROW")).isEmpty(), kStartMs);
        QCOMPARE(m_watcher.registrations.size(), registrations);
        stopApp();
        m_watcher.hasHost = true;
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    for (const char *tool : {"dbus-daemon", "Xvfb", "xdotool"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) {
            QTextStream(stdout) << "skipped: " << tool << " is not installed" << Qt::endl;
            return 77;
        }
    }
    StatusNotifierItemTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_status_notifier_item.moc"

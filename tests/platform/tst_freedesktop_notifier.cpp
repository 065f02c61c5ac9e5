#include "platform/linux/freedesktop_notifier.h"
#include "platform/native_desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace ferrow;

namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");

struct Notification {
    uint id = 0;
    QString appName;
    uint replacesId = 0;
    QString appIcon;
    QString summary;
    QString body;
    QVariantMap hints;
    int expireTimeout = 0;
};

// The desktop's side: a notification server that records what it is asked to show.
class NotificationServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QList<Notification> shown;
    QStringList capabilities{QStringLiteral("body")};

public slots:
    uint Notify(const QString &appName, uint replacesId, const QString &appIcon, const QString &summary, const QString &body,
                const QStringList &, const QVariantMap &hints, int expireTimeout)
    {
        shown.append({replacesId ? replacesId : uint(shown.size()) + 100, appName, replacesId, appIcon, summary, body, hints, expireTimeout});
        return shown.last().id;
    }
    QStringList GetCapabilities() const { return capabilities; }
};

} // namespace

// Alerts reach a notification server on a private session bus: the program's desktop entry and
// icon, a new alert of a kind in place of that kind's last, markup escaped only where it is read.
class FreedesktopNotifierTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QProcess m_busDaemon;
    std::unique_ptr<QDBusConnection> m_serverBus;
    NotificationServer m_server;

    QString serviceFile() const { return m_folder.filePath(QStringLiteral("services/notifications.service")); }
    QString startedMark() const { return m_folder.filePath(QStringLiteral("started")); }

    void reloadBusConfig() const
    {
        m_serverBus->call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                                         QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReloadConfig")));
    }

    std::unique_ptr<FreedesktopNotifier> runningServerNotifier(const QStringList &capabilities)
    {
        m_server.shown.clear();
        m_server.capabilities = capabilities;
        if (!m_serverBus->registerService(kService))
            return nullptr;
        return std::make_unique<FreedesktopNotifier>(QDBusConnection::sessionBus());
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        QDir(m_folder.path()).mkpath(QStringLiteral("services"));
        // A bus of the test's own, whose only activatable services are the test's.
        QFile config(m_folder.filePath(QStringLiteral("bus.conf")));
        QVERIFY(config.open(QIODevice::WriteOnly));
        config.write(QStringLiteral("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN\"\n"
                                    " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
                                    "<busconfig><type>session</type><listen>unix:dir=%1</listen><servicedir>%1/services</servicedir>"
                                    "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                                    "<allow own=\"*\"/></policy></busconfig>\n")
                         .arg(m_folder.path())
                         .toUtf8());
        config.close();
        m_busDaemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + config.fileName(), QStringLiteral("--nofork"),
                                                          QStringLiteral("--print-address=1")});
        QVERIFY(m_busDaemon.waitForStarted());
        QTRY_VERIFY(m_busDaemon.canReadLine());
        const QByteArray address = m_busDaemon.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address); // before the first use of the session bus
        m_serverBus = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(QString::fromUtf8(address), QStringLiteral("server")));
        QVERIFY(m_serverBus->isConnected());
        QVERIFY(m_serverBus->registerObject(QStringLiteral("/org/freedesktop/Notifications"), &m_server, QDBusConnection::ExportAllSlots));
    }

    void cleanup()
    {
        m_serverBus->unregisterService(kService);
        QFile::remove(serviceFile());
        reloadBusConfig();
    }

    void cleanupTestCase()
    {
        m_serverBus.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("server"));
        m_busDaemon.terminate();
        m_busDaemon.waitForFinished();
    }

    void createdWhereAServerRunsOrWouldBeStarted_data()
    {
        QTest::addColumn<bool>("running");
        QTest::addColumn<bool>("activatable");
        QTest::newRow("no server") << false << false;
        QTest::newRow("running") << true << false;
        QTest::newRow("started by the first notification") << false << true;
    }

    void createdWhereAServerRunsOrWouldBeStarted()
    {
        QFETCH(bool, running);
        QFETCH(bool, activatable);
        if (running)
            QVERIFY(m_serverBus->registerService(kService));
        if (activatable) {
            QFile service(serviceFile());
            QVERIFY(service.open(QIODevice::WriteOnly));
            service.write(QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2 %3\n")
                              .arg(kService, QStandardPaths::findExecutable(QStringLiteral("touch")), startedMark())
                              .toUtf8());
            service.close();
            reloadBusConfig();
        }
        QCOMPARE(bool(createNotifier()), running || activatable);
        QTest::qWait(100);
        QVERIFY2(!QFile::exists(startedMark()), "asking started the server");
    }

    void postsAsTheInstalledApplication()
    {
        std::unique_ptr<FreedesktopNotifier> notifier = runningServerNotifier({QStringLiteral("body")});
        QVERIFY(notifier);
        notifier->notify({AlertKind::batteryHot, QStringLiteral("Battery hot"), QStringLiteral("The battery is at 45.0 °C.")});
        QTRY_COMPARE(m_server.shown.size(), 1);
        const Notification &shown = m_server.shown.constFirst();
        QCOMPARE(shown.appName, QStringLiteral("Ferrow"));
        QCOMPARE(shown.summary, QStringLiteral("Battery hot"));
        QCOMPARE(shown.body, QStringLiteral("The battery is at 45.0 °C."));
        QCOMPARE(shown.expireTimeout, -1);
        QCOMPARE(shown.hints.value(QStringLiteral("urgency")).typeId(), QMetaType::UChar); // a server ignores any other type
        QCOMPARE(shown.hints.value(QStringLiteral("urgency")).toInt(), 1);
        QCOMPARE(shown.hints.value(QStringLiteral("category")).toString(), QStringLiteral("device"));
        // The entry and the icon the package installs, which the server finds by these names.
        const QString entry = shown.hints.value(QStringLiteral("desktop-entry")).toString();
        QFile desktopFile(QStringLiteral(FERROW_SOURCE_DIR "/resources/linux/") + entry + QStringLiteral(".desktop"));
        QVERIFY2(desktopFile.open(QIODevice::ReadOnly), qPrintable(entry));
        QVERIFY(QString::fromUtf8(desktopFile.readAll()).split(u'\n').contains(QStringLiteral("Icon=") + shown.appIcon));
    }

    // Each kind has its own notification, and so have the tray's messages; one sent while the last
    // of its kind is on its way still finds it.
    void replacesTheLastOfItsKind()
    {
        std::unique_ptr<FreedesktopNotifier> notifier = runningServerNotifier({QStringLiteral("body")});
        QVERIFY(notifier);
        notifier->notify({AlertKind::batteryHot, QStringLiteral("a"), {}});
        QTRY_COMPARE(m_server.shown.size(), 1);
        notifier->notify({AlertKind::batteryHot, QStringLiteral("b"), {}});
        notifier->notify({AlertKind::chargingSlowly, QStringLiteral("c"), {}});
        notifier->showMessage(QStringLiteral("d"), {});
        notifier->notify({AlertKind::chargingSlowly, QStringLiteral("e"), {}});
        QTRY_COMPARE(m_server.shown.size(), 5);
        notifier->showMessage(QStringLiteral("f"), {});
        QTRY_COMPARE(m_server.shown.size(), 6);
        QMap<QString, uint> replaces;
        QMap<QString, uint> ids;
        for (const Notification &shown : std::as_const(m_server.shown)) {
            replaces.insert(shown.summary, shown.replacesId);
            ids.insert(shown.summary, shown.id);
        }
        const QMap<QString, uint> expected{{QStringLiteral("a"), 0}, {QStringLiteral("b"), ids.value(QStringLiteral("a"))},
                                           {QStringLiteral("c"), 0}, {QStringLiteral("d"), 0},
                                           {QStringLiteral("e"), ids.value(QStringLiteral("c"))}, {QStringLiteral("f"), ids.value(QStringLiteral("d"))}};
        QCOMPARE(replaces, expected);
    }

    void escapesTheBodyWhereTheServerReadsMarkup_data()
    {
        QTest::addColumn<QStringList>("capabilities");
        QTest::addColumn<QString>("body");
        QTest::newRow("markup") << QStringList{QStringLiteral("body"), QStringLiteral("body-markup")} << QStringLiteral("5 W &lt; 20 W &amp; falling");
        QTest::newRow("plain text") << QStringList{QStringLiteral("body")} << QStringLiteral("5 W < 20 W & falling");
    }

    void escapesTheBodyWhereTheServerReadsMarkup()
    {
        QFETCH(QStringList, capabilities);
        QFETCH(QString, body);
        std::unique_ptr<FreedesktopNotifier> notifier = runningServerNotifier(capabilities);
        QVERIFY(notifier);
        notifier->notify({AlertKind::chargerCannotKeepUp, QStringLiteral("Charger & battery"), QStringLiteral("5 W < 20 W & falling")});
        QTRY_COMPARE(m_server.shown.size(), 1);
        QCOMPARE(m_server.shown.constFirst().body, body);
        QCOMPARE(m_server.shown.constFirst().summary, QStringLiteral("Charger & battery"));
    }

    // A restarted server numbers its notifications anew, maybe giving the old ids to others.
    void replacesNothingOfAServerThatRestarted()
    {
        std::unique_ptr<FreedesktopNotifier> notifier = runningServerNotifier({QStringLiteral("body")});
        QVERIFY(notifier);
        notifier->notify({AlertKind::batteryHot, QStringLiteral("before"), {}});
        QTRY_COMPARE(m_server.shown.size(), 1);
        QDBusServiceWatcher watcher(kService, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration);
        QSignalSpy registered(&watcher, &QDBusServiceWatcher::serviceRegistered);
        QVERIFY(m_serverBus->unregisterService(kService));
        QVERIFY(m_serverBus->registerService(kService));
        QVERIFY(registered.wait());
        notifier->notify({AlertKind::batteryHot, QStringLiteral("after"), {}});
        QTRY_COMPARE(m_server.shown.size(), 2);
        QCOMPARE(m_server.shown.last().replacesId, 0u);
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty()) {
        QTextStream(stdout) << "skipped: dbus-daemon is not installed" << Qt::endl;
        return 77;
    }
    FreedesktopNotifierTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_freedesktop_notifier.moc"

#include "platform/linux/freedesktop_notifier.h"
#include "platform/native_desktop.h"

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
    uint replacesId = 0;
    QString appName, appIcon, summary, body;
    QVariantMap hints;
    int expireTimeout = 0;
};

// The desktop's side: a notification server that records what it is asked to show.
class NotificationServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QList<Notification> shown;
    QStringList capabilities;

public slots:
    uint Notify(const QString &appName, uint replacesId, const QString &appIcon, const QString &summary, const QString &body,
                const QStringList &, const QVariantMap &hints, int expireTimeout)
    {
        shown.append({replacesId ? replacesId : uint(shown.size()) + 100, replacesId, appName, appIcon, summary, body, hints, expireTimeout});
        return shown.last().id;
    }
    QStringList GetCapabilities() const { return capabilities; }
};

QString writeFile(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.toUtf8().size() ? path : QString();
}

} // namespace

// Alerts reach a notification server on a private session bus: as the installed program, a new
// alert of a kind in place of that kind's last, markup escaped only where the server reads it.
class FreedesktopNotifierTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QProcess m_busDaemon;
    std::unique_ptr<QDBusConnection> m_serverBus;
    NotificationServer m_server;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    void reloadBusConfig() const
    {
        m_serverBus->call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                                         QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReloadConfig")));
    }

    std::unique_ptr<FreedesktopNotifier> notifierOfARunningServer(const QStringList &capabilities = {QStringLiteral("body")})
    {
        m_server.shown.clear();
        m_server.capabilities = capabilities;
        return m_serverBus->registerService(kService) ? std::make_unique<FreedesktopNotifier>(QDBusConnection::sessionBus()) : nullptr;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid() && QDir(m_folder.path()).mkpath(QStringLiteral("services")));
        // The test's own bus, whose only activatable services are the test's.
        const QString config = writeFile(path(QStringLiteral("bus.conf")),
                                         QStringLiteral("<busconfig><type>session</type><listen>unix:dir=%1</listen><servicedir>%1/services</servicedir>"
                                                        "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                                        "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>")
                                             .arg(m_folder.path()));
        m_busDaemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--config-file=") + config, QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
        QTRY_VERIFY(m_busDaemon.canReadLine());
        const QByteArray address = m_busDaemon.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address); // before the first use of the session bus
        m_serverBus = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(QString::fromUtf8(address), QStringLiteral("server")));
        QVERIFY(m_serverBus->registerObject(QStringLiteral("/org/freedesktop/Notifications"), &m_server, QDBusConnection::ExportAllSlots));
    }

    void cleanup()
    {
        m_serverBus->unregisterService(kService);
        QFile::remove(path(QStringLiteral("services/notifications.service")));
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
        QVERIFY(!running || m_serverBus->registerService(kService));
        if (activatable) {
            QVERIFY(!writeFile(path(QStringLiteral("services/notifications.service")),
                               QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2 %3\n")
                                   .arg(kService, QStandardPaths::findExecutable(QStringLiteral("touch")), path(QStringLiteral("started"))))
                         .isEmpty());
            reloadBusConfig();
        }
        QCOMPARE(bool(createNotifier()), running || activatable);
        QVERIFY2(!QFile::exists(path(QStringLiteral("started"))), "asking started the server");
    }

    void postsAsTheInstalledProgram_data()
    {
        QTest::addColumn<QStringList>("capabilities");
        QTest::addColumn<QString>("body");
        QTest::newRow("server reads markup") << QStringList{QStringLiteral("body"), QStringLiteral("body-markup")} << QStringLiteral("5 W &lt; 20 W &amp; falling");
        QTest::newRow("server reads plain text") << QStringList{QStringLiteral("body")} << QStringLiteral("5 W < 20 W & falling");
    }

    void postsAsTheInstalledProgram()
    {
        QFETCH(QStringList, capabilities);
        QFETCH(QString, body);
        std::unique_ptr<FreedesktopNotifier> notifier = notifierOfARunningServer(capabilities);
        QVERIFY(notifier);
        notifier->notify({AlertKind::chargerCannotKeepUp, QStringLiteral("Charger & battery"), QStringLiteral("5 W < 20 W & falling")});
        QTRY_COMPARE(m_server.shown.size(), 1);
        const Notification &shown = m_server.shown.constFirst();
        QCOMPARE(shown.body, body);
        QCOMPARE(shown.summary, QStringLiteral("Charger & battery")); // plain text always
        QCOMPARE(shown.appName, QStringLiteral("Ferrow"));
        QCOMPARE(shown.expireTimeout, -1);
        QCOMPARE(shown.hints.value(QStringLiteral("urgency")).typeId(), QMetaType::UChar); // a server ignores any other type
        QCOMPARE(shown.hints.value(QStringLiteral("urgency")).toInt(), 1);
        QCOMPARE(shown.hints.value(QStringLiteral("category")).toString(), QStringLiteral("device"));
        // The entry and the icon the package installs, by which the server finds the program.
        QFile entry(QStringLiteral(FERROW_SOURCE_DIR "/resources/linux/%1.desktop").arg(shown.hints.value(QStringLiteral("desktop-entry")).toString()));
        QVERIFY2(entry.open(QIODevice::ReadOnly), qPrintable(entry.fileName()));
        QVERIFY(QString::fromUtf8(entry.readAll()).split(u'\n').contains(QStringLiteral("Icon=") + shown.appIcon));
    }

    // Each kind has a notification of its own, and so have the tray's messages; one sent while the
    // last of its kind is still on its way replaces that one too.
    void replacesTheLastOfItsKind()
    {
        std::unique_ptr<FreedesktopNotifier> notifier = notifierOfARunningServer();
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

    // A restarted server numbers its notifications anew, maybe giving the old ids to others.
    void replacesNothingOfAServerThatRestarted()
    {
        std::unique_ptr<FreedesktopNotifier> notifier = notifierOfARunningServer();
        QVERIFY(notifier);
        notifier->notify({AlertKind::batteryHot, QStringLiteral("before"), {}});
        QTRY_COMPARE(m_server.shown.size(), 1);
        QDBusServiceWatcher watcher(kService, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration);
        QSignalSpy registered(&watcher, &QDBusServiceWatcher::serviceRegistered);
        QVERIFY(m_serverBus->unregisterService(kService) && m_serverBus->registerService(kService));
        QVERIFY(registered.wait()); // after the notifier has heard of the old server's going
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

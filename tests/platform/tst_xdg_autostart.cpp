#include "platform/linux/xdg_autostart_login_item.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrow;

class TestXdgAutostart : public QObject {
    Q_OBJECT
private slots:
    // Each row switches the entry on, lets the desktop append a line, and switches it off again.
    void autostartEntry_data()
    {
        QTest::addColumn<QString>("command"); // empty: this program
        QTest::addColumn<bool>("folderBlocked");
        QTest::addColumn<QByteArray>("appended");
        QTest::addColumn<QByteArray>("execLine"); // empty: not checked
        QTest::addColumn<bool>("enabledAfter");
        QTest::newRow("quotes escaped") << QStringLiteral("/opt/Ferrow \"beta\"/ferrow") << false << QByteArray()
                                        << QByteArray("\nExec=\"/opt/Ferrow \\\"beta\\\"/ferrow\"\n") << true;
        // The packaged desktop entry says Exec=ferrow; a plain command must not gain quotes.
        QTest::newRow("plain command") << QStringLiteral("ferrow") << false << QByteArray() << QByteArray("\nExec=ferrow\n") << true;
        QTest::newRow("switched off by the desktop") << QString() << false << QByteArray("Hidden=true\n") << QByteArray() << false;
        QTest::newRow("a file where the folder should be") << QString() << true << QByteArray() << QByteArray() << false;
    }

    void autostartEntry()
    {
        QFETCH(QString, command);
        QFETCH(bool, folderBlocked);
        QFETCH(QByteArray, appended);
        QFETCH(QByteArray, execLine);
        QFETCH(bool, enabledAfter);
        QTemporaryDir home;
        const QString folder = home.filePath(QStringLiteral("autostart"));
        if (folderBlocked)
            QVERIFY(QFile(folder).open(QIODevice::WriteOnly));
        XdgAutostartLoginItem item(folder, command);
        QCOMPARE(item.state(), LoginItemState::disabled);
        QCOMPARE(item.setEnabled(true), !folderBlocked);
        QFile entry(item.entryPath());
        if (!folderBlocked) {
            QVERIFY(entry.open(QIODevice::ReadWrite)); // read to the end, then append
            const QByteArray text = entry.readAll();
            QVERIFY2(text.startsWith("[Desktop Entry]\n") && text.contains(execLine), text.constData());
            entry.write(appended);
            entry.close();
        }
        QCOMPARE(item.state() == LoginItemState::enabled, enabledAfter);
        QVERIFY(item.setEnabled(false)); // when already off too: nothing to do, no failure
        QCOMPARE(item.state(), LoginItemState::disabled);
    }
};

QTEST_GUILESS_MAIN(TestXdgAutostart)
#include "tst_xdg_autostart.moc"

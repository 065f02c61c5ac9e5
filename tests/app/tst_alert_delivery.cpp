#include "app/alert_delivery.h"
#include "platform/menu_bar_item.h"
#include "platform/notifier.h"

#include <QTest>

using namespace ferrow;

namespace {

struct FakeNotifier final : Notifier {
    NotificationPermission granted = NotificationPermission::granted;
    QStringList shown;
    void notify(const Alert &alert) override { shown.append(alert.title); }
    NotificationPermission permission() const override { return granted; }
};

struct FakeMenuBarItem final : MenuBarItem {
    QStringList shown;
    void showReading(const MenuBarReading &) override {}
    QRect geometry() const override { return {}; }
    void showMessage(const QString &title, const QString &) override { shown.append(title); }
};

} // namespace

class AlertDeliveryTest : public QObject {
    Q_OBJECT

private slots:
    void goesToTheCentreElseTheItem_data()
    {
        QTest::addColumn<bool>("hasCentre");
        QTest::addColumn<NotificationPermission>("permission");
        QTest::addColumn<bool>("hasItem");
        QTest::addColumn<QString>("shownBy");
        QTest::newRow("centre not yet asked") << true << NotificationPermission::notAsked << true << QStringLiteral("centre");
        QTest::newRow("centre refused") << true << NotificationPermission::denied << true << QStringLiteral("item");
        QTest::newRow("no centre") << false << NotificationPermission::granted << true << QStringLiteral("item");
        QTest::newRow("neither") << false << NotificationPermission::granted << false << QString();
    }

    void goesToTheCentreElseTheItem()
    {
        QFETCH(bool, hasCentre);
        QFETCH(NotificationPermission, permission);
        QFETCH(bool, hasItem);
        QFETCH(QString, shownBy);
        FakeNotifier centre;
        centre.granted = permission;
        FakeMenuBarItem item;
        AlertDelivery(hasCentre ? &centre : nullptr, hasItem ? &item : nullptr).deliver({AlertKind::batteryHot, QStringLiteral("hot"), {}});
        QCOMPARE(centre.shown, shownBy == u"centre" ? QStringList{QStringLiteral("hot")} : QStringList());
        QCOMPARE(item.shown, shownBy == u"item" ? QStringList{QStringLiteral("hot")} : QStringList());
    }
};

QTEST_GUILESS_MAIN(AlertDeliveryTest)

#include "tst_alert_delivery.moc"

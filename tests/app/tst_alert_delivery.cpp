#include "app/alert_delivery.h"
#include "platform/menu_bar_item.h"
#include "platform/notifier.h"

#include <QTest>

#include <optional>

using namespace ferrow;

namespace {

class FakeNotifier final : public Notifier {
public:
    explicit FakeNotifier(NotificationPermission permission)
        : m_permission(permission)
    {
    }
    void notify(const Alert &alert) override { alerts.append(alert); }
    NotificationPermission permission() const override { return m_permission; }

    QList<Alert> alerts;

private:
    NotificationPermission m_permission;
};

class FakeMenuBarItem final : public MenuBarItem {
public:
    void showReading(const MenuBarReading &) override {}
    QRect geometry() const override { return {}; }
    void showMessage(const QString &title, const QString &body) override { messages.append(title + u'|' + body); }

    QStringList messages;
};

} // namespace

Q_DECLARE_METATYPE(std::optional<ferrow::NotificationPermission>)

class AlertDeliveryTest : public QObject {
    Q_OBJECT

private slots:
    void goesToTheFirstThatCanShowIt_data()
    {
        QTest::addColumn<std::optional<NotificationPermission>>("centre"); // none: the system has no centre
        QTest::addColumn<bool>("hasItem");
        QTest::addColumn<QString>("expected");
        QTest::newRow("centre allowed") << std::optional(NotificationPermission::granted) << true << QStringLiteral("centre");
        QTest::newRow("centre not yet asked") << std::optional(NotificationPermission::notAsked) << true << QStringLiteral("centre");
        QTest::newRow("centre refused") << std::optional(NotificationPermission::denied) << true << QStringLiteral("item");
        QTest::newRow("no centre") << std::optional<NotificationPermission>() << true << QStringLiteral("item");
        QTest::newRow("centre refused, no item") << std::optional(NotificationPermission::denied) << false << QString();
        QTest::newRow("neither") << std::optional<NotificationPermission>() << false << QString();
    }

    void goesToTheFirstThatCanShowIt()
    {
        QFETCH(std::optional<NotificationPermission>, centre);
        QFETCH(bool, hasItem);
        QFETCH(QString, expected);
        std::optional<FakeNotifier> notifier;
        if (centre)
            notifier.emplace(*centre);
        FakeMenuBarItem item;
        const Alert alert{AlertKind::batteryHot, QStringLiteral("Battery hot"), QStringLiteral("45.0 °C")};
        AlertDelivery(notifier ? &*notifier : nullptr, hasItem ? &item : nullptr).deliver(alert);
        QCOMPARE(notifier ? notifier->alerts : QList<Alert>(), expected == u"centre" ? QList<Alert>{alert} : QList<Alert>());
        QCOMPARE(item.messages, expected == u"item" ? QStringList{QStringLiteral("Battery hot|45.0 °C")} : QStringList());
    }
};

QTEST_GUILESS_MAIN(AlertDeliveryTest)

#include "tst_alert_delivery.moc"

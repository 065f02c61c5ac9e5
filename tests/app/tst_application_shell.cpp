#include "app/app_settings.h"
#include "app/application_shell.h"
#include "app/text_table.h"
#include "monitor/sleep_wake_notifier.h"
#include "views/dashboard_view.h"
#include "views/meter_card.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrow;

namespace {

// A login-item service the test controls: it can refuse every change.
class FakeLoginItem final : public LoginItem {
public:
    explicit FakeLoginItem(bool refuses) : m_refuses(refuses) {}
    bool isEnabled() const override { return m_enabled; }
    bool setEnabled(bool enabled) override
    {
        if (m_refuses)
            return false;
        m_enabled = enabled;
        return true;
    }

private:
    bool m_refuses;
    bool m_enabled = false;
};

std::unique_ptr<ApplicationShell> makeShell(bool loginRefuses)
{
    QString error;
    std::optional<OpenedMachine> machine = openMachine(*MachineSource::parse(QStringLiteral("simulated")), &error);
    return std::make_unique<ApplicationShell>(std::move(*machine), std::make_unique<SleepWakeNotifier>(),
                                              std::make_unique<FakeLoginItem>(loginRefuses), nullptr);
}

} // namespace

class ApplicationShellTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_config;

private slots:
    void initTestCase()
    {
        QVERIFY(installTextTable(*QCoreApplication::instance()));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_config.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_config.path());
        QCoreApplication::setOrganizationName(QStringLiteral("FerrowTest"));
        QCoreApplication::setApplicationName(QStringLiteral("FerrowTest"));
    }

    void withoutATrayTheDashboardIsAWindowThatSaysWhy()
    {
        auto shell = makeShell(false);
        shell->start();
        QVERIFY(shell->dashboardWindow()->isVisible());
        QVERIFY(shell->dashboardWindow()->findChild<QLabel *>(QStringLiteral("noTrayNotice")));
        // Readings arrive and reach the meters; the simulated machine is named as such.
        const auto *power = shell->dashboard()->findChild<MeterCard *>();
        QTRY_VERIFY(power->value().value_or(0.0) > 15.0); // the simulated adapter, not the empty reading
    }

    void menuBarChoiceIsStoredAndSurvivesARestart()
    {
        {
            auto shell = makeShell(false);
            auto *box = shell->dashboard()->findChild<QCheckBox *>(QStringLiteral("showPowerInMenuBar"));
            QVERIFY(box->isChecked()); // the default
            box->click();
        }
        QCOMPARE(QSettings().value(AppSetting::showPowerInMenuBar).toBool(), false);
        auto restarted = makeShell(false);
        QVERIFY(!restarted->dashboard()->findChild<QCheckBox *>(QStringLiteral("showPowerInMenuBar"))->isChecked());
        QSettings().remove(AppSetting::showPowerInMenuBar);
    }

    void refusedLoginItemSnapsTheBoxBack_data()
    {
        QTest::addColumn<bool>("refuses");
        QTest::addColumn<bool>("checkedAfter");
        QTest::newRow("accepted") << false << true;
        QTest::newRow("refused") << true << false;
    }

    void refusedLoginItemSnapsTheBoxBack()
    {
        QFETCH(bool, refuses);
        QFETCH(bool, checkedAfter);
        auto shell = makeShell(refuses);
        auto *box = shell->dashboard()->findChild<QCheckBox *>(QStringLiteral("launchAtLogin"));
        QVERIFY(!box->isChecked());
        box->click();
        QCOMPARE(box->isChecked(), checkedAfter);
    }
};

QTEST_MAIN(ApplicationShellTest)
#include "tst_application_shell.moc"

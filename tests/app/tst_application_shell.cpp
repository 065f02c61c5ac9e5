#include "app/app_settings.h"
#include "app/application_shell.h"
#include "app/text_table.h"
#include "monitor/sleep_wake_notifier.h"
#include "views/dashboard_view.h"
#include "views/meter_card.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrow;

namespace {

int settingsOpened = 0;

// A login-item service the test controls: it starts in a given state and can refuse every change.
class FakeLoginItem final : public LoginItem {
public:
    FakeLoginItem(LoginItemState state, bool refuses) : m_state(state), m_refuses(refuses) {}
    LoginItemState state() const override { return m_state; }
    bool setEnabled(bool enabled) override
    {
        if (m_refuses)
            return false;
        m_state = enabled ? LoginItemState::enabled : LoginItemState::disabled;
        return true;
    }
    void openSettingsForState() override { ++settingsOpened; }
    void setState(LoginItemState state) { m_state = state; } // the user acted in System Settings

private:
    LoginItemState m_state;
    bool m_refuses;
};

class FakeMenuBarItem final : public MenuBarItem {
public:
    void showReading(const MenuBarReading &) override {}
    QRect geometry() const override { return {}; }
    void showMessage(const QString &, const QString &) override {}
};

std::unique_ptr<ApplicationShell> makeShell(bool loginRefuses, LoginItemState loginState = LoginItemState::disabled,
                                            std::unique_ptr<MenuBarItem> item = nullptr, FakeLoginItem **loginItem = nullptr)
{
    QString error;
    std::optional<OpenedMachine> machine = openMachine(*MachineSource::parse(QStringLiteral("simulated")), &error);
    auto login = std::make_unique<FakeLoginItem>(loginState, loginRefuses);
    if (loginItem)
        *loginItem = login.get();
    return std::make_unique<ApplicationShell>(std::move(*machine), std::make_unique<SleepWakeNotifier>(), std::move(login),
                                              std::move(item));
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
        QStandardPaths::setTestModeEnabled(true); // the history database too stays out of the user's data
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
        QCOMPARE(QSettings().value(PreferenceKey::showPowerInMenuBar).toBool(), false);
        auto restarted = makeShell(false);
        QVERIFY(!restarted->dashboard()->findChild<QCheckBox *>(QStringLiteral("showPowerInMenuBar"))->isChecked());
        QSettings().remove(PreferenceKey::showPowerInMenuBar);
    }

    void launchAtLoginShowsTheSystemsState_data()
    {
        QTest::addColumn<LoginItemState>("state");
        QTest::addColumn<bool>("refuses");
        QTest::addColumn<bool>("click");
        QTest::addColumn<bool>("checkedAfter");
        QTest::addColumn<QString>("noteAfter");
        QTest::newRow("accepted") << LoginItemState::disabled << false << true << true << QString();
        QTest::newRow("refused") << LoginItemState::disabled << true << true << false << QString();
        QTest::newRow("awaiting approval") << LoginItemState::awaitingApproval << false << false << true
                                           << QStringLiteral("setting.login_awaiting_approval");
        QTest::newRow("refused outside Applications") << LoginItemState::needsApplicationsFolder << true << true << false
                                                      << QStringLiteral("setting.login_needs_applications");
    }

    void launchAtLoginShowsTheSystemsState()
    {
        QFETCH(LoginItemState, state);
        QFETCH(bool, refuses);
        QFETCH(bool, click);
        QFETCH(bool, checkedAfter);
        QFETCH(QString, noteAfter);
        auto shell = makeShell(refuses, state);
        auto *box = shell->dashboard()->findChild<QCheckBox *>(QStringLiteral("launchAtLogin"));
        if (click)
            box->click();
        QCOMPARE(box->isChecked(), checkedAfter);
        auto *note = shell->dashboard()->findChild<QPushButton *>(QStringLiteral("launchAtLoginNote"));
        QCOMPARE(note->isVisibleTo(shell->dashboard()), !noteAfter.isEmpty());
        if (!noteAfter.isEmpty()) {
            QCOMPARE(note->text(), qtTrId(noteAfter.toUtf8().constData()));
            const int before = settingsOpened;
            note->click();
            QCOMPARE(settingsOpened, before + 1);
        }
    }

    // Escape closes the popover; so does losing focus, and the click on the item that took the
    // focus must not open it again, while a later click does. Each opening shows the login item
    // as the system has it now.
    void popoverClosesOnEscapeFocusLossAndASecondClick()
    {
        auto owned = std::make_unique<FakeMenuBarItem>();
        FakeMenuBarItem *item = owned.get();
        FakeLoginItem *login = nullptr;
        auto shell = makeShell(false, LoginItemState::disabled, std::move(owned), &login);
        login->setState(LoginItemState::awaitingApproval);
        QWidget *popover = shell->dashboardWindow();
        emit item->activated();
        QVERIFY(popover->isVisible());
        QVERIFY(shell->dashboard()->findChild<QCheckBox *>(QStringLiteral("launchAtLogin"))->isChecked());
        QTest::keyClick(popover, Qt::Key_Escape);
        QVERIFY(!popover->isVisible());

        emit item->activated();
        QVERIFY(popover->isVisible());
        QEvent deactivate(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(popover, &deactivate);
        QVERIFY(!popover->isVisible());
        emit item->activated();
        QVERIFY(!popover->isVisible());
        emit item->activated();
        QVERIFY(popover->isVisible());
        emit item->activated();
        QVERIFY(!popover->isVisible());
    }
};

QTEST_MAIN(ApplicationShellTest)
#include "tst_application_shell.moc"

#include "app/app_services.h"
#include "app/app_settings.h"
#include "app/application_shell.h"
#include "app/machine_source.h"
#include "app/tray_menu_bar_item.h"
#include "app/terminal_view.h"
#include "app/text_table.h"
#include "platform/native_desktop.h"
#include "platform/native_machine.h"
#include "views/accessible_content.h"
#include "views/ferrow_style.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>


using namespace ferrow;

namespace {

void nameApplication()
{
    setApplicationIdentity();
    QCoreApplication::setApplicationVersion(QStringLiteral(FERROW_VERSION));
}

// The machine --source names, as ferrow-cli takes it: this one unless told otherwise (a recording
// for a demonstration or a test). Options the system adds when it starts an application are left alone.
std::optional<MachineSource> chosenSource(const QCoreApplication &application)
{
    QCommandLineParser parser;
    const QCommandLineOption sourceOption(QStringLiteral("source"),
                                          QStringLiteral("Machine to read: simulated, simulated-desktop, recorded:PATH, sysfs:ROOT or auto."),
                                          QStringLiteral("source"), QStringLiteral("auto"));
    parser.addOption(sourceOption);
    parser.parse(application.arguments());
    const std::optional<MachineSource> source = MachineSource::parse(parser.value(sourceOption));
    if (!source)
        QTextStream(stderr) << "ferrow: unknown source '" << parser.value(sourceOption) << "'" << Qt::endl;
    return source;
}

// Without a display there is nothing to show a window on: read the same machine in the terminal.
int runHeadless(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    nameApplication();
    installTextTable(application);
    const std::optional<MachineSource> source = chosenSource(application);
    if (!source)
        return 2;
    QTextStream out(stdout);
    QString error;
    std::optional<OpenedMachine> machine = openMachine(*source, &error);
    if (!machine) {
        QTextStream(stderr) << "ferrow: " << error << Qt::endl;
        return 1;
    }
    out << "ferrow: no display here, so the " << machine->description
        << " is shown in the terminal instead (Ctrl+C to stop)." << Qt::endl;
    return runTerminalView(*machine->reader, false, out);
}

} // namespace

int main(int argc, char *argv[])
{
    if (!hasDisplay())
        return runHeadless(argc, argv);

    prepareEnvironment();
    QApplication application(argc, argv);
    nameApplication();
    QApplication::setStyle(new FerrowStyle);
    QApplication::setQuitOnLastWindowClosed(false); // the tray item lives on with every window closed
    prepareApplication();
    installTextTable(application);
    registerBrandFonts();
    installViewAccessibility();

    const std::optional<MachineSource> source = chosenSource(application);
    if (!source)
        return 2;
    QString error;
    std::optional<OpenedMachine> machine = openMachine(*source, &error);
    if (!machine) {
        QTextStream(stderr) << "ferrow: " << error << Qt::endl;
        return 1;
    }
    if (!machine->isMac)
        nameMachineAComputer(application);
    const std::shared_ptr<const void> onPace = keepTimersOnPace(); // for the life of the process
    ApplicationShell shell(std::move(*machine), createSleepWakeNotifier(), createLoginItem(), createMenuBarItem(), createNotifier());
    shell.start();
    // A logout or `kill` ends the program through its quit path, which commits the history's
    // minute and the batteries' extremes.
    quitOnInterruptSignal();
    return QApplication::exec();
}

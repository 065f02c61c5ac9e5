#include "app/app_services.h"
#include "app/app_settings.h"
#include "app/application_shell.h"
#include "app/machine_source.h"
#include "app/tray_menu_bar_item.h"
#include "app/terminal_view.h"
#include "app/text_table.h"
#include "platform/native_desktop.h"
#include "platform/native_machine.h"
#include "views/ferrow_style.h"

#include <QApplication>
#include <QTextStream>


using namespace ferrow;

namespace {

void nameApplication()
{
    setApplicationIdentity();
    QCoreApplication::setApplicationVersion(QStringLiteral(FERROW_VERSION));
}

// Without a display there is nothing to show a window on: read the same machine in the terminal.
int runHeadless(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    nameApplication();
    installTextTable(application);
    QTextStream out(stdout);
    QString error;
    std::optional<OpenedMachine> machine = openMachine(MachineSource{}, &error);
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

    QString error;
    std::optional<OpenedMachine> machine = openMachine(MachineSource{}, &error);
    if (!machine) {
        QTextStream(stderr) << "ferrow: " << error << Qt::endl;
        return 1;
    }
    if (!machine->isMac)
        nameMachineAComputer(application);
    const std::shared_ptr<const void> onPace = keepTimersOnPace(); // for the life of the process
    ApplicationShell shell(std::move(*machine), createSleepWakeNotifier(), createLoginItem(), createMenuBarItem());
    shell.start();
    // A logout or `kill` ends the program through its quit path, which commits the history's
    // minute and the batteries' extremes.
    quitOnInterruptSignal();
    return QApplication::exec();
}

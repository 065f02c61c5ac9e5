#include "app/machine_source.h"
#include "app/text_table.h"
#include "monitor/power_monitor.h"
#include "monitor/sleep_wake_notifier.h"
#include "sources/power_sensor_reader.h"

#include <QCoreApplication>
#include <QTextStream>

#include <memory>

using namespace ferrow;

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Ferrow"));
    QCoreApplication::setOrganizationName(QStringLiteral("Ferrow"));
    installTextTable(application);

    QString error;
    std::optional<OpenedMachine> machine = openMachine(MachineSource{}, &error);
    if (!machine) {
        QTextStream(stderr) << "ferrow: " << error << '\n';
        return 1;
    }
    SleepWakeNotifier sleepWake;
    PowerMonitor monitor(std::make_unique<PowerSensorReader>(std::move(machine->platform)), &sleepWake);

    QTextStream out(stdout);
    out << "Ferrow is reading the " << machine->description << ". Ctrl+C to quit.\n";
    QObject::connect(&monitor, &PowerMonitor::snapshotChanged, &monitor, [&] {
        const PowerSnapshot &snapshot = monitor.snapshot();
        const auto powerW = snapshot.displayPowerW();
        out << (powerW ? QString::asprintf("%.1f W", *powerW) : QStringLiteral("\u2014 W")).rightJustified(9) << "  "
            << snapshot.statusText() << Qt::endl;
    });
    monitor.start();
    return QCoreApplication::exec();
}

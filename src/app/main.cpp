#include "app/placeholder_reader.h"
#include "app/text_table.h"
#include "monitor/power_monitor.h"
#include "monitor/sleep_wake_notifier.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTextStream>

#include <memory>

using namespace ferrow;

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Ferrow"));
    QCoreApplication::setOrganizationName(QStringLiteral("Ferrow"));
    installTextTable(application);

    SleepWakeNotifier sleepWake;
    PowerMonitor monitor(std::make_unique<PlaceholderReader>(), &sleepWake);

    QTextStream out(stdout);
    out << "Ferrow (placeholder readings until the machine readers land). Ctrl+C to quit.\n";
    QObject::connect(&monitor, &PowerMonitor::snapshotChanged, &monitor, [&] {
        const PowerSnapshot &snapshot = monitor.snapshot();
        const auto powerW = snapshot.displayPowerW();
        const QString figure = powerW ? QString::asprintf("%.1f W", *powerW) : QStringLiteral("\u2014 W");
        out << QDateTime::currentDateTime().toString(QStringLiteral("HH:mm:ss")) << "  " << figure.rightJustified(8)
            << "  " << snapshot.statusText() << "  " << snapshot.powerSourceText() << Qt::endl;
    });
    monitor.start();
    return QCoreApplication::exec();
}

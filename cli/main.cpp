#include "app/machine_source.h"
#include "app/text_table.h"
#include "model/snapshot_json.h"
#include "sources/power_sensor_reader.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QJsonDocument>
#include <QTextStream>
#include <QThread>
#include <QTimer>

#include <csignal>

using namespace ferrow;

namespace {

QString figure(std::optional<double> value, const char *format)
{
    return value ? QString::asprintf(format, *value) : QStringLiteral("\u2014");
}

// One line a reading: time, headline power, status, source, charge and the chip's blocks.
QString summaryLine(const PowerSnapshot &s)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<std::chrono::milliseconds>(s.updatedAt.time_since_epoch()).count());
    QString line = time.toString(QStringLiteral("HH:mm:ss")) + QLatin1String("  ")
                 + (figure(s.displayPowerW(), "%.1f") + QLatin1String(" W")).rightJustified(9) + QLatin1String("  ")
                 + s.statusText().leftJustified(30) + s.powerSourceText();
    if (s.hasBattery)
        line += QStringLiteral("  %1 %").arg(s.batteryPercent);
    line += QStringLiteral("  system %1 W  cpu %2 W  gpu %3 W")
                .arg(QString::asprintf("%.1f", s.systemPowerW), figure(s.chipPower.cpu, "%.2f"), figure(s.chipPower.gpu, "%.2f"));
    return line;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("ferrow-cli"));
    installTextTable(application);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reads the machine's power state without a display."));
    parser.addHelpOption();
    const QCommandLineOption sourceOption(QStringLiteral("source"),
                                          QStringLiteral("Machine to read: simulated, simulated-desktop, recorded:PATH or auto."),
                                          QStringLiteral("source"), QStringLiteral("auto"));
    const QCommandLineOption onceOption(QStringLiteral("once"), QStringLiteral("Print one reading, after a one-second baseline."));
    const QCommandLineOption watchOption(QStringLiteral("watch"), QStringLiteral("Print a reading every second until interrupted (default)."));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print readings as JSON objects."));
    parser.addOptions({sourceOption, onceOption, watchOption, jsonOption});
    parser.process(application);

    QTextStream err(stderr);
    if (parser.isSet(onceOption) && parser.isSet(watchOption)) {
        err << "ferrow-cli: --once and --watch exclude each other\n";
        return 2;
    }
    const std::optional<MachineSource> source = MachineSource::parse(parser.value(sourceOption));
    if (!source) {
        err << "ferrow-cli: unknown source '" << parser.value(sourceOption) << "' (see --help)\n";
        return 2;
    }
    QString error;
    std::optional<OpenedMachine> machine = openMachine(*source, &error);
    if (!machine) {
        err << "ferrow-cli: " << error << '\n';
        return 1;
    }
    const bool realTime = machine->runsInRealTime;
    PowerSensorReader reader(std::move(machine->platform));

    QTextStream out(stdout);
    const bool json = parser.isSet(jsonOption);
    const auto print = [&](const PowerSnapshot &snapshot) {
        if (json)
            out << QJsonDocument(snapshotToJson(snapshot)).toJson(QJsonDocument::Compact) << Qt::endl;
        else
            out << summaryLine(snapshot) << Qt::endl;
    };

    if (parser.isSet(onceOption)) {
        reader.read(); // the baseline that chip power is measured against
        if (realTime)
            QThread::sleep(1);
        print(reader.read());
        return 0;
    }

    if (!json)
        out << "Reading the " << machine->description << " once a second; Ctrl+C to stop." << Qt::endl;
    std::signal(SIGINT, [](int) { QCoreApplication::quit(); });
    std::signal(SIGTERM, [](int) { QCoreApplication::quit(); });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &application, [&] { print(reader.read()); });
    print(reader.read());
    timer.start(1000);
    return QCoreApplication::exec();
}

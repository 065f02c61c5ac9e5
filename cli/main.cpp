#include "app/machine_source.h"
#include "app/terminal_view.h"
#include "app/text_table.h"
#include "model/snapshot_json.h"
#include "sources/power_sensor_reader.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextStream>
#include <QThread>


using namespace ferrow;

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
    if (parser.isSet(onceOption)) {
        reader.read(); // the baseline that chip power is measured against
        if (realTime)
            QThread::sleep(1);
        const PowerSnapshot snapshot = reader.read();
        out << (json ? QString::fromUtf8(QJsonDocument(snapshotToJson(snapshot)).toJson(QJsonDocument::Compact)) : readingSummaryLine(snapshot))
            << Qt::endl;
        return 0;
    }
    if (!json)
        out << "Reading the " << machine->description << " once a second; Ctrl+C to stop." << Qt::endl;
    return runTerminalView(reader, json, out);
}

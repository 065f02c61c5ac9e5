#include "app/app_settings.h"
#include "app/machine_source.h"
#include "app/terminal_view.h"
#include "app/text_table.h"
#include "export/http_request.h"
#include "export/snapshot_json.h"
#include "history/history_recorder.h"
#include "history_command.h"
#include "platform/native_machine.h"
#include "serve_command.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QTextStream>
#include <QThread>

#include <algorithm>

using namespace ferrow;

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    setApplicationIdentity(); // the application's own preferences, and so the same battery extremes
    installTextTable(application);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Reads the machine's power state without a display."));
    parser.addHelpOption();
    const QCommandLineOption sourceOption(QStringLiteral("source"),
                                          QStringLiteral("Machine to read: simulated, simulated-desktop, recorded:PATH, sysfs:ROOT (a copied Linux tree, ROOT/sys/class/...) or auto."),
                                          QStringLiteral("source"), QStringLiteral("auto"));
    const QCommandLineOption onceOption(QStringLiteral("once"), QStringLiteral("Print one reading, after a one-second baseline."));
    const QCommandLineOption watchOption(QStringLiteral("watch"), QStringLiteral("Print a reading every second until interrupted (default)."));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print readings as JSON objects."));
    const QCommandLineOption recordOption(QStringLiteral("record"),
                                          QStringLiteral("Copy the files a reading of this machine uses into FOLDER (new or empty), to read back with --source sysfs:FOLDER."),
                                          QStringLiteral("FOLDER"));
    const QCommandLineOption diagnoseOption(
        QStringLiteral("diagnose"),
        QStringLiteral("Say, source by source, what the machine answers and why a figure is absent (with --json as JSON). "
                       "Serial numbers appear only hashed; attach the output to a bug report."));
    parser.addOptions({sourceOption, onceOption, watchOption, jsonOption, recordOption, diagnoseOption});
    const QCommandLineOption serveOption(
        QStringLiteral("serve"),
        QStringLiteral("Serve the latest reading as Prometheus metrics at http://ADDRESS:PORT/metrics until interrupted. ADDRESS:PORT, "
                       "ADDRESS or :PORT; the address defaults to 127.0.0.1 (this machine only), the port to %1.")
            .arg(kDefaultMetricsPort),
        QStringLiteral("ADDRESS:PORT"));
    parser.addOption(serveOption);
    const QCommandLineOption historyOption(
        QStringLiteral("history"),
        QStringLiteral("Print the energy the application has stored, one row per period, as CSV or JSON (docs/history-database.md)."));
    const QCommandLineOption sessionsOption(QStringLiteral("sessions"),
                                            QStringLiteral("Print the stored stretches on battery and on external power, newest first."));
    const QCommandLineOption fromOption(
        QStringLiteral("from"),
        QStringLiteral("With --history or --sessions: where to start, an ISO 8601 date (its local midnight) or date-time (as given with Z "
                       "or an offset, else local time). Default: 30 days ago."),
        QStringLiteral("DATE"));
    const QCommandLineOption toOption(QStringLiteral("to"), QStringLiteral("With --history or --sessions: where to stop, as --from. Default: now."),
                                      QStringLiteral("DATE"));
    const QCommandLineOption perOption(QStringLiteral("per"), QStringLiteral("With --history: one row per minute, hour or day (default)."),
                                       QStringLiteral("PERIOD"), QStringLiteral("day"));
    const QCommandLineOption formatOption(QStringLiteral("format"), QStringLiteral("With --history or --sessions: csv (default) or json."),
                                          QStringLiteral("FORMAT"), QStringLiteral("csv"));
    const QCommandLineOption databaseOption(
        QStringLiteral("database"),
        QStringLiteral("With --history or --sessions: the history file to read, never written (default: %1).").arg(HistoryRecorder::defaultDatabasePath()),
        QStringLiteral("PATH"));
    const QCommandLineOption appsOption(
        QStringLiteral("apps"),
        QStringLiteral("Print the energy each application used, most first, as CSV or JSON, each line saying whether it was measured or "
                       "estimated (docs/history-database.md)."));
    const QCommandLineOption periodOption(QStringLiteral("period"),
                                          QStringLiteral("With --apps: the current session (default), today, 7d or 30d."),
                                          QStringLiteral("PERIOD"), QStringLiteral("session"));
    parser.addOptions({historyOption, sessionsOption, appsOption, periodOption, fromOption, toOption, perOption, formatOption, databaseOption});
    parser.process(application);

    QTextStream err(stderr);
    const bool history = parser.isSet(historyOption) || parser.isSet(sessionsOption) || parser.isSet(appsOption);
    const bool historyOptions = parser.isSet(fromOption) || parser.isSet(toOption) || parser.isSet(perOption)
                             || parser.isSet(formatOption) || parser.isSet(databaseOption) || parser.isSet(periodOption);
    if (history) {
        const QList<QCommandLineOption> others = {sourceOption, onceOption, watchOption, jsonOption, recordOption, diagnoseOption, serveOption};
        if (std::any_of(others.begin(), others.end(), [&](const QCommandLineOption &option) { return parser.isSet(option); })) {
            err << "ferrow-cli: --history, --sessions and --apps take only --from, --to, --per, --period, --format and --database\n";
            return 2;
        }
        if (int(parser.isSet(historyOption)) + int(parser.isSet(sessionsOption)) + int(parser.isSet(appsOption)) > 1) {
            err << "ferrow-cli: --history, --sessions and --apps exclude each other\n";
            return 2;
        }
        if (parser.isSet(appsOption) && (parser.isSet(fromOption) || parser.isSet(toOption) || parser.isSet(perOption))) {
            err << "ferrow-cli: --apps takes --period rather than --from, --to or --per\n";
            return 2;
        }
        if (parser.isSet(periodOption) && !parser.isSet(appsOption)) {
            err << "ferrow-cli: --period goes with --apps only\n";
            return 2;
        }
        if (parser.isSet(sessionsOption) && parser.isSet(perOption)) {
            err << "ferrow-cli: --per goes with --history only\n";
            return 2;
        }
        const auto given = [&](const QCommandLineOption &option) {
            return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
        };
        return printHistory({.sessions = parser.isSet(sessionsOption),
                             .apps = parser.isSet(appsOption),
                             .appPeriod = parser.value(periodOption),
                             .from = given(fromOption),
                             .to = given(toOption),
                             .per = parser.value(perOption),
                             .format = parser.value(formatOption),
                             .database = parser.value(databaseOption)});
    }
    if (historyOptions) {
        err << "ferrow-cli: --from, --to, --per, --period, --format and --database go with --history, --sessions or --apps\n";
        return 2;
    }
    if (parser.isSet(serveOption)
        && (parser.isSet(onceOption) || parser.isSet(watchOption) || parser.isSet(jsonOption) || parser.isSet(recordOption))) {
        err << "ferrow-cli: --serve takes no --once, --watch, --json or --record\n";
        return 2;
    }
    const std::optional<MachineSource> source = MachineSource::parse(parser.value(sourceOption));
    if (!source) {
        err << "ferrow-cli: unknown source '" << parser.value(sourceOption) << "' (see --help)\n";
        return 2;
    }
    if (parser.isSet(diagnoseOption)) {
        if (parser.isSet(onceOption) || parser.isSet(watchOption) || parser.isSet(recordOption) || parser.isSet(serveOption)) {
            err << "ferrow-cli: --diagnose takes only --source and --json\n";
            return 2;
        }
        QString error;
        const std::optional<Diagnosis> diagnosis = diagnoseMachine(*source, &error);
        if (!diagnosis) {
            err << "ferrow-cli: " << error << '\n';
            return 1;
        }
        QTextStream(stdout) << (parser.isSet(jsonOption) ? QString::fromUtf8(QJsonDocument(diagnosisJson(*diagnosis)).toJson())
                                                         : diagnosisText(*diagnosis));
        return 0;
    }
    if (parser.isSet(recordOption)) {
        if (parser.isSet(sourceOption) || parser.isSet(onceOption) || parser.isSet(watchOption) || parser.isSet(jsonOption)) {
            err << "ferrow-cli: --record reads this machine and takes no other option\n";
            return 2;
        }
        QString error;
        if (!recordMachine(parser.value(recordOption), &error)) {
            err << "ferrow-cli: " << error << '\n';
            return 1;
        }
        QTextStream(stdout) << "Recorded into " << parser.value(recordOption) << "; read it back with --source " << recordingSourcePrefix()
                            << parser.value(recordOption) << Qt::endl;
        return 0;
    }
    if (parser.isSet(onceOption) && parser.isSet(watchOption)) {
        err << "ferrow-cli: --once and --watch exclude each other\n";
        return 2;
    }
    QString error;
    std::optional<OpenedMachine> machine = openMachine(*source, &error);
    if (!machine) {
        err << "ferrow-cli: " << error << '\n';
        return 1;
    }
    if (machine->chipPowerNeedsPermission)
        err << "ferrow-cli: the processor's energy counters (/sys/class/powercap/*/energy_uj) are readable by root only, "
               "so chip power stays empty; the README's \"Chip power on Linux\" shows the udev rule that allows it." << Qt::endl;
    // Whoever asked for this machine learns that it was not found, whatever the output form.
    if (source->kind == MachineSource::Kind::automatic && machine->isSimulated
        && (parser.isSet(onceOption) || parser.isSet(jsonOption) || parser.isSet(serveOption)))
        err << "ferrow-cli: reading the " << machine->description << Qt::endl;
    const std::shared_ptr<const void> onPace = keepTimersOnPace(); // --watch and --serve read once a second
    if (parser.isSet(serveOption))
        return serveMetrics(std::move(machine->reader), parser.value(serveOption),
                            machine->description);
    const bool realTime = machine->runsInRealTime;
    SnapshotReader &reader = *machine->reader;

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
    return runTerminalView(reader, json, out, readPreferences(QSettings()).alerts);
}

#include "app/terminal_view.h"

#include "app/alert_lines.h"
#include "export/snapshot_json.h"
#include "model/value_text.h"
#include "platform/native_machine.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QTextStream>
#include <QTimer>

namespace ferrow {

QString readingSummaryLine(const PowerSnapshot &s)
{
    const QDateTime time =
        QDateTime::fromMSecsSinceEpoch(std::chrono::duration_cast<std::chrono::milliseconds>(s.updatedAt.time_since_epoch()).count());
    QString line = time.toString(QStringLiteral("HH:mm:ss")) + QLatin1String("  ") + formatFigure(s.displayPowerW(), "%.1f W").rightJustified(9)
                 + QLatin1String("  ") + s.statusText().leftJustified(30) + s.powerSourceText();
    if (s.hasBattery)
        line += QStringLiteral("  %1 %").arg(s.batteryPercent);
    line += QStringLiteral("  system %1  cpu %2  gpu %3")
                .arg(QString::asprintf("%.1f W", s.systemPowerW), formatFigure(s.chipPower.cpu, "%.2f W"), formatFigure(s.chipPower.gpu, "%.2f W"));
    return line;
}

int runTerminalView(SnapshotReader &reader, bool json, QTextStream &out, const std::optional<AlertSettings> &alerts)
{
    std::optional<AlertLines> alertLines;
    if (alerts)
        alertLines.emplace(*alerts, json);
    // Monotonic and still while the machine sleeps, like the application's own alert clock. A
    // recording is timed by it too: the reader does not tell its frames' times.
    QElapsedTimer uptime;
    uptime.start();
    const auto print = [&] {
        const PowerSnapshot snapshot = reader.read();
        if (json)
            out << QJsonDocument(snapshotToJson(snapshot)).toJson(QJsonDocument::Compact) << Qt::endl;
        else
            out << readingSummaryLine(snapshot) << Qt::endl;
        if (alertLines) {
            for (const QString &line : alertLines->add(snapshot, static_cast<double>(uptime.elapsed()) / 1000.0))
                out << line << Qt::endl;
        }
    };
    quitOnInterruptSignal();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, print);
    print();
    timer.start(1000);
    return QCoreApplication::exec();
}

} // namespace ferrow

#include "serve_command.h"

#include "export/metrics_exposition.h"
#include "export/metrics_server.h"
#include "monitor/power_monitor.h"
#include "platform/native_machine.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

namespace ferrow {

int serveMetrics(std::unique_ptr<SnapshotReader> reader, const QString &address, const QString &machineDescription)
{
    QTextStream err(stderr);
    const std::optional<ListenAddress> listenAddress = parseListenAddress(address);
    if (!listenAddress) {
        err << "ferrow-cli: --serve takes ADDRESS:PORT, ADDRESS or :PORT with a literal IP address, such as 127.0.0.1:"
            << kDefaultMetricsPort << "; '" << address << "' is none of these\n";
        return 2;
    }
    // No sleep and wake here: a sleeping machine is not scraped, and the timer catches up on wake.
    PowerMonitor monitor(std::move(reader), nullptr);
    bool hasReading = false;
    EnergyTotals energy;
    // The monotonic clock: a wall clock set back or forward would make or lose energy.
    QElapsedTimer sinceLastReading;
    QObject::connect(&monitor, &PowerMonitor::snapshotChanged, &monitor, [&] {
        hasReading = true;
        if (sinceLastReading.isValid())
            energy.add(monitor.snapshot(), static_cast<double>(sinceLastReading.nsecsElapsed()) / 1e9);
        sinceLastReading.start();
    });
    MetricsServer server([&] {
        return metricsExposition(hasReading ? &monitor.snapshot() : nullptr, QStringLiteral(FERROW_VERSION), &energy);
    });
    QString error;
    if (!server.listen(*listenAddress, &error)) {
        err << "ferrow-cli: cannot serve metrics on " << address << ": " << error << '\n';
        return 1;
    }
    const QString host = listenAddress->host.protocol() == QAbstractSocket::IPv6Protocol
                           ? QLatin1Char('[') + listenAddress->host.toString() + QLatin1Char(']')
                           : listenAddress->host.toString();
    QTextStream(stdout) << "Serving the " << machineDescription << " as metrics on http://" << host << ':' << server.port()
                        << "/metrics; Ctrl+C to stop." << Qt::endl;
    quitOnInterruptSignal();
    monitor.start();
    return QCoreApplication::exec();
}

} // namespace ferrow

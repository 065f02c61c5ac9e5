#pragma once

#include "monitor/snapshot_reader.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTcpServer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QTcpSocket;

namespace ferrow {

// Not registered by any other exporter in Prometheus' list of default ports (see the README).
constexpr quint16 kDefaultMetricsPort = 10066;
constexpr qsizetype kMaxRequestHeadBytes = 8 * 1024;
constexpr int kMaxOpenConnections = 8;
constexpr std::chrono::milliseconds kRequestDeadline{5000};

enum class HttpRoute { incomplete, metrics, index, badRequest, notFound, methodNotAllowed, headersTooLarge };

struct HttpRequest {
    HttpRoute route = HttpRoute::incomplete;
    bool headOnly = false; // HEAD: the answer's headers without its body

    bool operator==(const HttpRequest &) const = default;
};

// What the bytes received on a connection so far ask for; incomplete until the empty line that
// ends the request's head, which may take kMaxRequestHeadBytes at most. Any body is ignored.
HttpRequest parseHttpRequest(QByteArrayView received);

struct ListenAddress {
    QHostAddress host;
    quint16 port = 0;
};

// "HOST:PORT", "HOST" or ":PORT", an IPv6 host in brackets; HOST is a literal address or
// "localhost". An omitted host is 127.0.0.1, an omitted port kDefaultMetricsPort.
std::optional<ListenAddress> parseListenAddress(QStringView text);

// A deliberately small HTTP/1.x server for one scrape per connection. Qt's own HTTP server is a
// technical preview in Qt 6.4 and bounds neither request size, nor connection count, nor slow
// clients, so this one does: everything runs on the caller's event loop, nothing blocks.
class MetricsServer : public QObject {
    Q_OBJECT
public:
    explicit MetricsServer(std::function<QByteArray()> metrics, QObject *parent = nullptr);
    ~MetricsServer() override;

    bool listen(const ListenAddress &address, QString *error);
    quint16 port() const { return m_server.serverPort(); }

private:
    void acceptConnections();
    void receive(QTcpSocket *socket);
    QByteArray response(const HttpRequest &request) const;

    std::function<QByteArray()> m_metrics;
    int m_openConnections = 0;
    QTcpServer m_server;
};

// Reads the machine once a second through a PowerMonitor and serves the latest reading as
// metrics on the given ADDRESS:PORT until interrupted. Needs a running Qt application object;
// returns the process's exit status.
int serveMetrics(std::unique_ptr<SnapshotReader> reader, const QString &address, const QString &machineDescription);

} // namespace ferrow

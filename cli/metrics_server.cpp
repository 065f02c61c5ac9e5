#include "metrics_server.h"

#include "model/metrics_exposition.h"
#include "monitor/power_monitor.h"

#include <QCoreApplication>
#include <QTcpSocket>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <csignal>

#include <sys/socket.h>

namespace ferrow {
namespace {

const char *const kAnswered = "ferrowAnswered";

const char kIndexPage[] = "<!DOCTYPE html>\n<html><head><title>Ferrow exporter</title></head>\n"
                          "<body><h1>Ferrow exporter</h1><p><a href=\"/metrics\">Metrics</a></p></body></html>\n";

QByteArray httpResponse(QByteArrayView status, QByteArrayView contentType, const QByteArray &body, bool headOnly,
                        QByteArrayView extraHeaders = {})
{
    QByteArray out = "HTTP/1.1 " + status.toByteArray() + "\r\nContent-Type: " + contentType.toByteArray()
                   + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\nConnection: close\r\n"
                   + extraHeaders.toByteArray() + "\r\n";
    if (!headOnly)
        out += body;
    return out;
}

} // namespace

HttpRequest parseHttpRequest(QByteArrayView received)
{
    // The head ends at the first empty line; bare LF line ends are tolerated.
    qsizetype headEnd = -1;
    const qsizetype crlf = received.indexOf("\r\n\r\n");
    const qsizetype lf = received.indexOf("\n\n");
    if (crlf >= 0 && (lf < 0 || crlf < lf))
        headEnd = crlf + 4;
    else if (lf >= 0)
        headEnd = lf + 2;
    if (headEnd > kMaxRequestHeadBytes || (headEnd < 0 && received.size() >= kMaxRequestHeadBytes))
        return {HttpRoute::headersTooLarge};
    if (headEnd < 0)
        return {HttpRoute::incomplete};

    QByteArrayView line = received.first(received.indexOf('\n'));
    if (line.endsWith('\r'))
        line.chop(1);
    const qsizetype firstSpace = line.indexOf(' ');
    const qsizetype secondSpace = firstSpace < 0 ? -1 : line.indexOf(' ', firstSpace + 1);
    if (firstSpace <= 0 || secondSpace < 0 || line.indexOf(' ', secondSpace + 1) >= 0)
        return {HttpRoute::badRequest};
    const QByteArrayView method = line.first(firstSpace);
    QByteArrayView target = line.sliced(firstSpace + 1, secondSpace - firstSpace - 1);
    if (!target.startsWith('/') || !line.sliced(secondSpace + 1).startsWith("HTTP/1."))
        return {HttpRoute::badRequest};
    if (const qsizetype query = target.indexOf('?'); query >= 0)
        target.truncate(query);

    const HttpRoute route = target == "/metrics" ? HttpRoute::metrics : target == "/" ? HttpRoute::index : HttpRoute::notFound;
    if (route == HttpRoute::notFound)
        return {route};
    if (method == "HEAD")
        return {route, true};
    return {method == "GET" ? route : HttpRoute::methodNotAllowed};
}

std::optional<ListenAddress> parseListenAddress(QStringView text)
{
    QStringView host = text;
    QStringView port;
    bool hasPort = false;
    if (text.startsWith(u'[')) {
        const qsizetype close = text.indexOf(u']');
        if (close < 2 || (close + 1 < text.size() && text[close + 1] != u':'))
            return std::nullopt;
        host = text.sliced(1, close - 1);
        hasPort = close + 1 < text.size();
        port = text.sliced(std::min(close + 2, text.size()));
    } else if (text.count(u':') == 1) { // more colons make an IPv6 address without a port
        const qsizetype colon = text.indexOf(u':');
        host = text.first(colon);
        hasPort = true;
        port = text.sliced(colon + 1);
    }
    if (text.isEmpty() || (hasPort && (port.isEmpty() || port.size() > 5)))
        return std::nullopt;

    ListenAddress address{QHostAddress(QHostAddress::LocalHost), kDefaultMetricsPort};
    if (!host.isEmpty() && host != u"localhost" && !address.host.setAddress(host.toString()))
        return std::nullopt;
    if (hasPort) {
        uint number = 0;
        for (const QChar c : port) {
            if (c < u'0' || c > u'9')
                return std::nullopt;
            number = number * 10 + (c.unicode() - u'0');
        }
        if (number == 0 || number > 65535)
            return std::nullopt;
        address.port = static_cast<quint16>(number);
    }
    return address;
}

MetricsServer::MetricsServer(std::function<QByteArray()> metrics, QObject *parent)
    : QObject(parent)
    , m_metrics(std::move(metrics))
{
    connect(&m_server, &QTcpServer::newConnection, this, &MetricsServer::acceptConnections);
}

MetricsServer::~MetricsServer()
{
    // The open connections go first, while the count they update on the way out still exists.
    m_server.close();
    qDeleteAll(m_server.findChildren<QTcpSocket *>());
}

bool MetricsServer::listen(const ListenAddress &address, QString *error)
{
    if (m_server.listen(address.host, address.port))
        return true;
    if (error)
        *error = m_server.errorString();
    return false;
}

void MetricsServer::acceptConnections()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        if (m_openConnections >= kMaxOpenConnections) {
            socket->abort();
            delete socket;
            continue;
        }
        ++m_openConnections;
        connect(socket, &QObject::destroyed, this, [this] { --m_openConnections; });
        // Qt stops reading from the network once this much is buffered: a long request costs no memory.
        socket->setReadBufferSize(kMaxRequestHeadBytes);
        auto *deadline = new QTimer(socket);
        deadline->setSingleShot(true);
        connect(deadline, &QTimer::timeout, socket, [socket] {
            socket->abort();
            socket->deleteLater();
        });
        deadline->start(kRequestDeadline);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { receive(socket); });
        connect(socket, &QTcpSocket::bytesWritten, socket, [socket] {
            // Our side closes once the answer is out; the client closes theirs when it has read
            // it. Closing both while a long request still arrives would reset the connection and
            // lose the answer.
            if (socket->property(kAnswered).toBool() && socket->bytesToWrite() == 0)
                ::shutdown(static_cast<int>(socket->socketDescriptor()), SHUT_WR);
        });
    }
}

void MetricsServer::receive(QTcpSocket *socket)
{
    if (socket->property(kAnswered).toBool()) {
        socket->skip(socket->bytesAvailable());
        return;
    }
    const HttpRequest request = parseHttpRequest(socket->peek(kMaxRequestHeadBytes));
    if (request.route == HttpRoute::incomplete)
        return;
    socket->setProperty(kAnswered, true);
    socket->skip(socket->bytesAvailable());
    socket->write(response(request));
}

QByteArray MetricsServer::response(const HttpRequest &request) const
{
    const bool head = request.headOnly;
    const QByteArray text = "text/plain; charset=utf-8";
    switch (request.route) {
    case HttpRoute::metrics:
        return httpResponse("200 OK", "text/plain; version=0.0.4; charset=utf-8", m_metrics(), head);
    case HttpRoute::index:
        return httpResponse("200 OK", "text/html; charset=utf-8", kIndexPage, head);
    case HttpRoute::notFound:
        return httpResponse("404 Not Found", text, "Not found: the metrics are at /metrics.\n", head);
    case HttpRoute::methodNotAllowed:
        return httpResponse("405 Method Not Allowed", text, "Only GET and HEAD are served.\n", head, "Allow: GET, HEAD\r\n");
    case HttpRoute::headersTooLarge:
        return httpResponse("431 Request Header Fields Too Large", text, "Request heads are limited to 8 KiB.\n", false);
    case HttpRoute::badRequest:
    case HttpRoute::incomplete:
        break;
    }
    return httpResponse("400 Bad Request", text, "Not an HTTP/1.x request.\n", false);
}

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
    QObject::connect(&monitor, &PowerMonitor::snapshotChanged, &monitor, [&hasReading] { hasReading = true; });
    MetricsServer server([&] { return metricsExposition(hasReading ? &monitor.snapshot() : nullptr, QStringLiteral(FERROW_VERSION)); });
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
    std::signal(SIGINT, [](int) { QCoreApplication::quit(); });
    std::signal(SIGTERM, [](int) { QCoreApplication::quit(); });
    monitor.start();
    return QCoreApplication::exec();
}

} // namespace ferrow

#include "export/metrics_server.h"

#include <QTcpSocket>
#include <QTimer>

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

// Our side closes once the answer is out; the client closes theirs when it has read it. Closing
// both while a long request still arrives would reset the connection and lose the answer.
void closeOnceAnswered(QTcpSocket *socket)
{
    if (socket->property(kAnswered).toBool() && socket->bytesToWrite() == 0 && socket->state() == QAbstractSocket::ConnectedState)
        ::shutdown(static_cast<int>(socket->socketDescriptor()), SHUT_WR);
}

} // namespace

void QueueingTcpServer::incomingConnection(qintptr descriptor)
{
    auto *socket = new QTcpSocket(this);
    socket->setReadBufferSize(1);
    socket->setSocketDescriptor(descriptor);
    addPendingConnection(socket);
}

MetricsServer::MetricsServer(std::function<QByteArray()> metrics, QObject *parent, std::chrono::milliseconds deadline)
    : QObject(parent)
    , m_metrics(std::move(metrics))
    , m_deadline(deadline)
{
    // Qt would accept up to 30 connections ahead of their turn; the rest wait in the kernel.
    m_server.setMaxPendingConnections(1);
    m_server.setListenBacklogSize(kListenBacklog);
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
    while (m_openConnections < kMaxOpenConnections) {
        QTcpSocket *socket = m_server.nextPendingConnection();
        if (!socket)
            return;
        serve(socket);
    }
    // Taking a connection resumes accepting, so this comes after the last one taken.
    m_server.pauseAccepting();
}

void MetricsServer::connectionClosed()
{
    --m_openConnections;
    if (!m_server.isListening())
        return;
    m_server.resumeAccepting();
    acceptConnections();
}

void MetricsServer::serve(QTcpSocket *socket)
{
    ++m_openConnections;
    connect(socket, &QObject::destroyed, this, &MetricsServer::connectionClosed);
    // Qt stops reading from the network once this much is buffered: a long request costs no memory.
    socket->setReadBufferSize(kMaxRequestHeadBytes);
    auto *deadline = new QTimer(socket);
    deadline->setSingleShot(true);
    connect(deadline, &QTimer::timeout, socket, [socket] {
        // abort(), not a close that would first wait for a client who never reads the answer.
        socket->abort();
        socket->deleteLater();
    });
    deadline->start(m_deadline);
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { receive(socket); });
    connect(socket, &QTcpSocket::bytesWritten, socket, [socket] { closeOnceAnswered(socket); });
    // A connection that waited for its turn may be gone already, its disconnected() unheard.
    if (socket->state() != QAbstractSocket::ConnectedState)
        socket->deleteLater();
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
    // Into the kernel now (bytesWritten() closes our side): a client that shut down its side
    // after the request is read as gone on the next turn of the event loop, and Qt would drop
    // what it had not written by then.
    socket->flush();
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

} // namespace ferrow

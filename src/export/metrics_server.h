#pragma once

#include "export/http_request.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTcpServer>

#include <chrono>
#include <functional>

class QTcpSocket;

namespace ferrow {

constexpr int kMaxOpenConnections = 8;
// Connections beyond the open ones wait in the kernel's listen queue for their turn.
constexpr int kListenBacklog = 128;
// From a connection's turn to its close: the request, the answer, and the client's reading it.
constexpr std::chrono::milliseconds kConnectionDeadline{5000};

// Qt accepts a connection before it is taken, and reads from it at once: one that waits for its
// turn reads a single byte. The kernel keeps the rest of its request meanwhile, and its
// half-close too, which Qt would take for a close before the request had been answered.
class QueueingTcpServer : public QTcpServer {
protected:
    void incomingConnection(qintptr descriptor) override;
};

// A deliberately small HTTP/1.x server for one scrape per connection. Qt's own HTTP server is a
// technical preview in Qt 6.4 and bounds neither request size, nor connection count, nor slow
// clients, so this one does: everything runs on the caller's event loop, nothing blocks.
class MetricsServer : public QObject {
    Q_OBJECT
public:
    explicit MetricsServer(std::function<QByteArray()> metrics, QObject *parent = nullptr,
                           std::chrono::milliseconds deadline = kConnectionDeadline);
    ~MetricsServer() override;

    bool listen(const ListenAddress &address, QString *error);
    quint16 port() const { return m_server.serverPort(); }
    int openConnections() const { return m_openConnections; }

private:
    void acceptConnections();
    void serve(QTcpSocket *socket);
    void connectionClosed();
    void receive(QTcpSocket *socket);
    QByteArray response(const HttpRequest &request) const;

    std::function<QByteArray()> m_metrics;
    std::chrono::milliseconds m_deadline;
    int m_openConnections = 0;
    QueueingTcpServer m_server;
};

} // namespace ferrow

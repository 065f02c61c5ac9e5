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
constexpr std::chrono::milliseconds kRequestDeadline{5000};

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

} // namespace ferrow

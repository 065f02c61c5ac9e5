#pragma once

#include <QByteArrayView>
#include <QHostAddress>
#include <QString>

#include <optional>

namespace ferrow {

// Not registered by any other exporter in Prometheus' list of default ports (see the README).
constexpr quint16 kDefaultMetricsPort = 10066;
constexpr qsizetype kMaxRequestHeadBytes = 8 * 1024;

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

} // namespace ferrow

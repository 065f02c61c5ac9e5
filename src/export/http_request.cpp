#include "export/http_request.h"

#include <algorithm>

namespace ferrow {

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

} // namespace ferrow

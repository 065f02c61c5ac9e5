#include "export/metrics_server.h"

#include <QTest>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::HttpRoute)

namespace {

// A request whose head, terminator included, is exactly size bytes long.
QByteArray requestOfSize(qsizetype size)
{
    QByteArray head = "GET /metrics HTTP/1.1\r\nX-Pad: ";
    head += QByteArray(size - head.size() - 4, 'a');
    return head + "\r\n\r\n";
}

} // namespace

class MetricsServerTest : public QObject {
    Q_OBJECT

private slots:
    void request_data()
    {
        QTest::addColumn<QByteArray>("received");
        QTest::addColumn<HttpRoute>("route");
        QTest::addColumn<bool>("headOnly");

        using R = HttpRoute;
        QTest::newRow("GET /metrics") << QByteArray("GET /metrics HTTP/1.1\r\nHost: a\r\n\r\n") << R::metrics << false;
        QTest::newRow("GET / over HTTP/1.0") << QByteArray("GET / HTTP/1.0\r\n\r\n") << R::index << false;
        QTest::newRow("HEAD") << QByteArray("HEAD /metrics HTTP/1.1\r\n\r\n") << R::metrics << true;
        QTest::newRow("query ignored") << QByteArray("GET /metrics?name[]=x HTTP/1.1\r\n\r\n") << R::metrics << false;
        QTest::newRow("bare LF lines") << QByteArray("GET /metrics HTTP/1.1\nHost: a\n\n") << R::metrics << false;
        QTest::newRow("POST with a body") << QByteArray("POST /metrics HTTP/1.1\r\nContent-Length: 3\r\n\r\nabc") << R::methodNotAllowed
                                          << false;
        QTest::newRow("methods are case-sensitive") << QByteArray("get / HTTP/1.1\r\n\r\n") << R::methodNotAllowed << false;
        QTest::newRow("unknown path") << QByteArray("GET /x HTTP/1.1\r\n\r\n") << R::notFound << false;
        QTest::newRow("unknown path, other method") << QByteArray("PUT /x HTTP/1.1\r\n\r\n") << R::notFound << false;
        QTest::newRow("trailing slash") << QByteArray("GET /metrics/ HTTP/1.1\r\n\r\n") << R::notFound << false;
        QTest::newRow("partial head") << QByteArray("GET /metrics HTTP/1.1\r\nHost: a\r\n") << R::incomplete << false;
        QTest::newRow("nothing yet") << QByteArray() << R::incomplete << false;
        QTest::newRow("no version") << QByteArray("GET /metrics\r\n\r\n") << R::badRequest << false;
        QTest::newRow("absolute target") << QByteArray("GET http://a/metrics HTTP/1.1\r\n\r\n") << R::badRequest << false;
        QTest::newRow("two spaces") << QByteArray("GET  /metrics HTTP/1.1\r\n\r\n") << R::badRequest << false;
        QTest::newRow("not HTTP") << QByteArray("SSH-2.0-client\r\n\r\n") << R::badRequest << false;
        QTest::newRow("8 KiB head") << requestOfSize(8192) << R::metrics << false;
        QTest::newRow("one byte over") << requestOfSize(8193) << R::headersTooLarge << false;
        QTest::newRow("8 KiB and no end yet") << requestOfSize(9000).left(8192) << R::headersTooLarge << false;
    }

    void request()
    {
        QFETCH(QByteArray, received);
        QFETCH(HttpRoute, route);
        QFETCH(bool, headOnly);
        QCOMPARE(parseHttpRequest(received), (HttpRequest{route, headOnly}));
    }

    void listenAddress_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("host"); // empty: rejected
        QTest::addColumn<int>("port");

        QTest::newRow("address and port") << QStringLiteral("127.0.0.1:9000") << QStringLiteral("127.0.0.1") << 9000;
        QTest::newRow("port alone") << QStringLiteral(":9000") << QStringLiteral("127.0.0.1") << 9000;
        QTest::newRow("address alone") << QStringLiteral("0.0.0.0") << QStringLiteral("0.0.0.0") << 10066;
        QTest::newRow("localhost") << QStringLiteral("localhost:80") << QStringLiteral("127.0.0.1") << 80;
        QTest::newRow("IPv6 with port") << QStringLiteral("[::1]:65535") << QStringLiteral("::1") << 65535;
        QTest::newRow("IPv6 alone") << QStringLiteral("::1") << QStringLiteral("::1") << 10066;
        QTest::newRow("IPv6 any, bracketed") << QStringLiteral("[::]") << QStringLiteral("::") << 10066;
        QTest::newRow("empty") << QString() << QString() << 0;
        QTest::newRow("host name") << QStringLiteral("example.org:9000") << QString() << 0;
        QTest::newRow("empty port") << QStringLiteral("127.0.0.1:") << QString() << 0;
        QTest::newRow("port 0") << QStringLiteral("127.0.0.1:0") << QString() << 0;
        QTest::newRow("port over 65535") << QStringLiteral(":65536") << QString() << 0;
        QTest::newRow("signed port") << QStringLiteral(":+80") << QString() << 0;
        QTest::newRow("unclosed bracket") << QStringLiteral("[::1:80") << QString() << 0;
        QTest::newRow("no colon after bracket") << QStringLiteral("[::1]80") << QString() << 0;
        QTest::newRow("empty brackets") << QStringLiteral("[]:80") << QString() << 0;
    }

    void listenAddress()
    {
        QFETCH(QString, text);
        QFETCH(QString, host);
        QFETCH(int, port);
        const std::optional<ListenAddress> address = parseListenAddress(text);
        QCOMPARE(address.has_value(), !host.isEmpty());
        if (!address)
            return;
        QCOMPARE(address->host, QHostAddress(host));
        QCOMPARE(int(address->port), port);
    }
};

QTEST_GUILESS_MAIN(MetricsServerTest)
#include "tst_metrics_server.moc"

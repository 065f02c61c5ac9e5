#include "export/metrics_server.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <memory>
#include <span>
#include <vector>

using namespace ferrow;

Q_DECLARE_METATYPE(ferrow::HttpRoute)

namespace {

constexpr std::chrono::milliseconds kDeadline{1000};
const QByteArray kRequest = "GET /metrics HTTP/1.1\r\n\r\n";
const ListenAddress kEphemeralPort{QHostAddress(QHostAddress::LocalHost), 0};

// A client on a plain socket: unlike a QTcpSocket it can shut down its side alone, and it keeps
// the connection open after the server has closed its side.
class RawClient {
public:
    explicit RawClient(quint16 port)
        : m_fd(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        // The kernel completes the handshake from the listen queue: no event loop needed.
        if (::connect(m_fd, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0)
            ended = true;
    }
    ~RawClient() { close(); }

    void send(QByteArrayView bytes) { ::send(m_fd, bytes.data(), bytes.size(), MSG_DONTWAIT); }
    void shutdownWrite() { ::shutdown(m_fd, SHUT_WR); }
    void close()
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
    }
    // Takes what has arrived, without waiting.
    void read()
    {
        char buffer[65536];
        ssize_t n = 0;
        while (m_fd >= 0 && !ended && (n = ::recv(m_fd, buffer, sizeof buffer, MSG_DONTWAIT)) > 0)
            received.append(buffer, n);
        ended = ended || n == 0 || (n < 0 && errno != EAGAIN && errno != EWOULDBLOCK);
    }
    // One whole answer with the given body, and nothing after it.
    bool answered(const QByteArray &body) const
    {
        return received.startsWith("HTTP/1.1 200 OK\r\n") && received.endsWith("\r\n\r\n" + body)
            && received.count("HTTP/1.1") == 1;
    }

    QByteArray received;
    bool ended = false; // closed or reset by the server

private:
    int m_fd;
};

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

    enum Behaviour { HalfCloses = 1, ByteAtATime = 2, NeverCloses = 4, NeverReads = 8 };

private slots:
    void initTestCase()
    {
        std::signal(SIGPIPE, SIG_IGN); // a client that writes after being cut off
    }

    void client_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<int>("behaviour");
        QTest::addColumn<bool>("answered");
        QTest::addColumn<bool>("heldToDeadline");

        QTest::newRow("pipelined: one answer") << kRequest + kRequest + kRequest << 0 << true << false;
        QTest::newRow("request, then half-close") << kRequest << int(HalfCloses) << true << false;
        QTest::newRow("silent") << QByteArray() << 0 << false << true;
        QTest::newRow("a byte at a time, slower than the deadline") << kRequest << int(ByteAtATime) << false << true;
        QTest::newRow("reads the answer, never closes") << kRequest << int(NeverCloses) << true << true;
        QTest::newRow("never reads the answer") << kRequest << int(NeverReads | NeverCloses) << false << true;
    }

    // The deadline covers the whole exchange, whatever the client does, and no more than the
    // exchange when the client plays its part.
    void client()
    {
        QFETCH(QByteArray, request);
        QFETCH(int, behaviour);
        QFETCH(bool, answered);
        QFETCH(bool, heldToDeadline);
        // Only an answer larger than the kernel buffers can be left unread; a client that half-closes
        // gets what the kernel took at once (all of a real scrape's few KB).
        const QByteArray body(behaviour & NeverReads ? 8 << 20 : 64, 'x');
        MetricsServer server([body] { return body; }, nullptr, kDeadline);
        QVERIFY(server.listen(kEphemeralPort, nullptr));
        RawClient client(server.port());
        QTRY_COMPARE(server.openConnections(), 1);
        QElapsedTimer since;
        since.start();
        QTimer pacer;
        if (behaviour & ByteAtATime) {
            connect(&pacer, &QTimer::timeout, &pacer, [&, sent = 0]() mutable { client.send(request.mid(sent++, 1)); });
            pacer.start(kDeadline / 8);
        } else {
            client.send(request);
        }
        if (behaviour & HalfCloses)
            client.shutdownWrite();

        const auto released = [&] {
            if (!(behaviour & NeverReads))
                client.read();
            if (client.ended && !(behaviour & NeverCloses))
                client.close();
            return server.openConnections() == 0;
        };
        QTRY_VERIFY_WITH_TIMEOUT(released(), 3 * kDeadline.count());
        QCOMPARE(since.elapsed() >= kDeadline.count() * 9 / 10, heldToDeadline);
        QCOMPARE(client.answered(body), answered);
    }

    // Connections over the limit wait for their turn, with the requests and half-closes they
    // send meanwhile, and are then answered like the others: never closed unanswered.
    void overTheLimitWaitTheirTurn()
    {
        const QByteArray body = "ferrow_build_info 1\n";
        MetricsServer server([body] { return body; }, nullptr, kDeadline);
        QVERIFY(server.listen(kEphemeralPort, nullptr));
        std::vector<std::unique_ptr<RawClient>> clients;
        for (int i = 0; i < kMaxOpenConnections + 4; ++i) {
            clients.push_back(std::make_unique<RawClient>(server.port()));
            clients.back()->send(kRequest);
        }
        const auto first = std::span(clients).first(kMaxOpenConnections);
        const auto waiting = std::span(clients).subspan(kMaxOpenConnections);
        for (const auto &client : waiting)
            client->shutdownWrite();
        const auto allAnswered = [](std::span<std::unique_ptr<RawClient>> some) {
            bool all = true;
            for (const auto &client : some) {
                client->read();
                all = all && client->ended;
            }
            return all;
        };
        // The first ones hold their places until they close.
        QTRY_VERIFY(allAnswered(first));
        QCOMPARE(server.openConnections(), kMaxOpenConnections);
        QVERIFY(!allAnswered(waiting));
        for (const auto &client : first) {
            QVERIFY(client->answered(body));
            client->close();
        }
        QTRY_VERIFY(allAnswered(waiting));
        for (const auto &client : waiting)
            QVERIFY2(client->answered(body), client->received.constData());
    }

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

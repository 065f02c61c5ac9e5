#include "platform/common/in_memory_smc.h"
#include "sources/stats_smc.h"

#include <QTest>

#include <cmath>
#include <cstring>

using namespace ferrow;

namespace {

using Bytes = std::vector<std::uint8_t>;

// Forwards to the in-memory SMC under a handle of the test's choosing, and keeps every input
// block, to check what goes over the wire.
class RecordingClient final : public SMCUserClient {
public:
    explicit RecordingClient(InMemorySMC &smc, std::uint32_t handle = 7) : m_smc(smc), m_handle(handle) {}
    std::uint32_t open() override { return (m_inner = m_smc.open()) ? m_handle : 0; }
    void close(std::uint32_t connection) override { m_smc.close(inner(connection)); }
    IOKitStatus callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input,
                                 SMCKeyData &output) override
    {
        inputs.push_back(input);
        selectors.push_back(selector);
        return m_smc.callStructMethod(inner(connection), selector, input, output);
    }

    std::vector<SMCKeyData> inputs;
    std::vector<std::uint32_t> selectors;

private:
    std::uint32_t inner(std::uint32_t connection) const { return connection == m_handle ? m_inner : 0; }
    InMemorySMC &m_smc;
    std::uint32_t m_handle, m_inner = 0;
};

// An SMC client over a table that the test keeps a hand on.
struct SMCFixture {
    InMemorySMC *table = new InMemorySMC;
    StatsSMC smc{std::unique_ptr<SMCUserClient>(table)};
};

Bytes fromHex(const char *hex)
{
    const QByteArray raw = QByteArray::fromHex(hex);
    return Bytes(raw.begin(), raw.end());
}

bool isAllZero(const void *data, std::size_t size)
{
    const auto *bytes = static_cast<const std::uint8_t *>(data);
    return std::all_of(bytes, bytes + size, [](std::uint8_t b) { return b == 0; });
}

} // namespace

class StatsSMCTest : public QObject {
    Q_OBJECT

private slots:
    void readDouble_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<int>("reportedSize");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QVariant>("expected");

        const auto row = [](const char *name, const char *type, int size, const char *hex, QVariant expected) {
            QTest::newRow(name) << QByteArray(type) << size << QByteArray::fromHex(hex) << expected;
        };
        row("sp78 26.5", "sp78", 2, "1a80", 26.5);
        row("sp78 is unsigned", "sp78", 2, "ff00", 255.0);
        row("sp1e 1.0", "sp1e", 2, "4000", 1.0);
        row("sp3c", "sp3c", 2, "1000", 1.0);
        row("sp4b", "sp4b", 2, "0800", 1.0);
        row("sp5a", "sp5a", 2, "0400", 1.0);
        row("sp69", "sp69", 2, "0200", 1.0);
        row("sp87", "sp87", 2, "0180", 3.0);
        row("sp96", "sp96", 2, "00c0", 3.0);
        row("spa5", "spa5", 2, "0050", 2.5);
        row("spb4 max", "spb4", 2, "ffff", 65535.0 / 16);
        row("spf0 258", "spf0", 2, "0102", 258.0);
        row("fpe2 drops the fraction", "fpe2", 2, "1237", 1165.0);
        row("flt negative", "flt ", 4, "0000a0c0", -5.0);
        row("ui8", "ui8 ", 1, "fe", 254.0);
        row("ui16 big-endian", "ui16", 2, "0102", 258.0);
        row("ui16 with size 1 keeps only b0", "ui16", 1, "0102", 256.0);
        row("ui32 max", "ui32", 4, "ffffffff", 4294967295.0);
        row("all-zero ui8 is absent", "ui8 ", 1, "00", QVariant());
        row("signed type is unknown", "si16", 2, "0102", QVariant());
        row("type without trailing space", "flt", 4, "0000803f", QVariant());
        row("data size 0 is an unknown key", "sp78", 0, "1a80", QVariant());
        row("bytes beyond the size are not copied", "ui8 ", 1, "00ff", QVariant());
        row("oversized key: first bytes decode", "ui32", 40,
            "0000000200000000000000000000000000000000000000000000000000000000ffffffffffffffff", 2.0);
    }

    void readDouble()
    {
        QFETCH(QByteArray, type);
        QFETCH(int, reportedSize);
        QFETCH(QByteArray, bytes);
        QFETCH(QVariant, expected);

        SMCFixture f;
        f.table->setEntry("TEST", {type.toStdString(), static_cast<std::uint32_t>(reportedSize), Bytes(bytes.begin(), bytes.end())});
        const std::optional<double> value = f.smc.readDouble("TEST");
        QCOMPARE(value.has_value(), expected.isValid());
        if (value)
            QCOMPARE(*value, expected.toDouble());
    }

    void wireBlocksOfOneRead()
    {
        InMemorySMC table;
        table.setKey("PDTR", "flt ", smcBytesOfFloat(12.5f));
        auto *client = new RecordingClient(table);
        StatsSMC smc{std::unique_ptr<SMCUserClient>(client)};

        QCOMPARE(smc.readDouble("PDTR"), std::optional<double>(12.5));
        QCOMPARE(client->inputs.size(), 2u);
        QCOMPARE(client->selectors, (std::vector<std::uint32_t>{2, 2}));

        const SMCKeyData &info = client->inputs[0];
        QCOMPARE(info.key, 0x50445452u); // 'P' in the most significant byte
        QCOMPARE(info.command, kSMCCommandReadKeyInfo);
        QCOMPARE(info.keyInfo.dataSize, 0u);
        const SMCKeyData &read = client->inputs[1];
        QCOMPARE(read.key, info.key);
        QCOMPARE(read.command, kSMCCommandReadBytes);
        QCOMPARE(read.keyInfo.dataSize, 4u);
        // Every other field goes out as zero.
        for (const SMCKeyData &block : client->inputs) {
            QVERIFY(isAllZero(&block.version, sizeof block.version));
            QVERIFY(isAllZero(&block.powerLimits, sizeof block.powerLimits));
            QCOMPARE(block.keyInfo.dataType, 0u);
            QCOMPARE(block.keyInfo.dataAttributes, 0);
            QCOMPARE(block.result, 0);
            QCOMPARE(block.status, 0);
            QCOMPARE(block.data32, 0u);
            QVERIFY(isAllZero(block.bytes, sizeof block.bytes));
        }
    }

    void failingCalls_data()
    {
        QTest::addColumn<int>("failingCommand");
        QTest::addColumn<std::uint32_t>("dataSizeAfter");
        QTest::addColumn<QByteArray>("typeAfter");
        QTest::addColumn<int>("calls");
        QTest::newRow("key info fails: record unchanged") << int(kSMCCommandReadKeyInfo) << 0u << QByteArray() << 1;
        QTest::newRow("read fails: size and type kept, bytes not") << int(kSMCCommandReadBytes) << 2u << QByteArray("sp78") << 2;
    }

    void failingCalls()
    {
        QFETCH(int, failingCommand);
        QFETCH(std::uint32_t, dataSizeAfter);
        QFETCH(QByteArray, typeAfter);
        QFETCH(int, calls);

        SMCFixture f;
        f.table->setKey("TB1T", "sp78", fromHex("1e00"));
        constexpr IOKitStatus kBusy = static_cast<IOKitStatus>(0xE00002D5u);
        f.table->setFailure("TB1T", kBusy, static_cast<std::uint8_t>(failingCommand));

        SMCValue value;
        value.key = "TB1T";
        QCOMPARE(f.smc.readKey(value), kBusy);
        QCOMPARE(value.dataSize, dataSizeAfter);
        QCOMPARE(QByteArray::fromStdString(value.dataType), typeAfter);
        QVERIFY(isAllZero(value.bytes.data(), value.bytes.size()));
        QCOMPARE(f.table->callCount(), calls);
        QCOMPARE(f.smc.readDouble("TB1T"), std::nullopt);
    }

    void withoutTheServiceNothingIsCalled()
    {
        auto *table = new InMemorySMC;
        table->setServicePresent(false);
        table->setKey("PSTR", "flt ", smcBytesOfFloat(7.0f));
        StatsSMC smc{std::unique_ptr<SMCUserClient>(table)};
        QVERIFY(!smc.isOpen());
        SMCValue value;
        value.key = "PSTR";
        QCOMPARE(smc.readKey(value), kIOKitReturnNotOpen);
        QCOMPARE(smc.readDouble("PSTR"), std::nullopt);
        QCOMPARE(table->callCount(), 0);
    }

    void connectionIsClosedOnceOnDestruction()
    {
        InMemorySMC table;
        for (const std::uint32_t handle : {1u, 0x5343u}) { // any non-zero handle is a connection
            {
                StatsSMC smc{std::make_unique<RecordingClient>(table, handle)};
                QCOMPARE(table.openConnections(), 1);
            }
            QCOMPARE(table.openConnections(), 0);
        }
    }
};

QTEST_GUILESS_MAIN(StatsSMCTest)
#include "tst_stats_smc.moc"

#include "app/text_table.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace ferrow;

namespace {

const QString kTables = QStringLiteral(FERROW_SOURCE_DIR "/resources/translations/");

struct Message {
    QStringList forms; // one text, or one per plural form
    bool finished = true;
};

// The messages of a .ts file by id; an empty map if it cannot be read or parsed.
QHash<QString, Message> readTable(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QHash<QString, Message> table;
    QXmlStreamReader xml(&file);
    QString id;
    bool plural = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message") {
            id = xml.attributes().value(QLatin1String("id")).toString();
            plural = xml.attributes().value(QLatin1String("numerus")) == u"yes";
        } else if (xml.name() == u"translation") {
            Message &message = table[id];
            message.finished = xml.attributes().value(QLatin1String("type")).isEmpty();
            if (!plural)
                message.forms.append(xml.readElementText());
        } else if (xml.name() == u"numerusform") {
            table[id].forms.append(xml.readElementText());
        }
    }
    return xml.hasError() ? QHash<QString, Message>() : table;
}

// Qt's %1 %L2 %n %Ln and printf's %.1f %d ..., in the order they appear ("%1%" is %1 then a sign).
QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%(?:L?\\d+|L?n|[-+#0]*\\d*(?:\\.\\d+)?[diouxXeEfgGs])"));
    QStringList found;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        found.append(match.captured());
    return found;
}

void removeInstalledTables()
{
    // A translator leaves the application's list when it is destroyed.
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly));
}

} // namespace

class TextTablesTest : public QObject {
    Q_OBJECT

private slots:
    void tableMatchesEnglish_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("pluralForms");
        const std::pair<const char *, int> languages[] = {{"en", 2}, {"de", 2}, {"fr", 2},    {"es", 2},    {"it", 2},
                                                           {"pt_BR", 2}, {"nl", 2}, {"pl", 3}, {"ru", 3},  {"ja", 1},
                                                           {"ko", 1},    {"zh_CN", 1}, {"zh_TW", 1}};
        for (const auto &[language, forms] : languages)
            QTest::newRow(language) << QString::fromLatin1(language) << forms;
    }

    void tableMatchesEnglish()
    {
        QFETCH(QString, language);
        QFETCH(int, pluralForms);
        const QHash<QString, Message> english = readTable(kTables + QStringLiteral("ferrow_en.ts"));
        const QHash<QString, Message> table = readTable(kTables + QStringLiteral("ferrow_%1.ts").arg(language));
        QVERIFY(!english.isEmpty());
        QVERIFY2(!table.isEmpty(), "missing or malformed");
        for (auto it = english.cbegin(); it != english.cend(); ++it) {
            const QByteArray id = it.key().toUtf8();
            const auto found = table.constFind(it.key());
            QVERIFY2(found != table.cend(), "no text for " + id);
            QVERIFY2(found->finished, "unfinished text for " + id);
            const bool plural = it->forms.size() > 1;
            QVERIFY2(found->forms.size() == (plural ? pluralForms : 1), "wrong number of plural forms for " + id);
            const QStringList expected = placeholders(it->forms.constFirst());
            for (const QString &text : found->forms) {
                QVERIFY2(!text.trimmed().isEmpty(), "empty text for " + id);
                QVERIFY2(placeholders(text) == expected, "arguments differ from English in " + id + ": " + text.toUtf8());
            }
        }
        for (auto it = table.cbegin(); it != table.cend(); ++it)
            QVERIFY2(english.contains(it.key()), "no English text for " + it.key().toUtf8());
    }

    void everyKeyTheCodeUsesHasEnglishText()
    {
        const QHash<QString, Message> english = readTable(kTables + QStringLiteral("ferrow_en.ts"));
        QVERIFY(!english.isEmpty());
        static const QRegularExpression lookup(
            QStringLiteral("\\b(?:localizedText|localizedFormat|localizedFormatText|localizedCount|localizedCountText|qtTrId)\\(\\s*\"([^\"]+)\""));
        int keys = 0;
        QDirIterator sources(QStringLiteral(FERROW_SOURCE_DIR "/src"), {QStringLiteral("*.cpp"), QStringLiteral("*.mm")}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile file(sources.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (const QRegularExpressionMatch &match : lookup.globalMatch(QString::fromUtf8(file.readAll()))) {
                ++keys;
                QVERIFY2(english.contains(match.captured(1)), qPrintable(match.captured(1) + QStringLiteral(" in ") + file.fileName()));
            }
        }
        QVERIFY(keys > 50); // the pattern still finds the code's lookups
    }

    void installedTablesFollowTheLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("computer"); // the machine is not a Mac
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << QByteArray("battery.title") << -1 << QStringLiteral("Akku") << false;
        QTest::newRow("Brazilian Portuguese")
            << QLocale(QLocale::Portuguese, QLocale::Brazil) << QByteArray("battery.title") << -1 << QStringLiteral("Bateria") << false;
        QTest::newRow("Traditional Chinese")
            << QLocale(QLocale::Chinese, QLocale::Taiwan) << QByteArray("battery.title") << -1 << QStringLiteral("電池") << false;
        QTest::newRow("Simplified Chinese")
            << QLocale(QLocale::Chinese, QLocale::China) << QByteArray("battery.title") << -1 << QStringLiteral("电池") << false;
        QTest::newRow("no table: English") << QLocale(QLocale::Swahili) << QByteArray("battery.title") << -1 << QStringLiteral("Battery") << false;
        QTest::newRow("Russian one") << QLocale(QLocale::Russian) << QByteArray("count.times") << 21 << QStringLiteral("21 раз") << false;
        QTest::newRow("Russian few") << QLocale(QLocale::Russian) << QByteArray("count.times") << 3 << QStringLiteral("3 раза") << false;
        QTest::newRow("German, a computer")
            << QLocale(QLocale::German, QLocale::Germany) << QByteArray("battery.not_detected_description") << -1
            << QStringLiteral("Dieser Computer läuft nur mit externer Stromversorgung.") << true;
        QTest::newRow("no table, a computer: English") << QLocale(QLocale::Swahili) << QByteArray("device.title") << -1 << QStringLiteral("This computer") << true;
        QTest::newRow("a computer: other texts unchanged") << QLocale(QLocale::German, QLocale::Germany) << QByteArray("battery.title") << -1 << QStringLiteral("Akku") << true;
        QTest::newRow("Russian many") << QLocale(QLocale::Russian) << QByteArray("count.times") << 12 << QStringLiteral("12 раз") << false;
    }

    void installedTablesFollowTheLocale()
    {
        QFETCH(QLocale, locale);
        QFETCH(QByteArray, key);
        QFETCH(int, count);
        QFETCH(QString, expected);
        QFETCH(bool, computer);
        QLocale::setDefault(locale);
        QVERIFY(installTextTable(*QCoreApplication::instance()));
        if (computer)
            nameMachineAComputer(*QCoreApplication::instance());
        const QString text = qtTrId(key.constData(), count);
        removeInstalledTables();
        QLocale::setDefault(QLocale::c());
        QCOMPARE(text, expected);
    }
};

QTEST_GUILESS_MAIN(TextTablesTest)
#include "tst_text_tables.moc"

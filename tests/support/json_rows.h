#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace ferrow::testing {

// Adds the data column "row" with one row for each object of a table in tests/fixtures, named by
// its "name": the file's top-level array, or the array held by one of its members.
inline void addJsonRows(const char *fixture, const char *member = nullptr)
{
    QFile file(QStringLiteral(QT_TESTCASE_SOURCEDIR "/fixtures/") + QLatin1String(fixture));
    QVERIFY2(file.open(QIODevice::ReadOnly), fixture);
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    const QJsonArray rows = member ? document[QLatin1String(member)].toArray() : document.array();
    QVERIFY2(!rows.isEmpty(), fixture);
    QTest::addColumn<QJsonObject>("row");
    for (const QJsonValue &row : rows)
        QTest::newRow(qPrintable(row[u"name"].toString())) << row.toObject();
}

} // namespace ferrow::testing

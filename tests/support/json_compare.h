#pragma once

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace ferrow::testing {

// Whether actual matches expected: numbers within 1e-5 (recorded values are single-precision floats), arrays element by element, and objects
// on the members that expected names (others are ignored).
inline bool jsonMatches(const QJsonValue &actual, const QJsonValue &expected)
{
    if (expected.isDouble() && actual.isDouble())
        return qAbs(actual.toDouble() - expected.toDouble()) < 1e-5;
    if (expected.isArray() && actual.isArray()) {
        const QJsonArray a = actual.toArray(), e = expected.toArray();
        return a.size() == e.size() && std::equal(a.begin(), a.end(), e.begin(), jsonMatches);
    }
    if (expected.isObject() && actual.isObject()) {
        const QJsonObject a = actual.toObject(), e = expected.toObject();
        const QStringList names = e.keys();
        return std::all_of(names.begin(), names.end(), [&](const QString &name) { return jsonMatches(a.value(name), e.value(name)); });
    }
    return actual == expected;
}

// The members of expected that actual does not match, as "name: got X, want Y" lines.
inline QString jsonMismatches(const QJsonObject &actual, const QJsonObject &expected)
{
    const auto text = [](const QJsonValue &v) { return QString::fromUtf8(QJsonDocument(QJsonArray{v}).toJson(QJsonDocument::Compact)); };
    QString mismatches;
    for (auto member = expected.begin(); member != expected.end(); ++member) {
        if (!jsonMatches(actual.value(member.key()), member.value()))
            mismatches += QStringLiteral("%1: got %2, want %3\n").arg(member.key(), text(actual.value(member.key())), text(member.value()));
    }
    return mismatches;
}

} // namespace ferrow::testing

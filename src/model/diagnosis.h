#pragma once

#include <QJsonObject>
#include <QString>

#include <vector>

namespace ferrow {

// What one source of a machine answered, as a user can send it to us: for each thing asked, the
// answer, and where there is none, why.
struct DiagnosisEntry {
    QString name;
    QString value; // empty: nothing was answered
    QString why;   // why the value is missing or not used; empty when there is nothing to explain
};

struct DiagnosisSection {
    QString title;
    std::vector<DiagnosisEntry> entries;

    void add(QString name, QString value, QString why = {}) { entries.push_back({std::move(name), std::move(value), std::move(why)}); }
    void absent(QString name, QString why) { entries.push_back({std::move(name), {}, std::move(why)}); }
};

using Diagnosis = std::vector<DiagnosisSection>;

// One section a block, one entry a line: "  name: value (why)", or "  name: — why".
QString diagnosisText(const Diagnosis &diagnosis);
// {"sections": [{"title": …, "entries": [{"name": …, "value": … or null, "why": … or absent}]}]}
QJsonObject diagnosisJson(const Diagnosis &diagnosis);

} // namespace ferrow

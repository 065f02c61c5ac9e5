#include "model/diagnosis.h"

#include <QJsonArray>

namespace ferrow {
namespace {

// A name or value from the machine may hold anything, a file name a newline: each entry stays one
// line, its control characters written out as escapes.
QString oneLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar character : text) {
        if (character == u'\n')
            line += QStringLiteral("\\n");
        else if (character.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QChar(u'0'));
        else
            line += character;
    }
    return line;
}

} // namespace

QString diagnosisText(const Diagnosis &diagnosis)
{
    QString text;
    for (const DiagnosisSection &section : diagnosis) {
        if (!text.isEmpty())
            text += u'\n';
        text += section.title + u'\n';
        for (const DiagnosisEntry &entry : section.entries) {
            text += QStringLiteral("  ") + oneLine(entry.name) + QStringLiteral(": ");
            if (entry.value.isEmpty())
                text += QStringLiteral("\u2014");
            else
                text += oneLine(entry.value);
            if (!entry.why.isEmpty())
                text += entry.value.isEmpty() ? u' ' + oneLine(entry.why) : QStringLiteral(" (") + oneLine(entry.why) + u')';
            text += u'\n';
        }
    }
    return text;
}

QJsonObject diagnosisJson(const Diagnosis &diagnosis)
{
    QJsonArray sections;
    for (const DiagnosisSection &section : diagnosis) {
        QJsonArray entries;
        for (const DiagnosisEntry &entry : section.entries) {
            QJsonObject object{{QStringLiteral("name"), entry.name},
                               {QStringLiteral("value"), entry.value.isEmpty() ? QJsonValue() : QJsonValue(entry.value)}};
            if (!entry.why.isEmpty())
                object.insert(QStringLiteral("why"), entry.why);
            entries.append(object);
        }
        sections.append(QJsonObject{{QStringLiteral("title"), section.title}, {QStringLiteral("entries"), entries}});
    }
    return {{QStringLiteral("sections"), sections}};
}

} // namespace ferrow

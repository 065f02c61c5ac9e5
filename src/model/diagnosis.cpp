#include "model/diagnosis.h"

#include <QJsonArray>

namespace ferrow {

QString diagnosisText(const Diagnosis &diagnosis)
{
    QString text;
    for (const DiagnosisSection &section : diagnosis) {
        if (!text.isEmpty())
            text += u'\n';
        text += section.title + u'\n';
        for (const DiagnosisEntry &entry : section.entries) {
            text += QStringLiteral("  ") + entry.name + QStringLiteral(": ");
            if (entry.value.isEmpty())
                text += QStringLiteral("\u2014");
            else
                text += entry.value;
            if (!entry.why.isEmpty())
                text += entry.value.isEmpty() ? u' ' + entry.why : QStringLiteral(" (") + entry.why + u')';
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

#include "app/alert_lines.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace ferrow {

AlertLines::AlertLines(const AlertSettings &settings, bool json)
    : m_rules(settings)
    , m_json(json)
{
}

QStringList AlertLines::add(const PowerSnapshot &reading, double uptimeS)
{
    QStringList lines;
    for (const Alert &alert : m_rules.add(reading, uptimeS)) {
        if (m_json) {
            const QJsonObject object{{QStringLiteral("alert"), alertKindName(alert.kind)},
                                     {QStringLiteral("title"), alert.title},
                                     {QStringLiteral("body"), alert.body}};
            lines << QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
        } else {
            lines << QStringLiteral("ALERT %1: %2").arg(alert.title, alert.body);
        }
    }
    return lines;
}

} // namespace ferrow

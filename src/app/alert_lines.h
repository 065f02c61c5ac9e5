#pragma once

#include "alerts/alert_rules.h"
#include "model/power_snapshot.h"

#include <QStringList>

namespace ferrow {

// What the terminal view prints when an alert fires: "ALERT title: body", or as JSON one object a
// line, {"alert": kind name, "title", "body"}, which a script tells from a reading by "alert".
class AlertLines {
public:
    AlertLines(const AlertSettings &settings, bool json);

    // The lines for the alerts this reading fires, most urgent first; none most of the time.
    QStringList add(const PowerSnapshot &reading, double uptimeS);

private:
    AlertRules m_rules;
    bool m_json;
};

} // namespace ferrow

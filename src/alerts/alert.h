#pragma once

#include <QString>

namespace ferrow {

// The conditions a user would act on if told.
enum class AlertKind { chargerCannotKeepUp, chargingSlowly, batteryHot, cellsOutOfBalance, chargeLevelReached };

// One alert as the user reads it: a short title and a sentence that names the figures, in the
// user's language.
struct Alert {
    AlertKind kind = AlertKind::chargerCannotKeepUp;
    QString title;
    QString body;

    bool operator==(const Alert &) const = default;
};

// The kind's fixed name for scripts, in any language: "charger_cannot_keep_up", ...
QString alertKindName(AlertKind kind);

} // namespace ferrow

#pragma once

#include "model/power_snapshot.h"

#include <QString>

namespace ferrow {

// What a screen reader hears of the views' figures, decided from the text they show.

// Units as words and figures in the locale's digits ("22.4 W" → "22.4 watts"), the dash as
// "not available"; text that is no figure stays as it is.
QString spokenValue(const QString &shown);
// A label and the value shown beside it as one sentence: "System power, 22.4 watts".
QString spokenReading(const QString &label, const QString &shownValue);
// A notice's title and its explanation, read as one.
QString spokenNote(const QString &title, const QString &description);

// The popover's status as one sentence: whether readings arrive, and the machine's state.
QString liveStatusText(const PowerSnapshot &snapshot);
// Whether going from before to after is worth a screen reader's notice: plugged in, unplugged or
// fully charged, between two live readings. Figures changing never are.
bool isAnnouncedChange(const PowerSnapshot &before, const PowerSnapshot &after);

} // namespace ferrow

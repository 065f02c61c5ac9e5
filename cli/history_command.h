#pragma once

#include <QString>

#include <optional>

namespace ferrow {

// What --history, --sessions and --apps were given, as typed.
struct HistoryOptions {
    bool sessions = false; // --sessions rather than --history
    bool apps = false;     // --apps
    QString appPeriod;     // with --apps
    std::optional<QString> from;
    std::optional<QString> to;
    QString per;
    QString format;
    QString database; // empty: the application's
};

// Prints the stored energy per period, the sessions or the applications, as CSV or JSON on stdout. The database is
// opened read-only, so this is safe while the application writes it. Returns the exit status; a
// bad option or an unreadable database is one line on stderr.
int printHistory(const HistoryOptions &options);

} // namespace ferrow

#pragma once

#include <QString>

namespace ferrow {

// What Ferrow keeps about its user (preferences, the history) is theirs alone to read.

// Makes path an empty file that only its owner may read and write, with its folder (also the
// owner's alone when made here), unless the file is there already: then only its permissions are
// narrowed. False, with why, when the file cannot be made.
bool keepPrivate(const QString &path, QString *why = nullptr);

// "the disk is full" or "the disk is read-only" when the disk that holds path is, else empty: why
// a write there failed, in words a user can act on.
QString diskTrouble(const QString &path);

} // namespace ferrow

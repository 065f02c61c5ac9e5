#pragma once

class QCoreApplication;

namespace ferrow {

// Installs the English text table compiled into the program and, over it, the table for the
// current locale's language where there is one. Returns false if English could not be loaded, in
// which case every text shows as its key.
bool installTextTable(QCoreApplication &application);

} // namespace ferrow

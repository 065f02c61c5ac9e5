#pragma once

class QCoreApplication;

namespace ferrow {

// Installs the English text table compiled into the program. Returns false if it could not be
// loaded, in which case every text shows as its key.
bool installTextTable(QCoreApplication &application);

} // namespace ferrow

#pragma once

class QCoreApplication;

namespace ferrow {

// Installs the English text table compiled into the program and, over it, the table for the
// current locale's language where there is one. Returns false if English could not be loaded, in
// which case every text shows as its key.
bool installTextTable(QCoreApplication &application);
// Over the installed tables: the texts that call the machine "this Mac" say "this computer" (for a
// machine that is not a Mac), in the same language.
void nameMachineAComputer(QCoreApplication &application);

} // namespace ferrow

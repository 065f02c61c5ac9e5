#pragma once

#include "model/power_snapshot.h"

namespace ferrow {

// What the monitor needs of a reader: one blocking call that cannot fail and returns a
// complete reading stamped with the time it was taken. Called on a worker thread, never
// by two threads at once.
class SnapshotReader {
public:
    virtual ~SnapshotReader() = default;
    virtual PowerSnapshot read() = 0;
    // Writes what the reader keeps (the batteries' lifetime extremes) to disk. Called like read(),
    // before the machine sleeps and before the program quits.
    virtual void persist() {}
};

} // namespace ferrow

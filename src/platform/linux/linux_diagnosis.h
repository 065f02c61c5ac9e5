#pragma once

#include "model/diagnosis.h"
#include "platform/linux/sysfs_files.h"

namespace ferrow {

// What the kernel's files under the root answer: every power supply with what it reports (a
// battery's serial number only as the identifier the history store keys it by), the hwmon power
// sensors, and the RAPL energy zones with whether this user may read them, and if not, why.
Diagnosis diagnoseLinuxTree(SysfsFiles &files);

} // namespace ferrow

#pragma once

#include "model/diagnosis.h"
#include "sources/platform_interfaces.h"

namespace ferrow {

// What a Mac (or a machine that reproduces one) answers to each question the reader asks: the
// SMC and each of its keys with type and size, the energy channels with their units, the battery
// service, the power sources, the adapter's details and the system profiler. The battery's serial
// number appears only as the identifier the history store keys it by.
Diagnosis diagnoseMacSources(MachinePlatform &platform);

} // namespace ferrow

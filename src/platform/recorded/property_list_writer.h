#pragma once

#include "sources/property_value.h"

#include <QByteArray>

namespace ferrow {

// An XML property list of one value, as `ioreg -a` writes one; values without a typed form here
// (a date, a dictionary with other keys) are left out of their container.
QByteArray writePropertyList(const PropertyValue &value);

} // namespace ferrow

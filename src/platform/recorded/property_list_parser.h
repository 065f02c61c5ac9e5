#pragma once

#include "sources/property_value.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace ferrow {

// Parses an XML property list, the form `ioreg -a` and `plutil` print, into an untyped value:
// integers (signed, or unsigned above the signed range), reals, booleans, strings, data, arrays
// and dictionaries; dates have no typed reading here. On failure the message names the line,
// the column and the problem.
std::optional<PropertyValue> parsePropertyList(const QByteArray &xml, QString *error);

} // namespace ferrow

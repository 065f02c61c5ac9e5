#pragma once

#include "sources/property_value.h"

#include <CoreFoundation/CoreFoundation.h>

#include <optional>

namespace ferrow {

// Converts a CoreFoundation value (not owned; nothing is retained or released) into the untyped
// property value: signed and unsigned integers kept apart, booleans as booleans (never numbers),
// strings, data, arrays, and dictionaries whose keys are all strings. Anything else, such as a
// date or a dictionary with another kind of key, has no typed reading.
PropertyValue propertyValueFromCF(CFTypeRef value);

// A whole property dictionary, or absent when it is not a dictionary with string keys.
std::optional<PropertyDictionary> propertyDictionaryFromCF(CFTypeRef value);

// A CoreFoundation string as text; an empty text for anything that is not a string.
QString stringFromCF(CFStringRef string);

} // namespace ferrow

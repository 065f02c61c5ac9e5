#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <variant>
#include <vector>

namespace ferrow {

struct PropertyValue;

// A dictionary whose keys are all strings. Dictionaries with any other key cannot be
// represented here and arrive as UnsupportedProperty.
using PropertyDictionary = std::map<QString, PropertyValue, std::less<>>; // looked up by QLatin1StringView too
using PropertyList = std::vector<PropertyValue>;

// A value the platform handed over that has no typed reading here (a date, or a dictionary
// with a key that is not a string). Every typed lookup of it is missing.
struct UnsupportedProperty {
    bool operator==(const UnsupportedProperty &) const = default;
};

// One untyped property value, as the battery service's registry entry, a recording or the
// simulated machine holds it. Signed and unsigned integers stay distinct, as the platform keeps them.
struct PropertyValue {
    using Storage = std::variant<std::int64_t, std::uint64_t, double, bool, QString, QByteArray, PropertyList,
                                 PropertyDictionary, UnsupportedProperty>;
    Storage value;

    PropertyValue() : value(UnsupportedProperty{}) {}
    template <typename T>
        requires std::is_constructible_v<Storage, T &&>
    PropertyValue(T &&v) : value(std::forward<T>(v)) // NOLINT(google-explicit-constructor): a value type
    {
    }
    PropertyValue(int v) : value(std::int64_t(v)) {}
    PropertyValue(const char16_t *v) : value(QString::fromUtf16(v)) {}

    bool operator==(const PropertyValue &) const = default;
};

// Typed readings of an untyped value. A missing value (nullptr) or one of another kind is missing.
// Booleans count as numbers, as the platform's number objects do.
std::optional<std::int64_t> propertyInteger(const PropertyValue *value);
std::optional<bool> propertyBoolean(const PropertyValue *value);
std::optional<QString> propertyString(const PropertyValue *value);
const PropertyDictionary *propertyDictionary(const PropertyValue *value);
std::optional<std::vector<double>> propertyNumberList(const PropertyValue *value);

// The entry under key, or nullptr when the dictionary or the entry is missing.
const PropertyValue *propertyLookup(const PropertyDictionary *dictionary, const QString &key);
const PropertyValue *propertyLookup(const PropertyDictionary *dictionary, QLatin1StringView key);

} // namespace ferrow

#include "sources/property_value.h"

#include <cmath>

namespace ferrow {
namespace {

// A number object's value as an unsigned 64-bit integer with its bit pattern taken as signed.
// Fractions go toward zero; a double no 64-bit integer can hold is missing rather than undefined.
std::optional<std::int64_t> integerOfDouble(double number)
{
    if (!std::isfinite(number))
        return std::nullopt;
    const double truncated = std::trunc(number);
    constexpr double twoTo63 = 9223372036854775808.0;
    if (truncated >= -twoTo63 && truncated < twoTo63)
        return static_cast<std::int64_t>(truncated);
    if (truncated >= twoTo63 && truncated < 2 * twoTo63)
        return static_cast<std::int64_t>(static_cast<std::uint64_t>(truncated));
    return std::nullopt;
}

std::optional<double> numberOf(const PropertyValue &value)
{
    if (const auto *v = std::get_if<std::int64_t>(&value.value))
        return static_cast<double>(*v);
    if (const auto *v = std::get_if<std::uint64_t>(&value.value))
        return static_cast<double>(*v);
    if (const auto *v = std::get_if<double>(&value.value))
        return *v;
    if (const auto *v = std::get_if<bool>(&value.value))
        return *v ? 1.0 : 0.0;
    return std::nullopt;
}

} // namespace

std::optional<std::int64_t> propertyInteger(const PropertyValue *value)
{
    if (!value)
        return std::nullopt;
    if (const auto *v = std::get_if<std::int64_t>(&value->value))
        return *v;
    if (const auto *v = std::get_if<std::uint64_t>(&value->value))
        return static_cast<std::int64_t>(*v);
    if (const auto *v = std::get_if<double>(&value->value))
        return integerOfDouble(*v);
    if (const auto *v = std::get_if<bool>(&value->value))
        return *v ? 1 : 0;
    return std::nullopt;
}

std::optional<bool> propertyBoolean(const PropertyValue *value)
{
    if (!value)
        return std::nullopt;
    if (const auto *v = std::get_if<bool>(&value->value))
        return *v;
    if (const auto *v = std::get_if<std::int64_t>(&value->value))
        return *v != 0;
    if (const auto *v = std::get_if<std::uint64_t>(&value->value))
        return *v != 0;
    if (const auto *v = std::get_if<double>(&value->value))
        return *v != 0.0;
    return std::nullopt;
}

std::optional<QString> propertyString(const PropertyValue *value)
{
    if (const auto *v = value ? std::get_if<QString>(&value->value) : nullptr)
        return *v;
    return std::nullopt;
}

const PropertyDictionary *propertyDictionary(const PropertyValue *value)
{
    return value ? std::get_if<PropertyDictionary>(&value->value) : nullptr;
}

std::optional<std::vector<double>> propertyNumberList(const PropertyValue *value)
{
    const auto *list = value ? std::get_if<PropertyList>(&value->value) : nullptr;
    if (!list)
        return std::nullopt;
    std::vector<double> numbers;
    numbers.reserve(list->size());
    for (const PropertyValue &element : *list) {
        const std::optional<double> number = numberOf(element);
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
    }
    return numbers;
}

namespace {

template <typename Key>
const PropertyValue *find(const PropertyDictionary *dictionary, const Key &key)
{
    if (!dictionary)
        return nullptr;
    const auto entry = dictionary->find(key);
    return entry == dictionary->end() ? nullptr : &entry->second;
}

} // namespace

const PropertyValue *propertyLookup(const PropertyDictionary *dictionary, const QString &key)
{
    return find(dictionary, key);
}

const PropertyValue *propertyLookup(const PropertyDictionary *dictionary, QLatin1StringView key)
{
    return find(dictionary, key);
}

} // namespace ferrow

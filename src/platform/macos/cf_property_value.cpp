#include "platform/macos/cf_property_value.h"

#include <vector>

namespace ferrow {
namespace {

// Far deeper than a registry entry goes; keeps a malformed value from exhausting the stack.
constexpr int kMaximumDepth = 64;

PropertyValue numberFromCF(CFNumberRef number)
{
    if (CFNumberIsFloatType(number)) {
        double value = 0;
        CFNumberGetValue(number, kCFNumberDoubleType, &value);
        return value;
    }
    long long value = 0;
    if (CFNumberGetValue(number, kCFNumberLongLongType, &value))
        return static_cast<std::int64_t>(value);
    // Only an unsigned value above the signed range fails to fit; its 64-bit pattern is kept.
    return static_cast<std::uint64_t>(value);
}

PropertyValue convert(CFTypeRef value, int depth);

std::optional<PropertyDictionary> dictionaryFromCF(CFDictionaryRef dictionary, int depth)
{
    const CFIndex count = CFDictionaryGetCount(dictionary);
    std::vector<const void *> keys(static_cast<std::size_t>(count)), values(static_cast<std::size_t>(count));
    CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
    PropertyDictionary result;
    for (CFIndex i = 0; i < count; ++i) {
        const auto key = static_cast<CFTypeRef>(keys[static_cast<std::size_t>(i)]);
        if (!key || CFGetTypeID(key) != CFStringGetTypeID())
            return std::nullopt;
        result.insert_or_assign(stringFromCF(static_cast<CFStringRef>(key)),
                                convert(static_cast<CFTypeRef>(values[static_cast<std::size_t>(i)]), depth + 1));
    }
    return result;
}

PropertyValue convert(CFTypeRef value, int depth)
{
    if (!value || depth > kMaximumDepth)
        return UnsupportedProperty{};
    const CFTypeID type = CFGetTypeID(value);
    if (type == CFBooleanGetTypeID())
        return CFBooleanGetValue(static_cast<CFBooleanRef>(value)) != 0;
    if (type == CFNumberGetTypeID())
        return numberFromCF(static_cast<CFNumberRef>(value));
    if (type == CFStringGetTypeID())
        return stringFromCF(static_cast<CFStringRef>(value));
    if (type == CFDataGetTypeID()) {
        const auto data = static_cast<CFDataRef>(value);
        return QByteArray(reinterpret_cast<const char *>(CFDataGetBytePtr(data)), static_cast<qsizetype>(CFDataGetLength(data)));
    }
    if (type == CFArrayGetTypeID()) {
        const auto array = static_cast<CFArrayRef>(value);
        PropertyList list;
        const CFIndex count = CFArrayGetCount(array);
        list.reserve(static_cast<std::size_t>(count));
        for (CFIndex i = 0; i < count; ++i)
            list.push_back(convert(CFArrayGetValueAtIndex(array, i), depth + 1));
        return list;
    }
    if (type == CFDictionaryGetTypeID()) {
        if (std::optional<PropertyDictionary> dictionary = dictionaryFromCF(static_cast<CFDictionaryRef>(value), depth))
            return std::move(*dictionary);
    }
    return UnsupportedProperty{};
}

} // namespace

QString stringFromCF(CFStringRef string)
{
    if (!string || CFGetTypeID(string) != CFStringGetTypeID())
        return {};
    const CFIndex length = CFStringGetLength(string);
    QString text(static_cast<qsizetype>(length), Qt::Uninitialized);
    CFStringGetCharacters(string, CFRangeMake(0, length), reinterpret_cast<UniChar *>(text.data()));
    return text;
}

PropertyValue propertyValueFromCF(CFTypeRef value)
{
    return convert(value, 0);
}

std::optional<PropertyDictionary> propertyDictionaryFromCF(CFTypeRef value)
{
    if (!value || CFGetTypeID(value) != CFDictionaryGetTypeID())
        return std::nullopt;
    return dictionaryFromCF(static_cast<CFDictionaryRef>(value), 0);
}

} // namespace ferrow

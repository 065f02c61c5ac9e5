#include "fake_core_foundation.h"

#include <cstring>
#include <memory>

namespace {

enum Kind : CFTypeID { kBoolean = 1, kNumber, kString, kData, kArray, kDictionary, kDate };

struct Object {
    explicit Object(Kind k) : kind(k) {}
    Kind kind;
    int references = 1;
    bool flag = false;
    bool isFloat = false;
    bool isUnsigned = false;
    std::int64_t integer = 0;
    std::uint64_t unsignedInteger = 0;
    double real = 0;
    std::u16string text;
    std::string bytes;
    std::vector<CFTypeRef> elements;
    std::vector<CFTypeRef> keys;
};

std::vector<std::unique_ptr<Object>> &objects()
{
    static std::vector<std::unique_ptr<Object>> all;
    return all;
}

CFTypeRef make(Object object)
{
    objects().push_back(std::make_unique<Object>(std::move(object)));
    return objects().back().get();
}

const Object &of(CFTypeRef ref)
{
    return *static_cast<const Object *>(ref);
}

} // namespace

namespace fakecf {

CFTypeRef number(std::int64_t value)
{
    Object o{kNumber};
    o.integer = value;
    return make(std::move(o));
}

CFTypeRef unsignedNumber(std::uint64_t value)
{
    Object o{kNumber};
    o.isUnsigned = true;
    o.unsignedInteger = value;
    return make(std::move(o));
}

CFTypeRef real(double value)
{
    Object o{kNumber};
    o.isFloat = true;
    o.real = value;
    return make(std::move(o));
}

CFTypeRef boolean(bool value)
{
    Object o{kBoolean};
    o.flag = value;
    return make(std::move(o));
}

CFTypeRef string(const std::u16string &text)
{
    Object o{kString};
    o.text = text;
    return make(std::move(o));
}

CFTypeRef data(const std::string &bytes)
{
    Object o{kData};
    o.bytes = bytes;
    return make(std::move(o));
}

CFTypeRef array(std::vector<CFTypeRef> elements)
{
    Object o{kArray};
    o.elements = std::move(elements);
    return make(std::move(o));
}

CFTypeRef dictionary(std::vector<std::pair<CFTypeRef, CFTypeRef>> entries)
{
    Object o{kDictionary};
    for (const auto &[key, value] : entries) {
        o.keys.push_back(key);
        o.elements.push_back(value);
    }
    return make(std::move(o));
}

CFTypeRef date()
{
    return make(Object{kDate});
}

int referenceCount(CFTypeRef object)
{
    return of(object).references;
}

void destroyAll()
{
    objects().clear();
}

} // namespace fakecf

extern "C" {

CFTypeRef CFRetain(CFTypeRef cf)
{
    ++const_cast<Object &>(of(cf)).references;
    return cf;
}

void CFRelease(CFTypeRef cf)
{
    --const_cast<Object &>(of(cf)).references;
}

CFTypeID CFGetTypeID(CFTypeRef cf) { return of(cf).kind; }
CFTypeID CFBooleanGetTypeID(void) { return kBoolean; }
Boolean CFBooleanGetValue(CFBooleanRef boolean) { return of(boolean).flag; }
CFTypeID CFNumberGetTypeID(void) { return kNumber; }
Boolean CFNumberIsFloatType(CFNumberRef number) { return of(number).isFloat; }

Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void *valuePtr)
{
    const Object &o = of(number);
    if (type == kCFNumberDoubleType) {
        const double value = o.isFloat ? o.real : o.isUnsigned ? static_cast<double>(o.unsignedInteger) : static_cast<double>(o.integer);
        std::memcpy(valuePtr, &value, sizeof value);
        return true;
    }
    // An integer type: lossy, as CF says, for a fraction or an unsigned value beyond the signed range.
    const long long value = o.isFloat ? static_cast<long long>(o.real) : o.isUnsigned ? static_cast<long long>(o.unsignedInteger) : o.integer;
    std::memcpy(valuePtr, &value, sizeof value);
    return !o.isFloat && !(o.isUnsigned && o.unsignedInteger > 9223372036854775807ull);
}

CFTypeID CFStringGetTypeID(void) { return kString; }
CFIndex CFStringGetLength(CFStringRef theString) { return static_cast<CFIndex>(of(theString).text.size()); }

void CFStringGetCharacters(CFStringRef theString, CFRange range, UniChar *buffer)
{
    std::memcpy(buffer, of(theString).text.data() + range.location, static_cast<std::size_t>(range.length) * sizeof(UniChar));
}

CFTypeID CFDataGetTypeID(void) { return kData; }
CFIndex CFDataGetLength(CFDataRef theData) { return static_cast<CFIndex>(of(theData).bytes.size()); }
const uint8_t *CFDataGetBytePtr(CFDataRef theData) { return reinterpret_cast<const uint8_t *>(of(theData).bytes.data()); }
CFTypeID CFArrayGetTypeID(void) { return kArray; }
CFIndex CFArrayGetCount(CFArrayRef theArray) { return static_cast<CFIndex>(of(theArray).elements.size()); }
const void *CFArrayGetValueAtIndex(CFArrayRef theArray, CFIndex idx) { return of(theArray).elements.at(static_cast<std::size_t>(idx)); }
CFTypeID CFDictionaryGetTypeID(void) { return kDictionary; }
CFIndex CFDictionaryGetCount(CFDictionaryRef theDict) { return static_cast<CFIndex>(of(theDict).keys.size()); }

void CFDictionaryGetKeysAndValues(CFDictionaryRef theDict, const void **keys, const void **values)
{
    const Object &o = of(theDict);
    for (std::size_t i = 0; i < o.keys.size(); ++i) {
        keys[i] = o.keys[i];
        values[i] = o.elements[i];
    }
}

} // extern "C"

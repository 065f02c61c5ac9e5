#pragma once
// Declarations with Apple's documented signatures, for compiling the macOS sources on Linux.

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef const void *CFTypeRef;
typedef unsigned long CFTypeID;
typedef long CFIndex;
typedef unsigned char Boolean;
typedef uint16_t UniChar;
typedef uint32_t CFStringEncoding;

typedef const struct __CFAllocator *CFAllocatorRef;
typedef const struct __CFString *CFStringRef;
typedef const struct __CFDictionary *CFDictionaryRef;
typedef struct __CFDictionary *CFMutableDictionaryRef;
typedef const struct __CFArray *CFArrayRef;
typedef const struct __CFNumber *CFNumberRef;
typedef const struct __CFBoolean *CFBooleanRef;
typedef const struct __CFData *CFDataRef;

typedef struct {
    CFIndex location;
    CFIndex length;
} CFRange;

static inline CFRange CFRangeMake(CFIndex location, CFIndex length)
{
    CFRange range = {location, length};
    return range;
}

typedef CFIndex CFNumberType;
enum {
    kCFNumberSInt64Type = 4,
    kCFNumberLongLongType = 11,
    kCFNumberDoubleType = 13,
};
enum { kCFStringEncodingUTF8 = 0x08000100 };

extern const CFAllocatorRef kCFAllocatorDefault;

CFTypeRef CFRetain(CFTypeRef cf);
void CFRelease(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);

CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef boolean);

CFTypeID CFNumberGetTypeID(void);
Boolean CFNumberIsFloatType(CFNumberRef number);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType theType, void *valuePtr);

CFTypeID CFStringGetTypeID(void);
CFIndex CFStringGetLength(CFStringRef theString);
void CFStringGetCharacters(CFStringRef theString, CFRange range, UniChar *buffer);
CFStringRef CFStringCreateWithCString(CFAllocatorRef alloc, const char *cStr, CFStringEncoding encoding);
CFStringRef __CFStringMakeConstantString(const char *cStr);
#define CFSTR(cStr) __CFStringMakeConstantString("" cStr "")

CFTypeID CFDataGetTypeID(void);
CFIndex CFDataGetLength(CFDataRef theData);
const uint8_t *CFDataGetBytePtr(CFDataRef theData);

CFTypeID CFArrayGetTypeID(void);
CFIndex CFArrayGetCount(CFArrayRef theArray);
const void *CFArrayGetValueAtIndex(CFArrayRef theArray, CFIndex idx);

CFTypeID CFDictionaryGetTypeID(void);
CFIndex CFDictionaryGetCount(CFDictionaryRef theDict);
void CFDictionaryGetKeysAndValues(CFDictionaryRef theDict, const void **keys, const void **values);
const void *CFDictionaryGetValue(CFDictionaryRef theDict, const void *key);
Boolean CFDictionaryContainsKey(CFDictionaryRef theDict, const void *key);
CFMutableDictionaryRef CFDictionaryCreateMutableCopy(CFAllocatorRef allocator, CFIndex capacity, CFDictionaryRef theDict);

#ifdef __cplusplus
}
#endif

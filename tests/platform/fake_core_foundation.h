#pragma once

// A tiny CoreFoundation for tests: just the calls the property conversion makes, over objects
// that count their references so a test can see that nothing was retained or released.

#include <CoreFoundation/CoreFoundation.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace fakecf {

CFTypeRef number(std::int64_t value);
CFTypeRef unsignedNumber(std::uint64_t value);
CFTypeRef real(double value);
CFTypeRef boolean(bool value);
CFTypeRef string(const std::u16string &text);
CFTypeRef data(const std::string &bytes);
CFTypeRef array(std::vector<CFTypeRef> elements);
CFTypeRef dictionary(std::vector<std::pair<CFTypeRef, CFTypeRef>> entries);
CFTypeRef date();

int referenceCount(CFTypeRef object);
void destroyAll(); // frees every object made since the last call

} // namespace fakecf

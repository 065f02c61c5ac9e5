// The `ioreg -a` property-list parser over arbitrary bytes.
#include "platform/recorded/property_list_parser.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QString error;
    const auto parsed = ferrow::parsePropertyList(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)), &error);
    if (!parsed && error.isEmpty())
        __builtin_trap(); // a refusal always says why
    return 0;
}

// The exporter's request parser, the only parser that faces a network: any bytes, cut anywhere,
// must give a route without reading past what arrived.
#include "export/http_request.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView received(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const ferrow::HttpRequest whole = ferrow::parseHttpRequest(received);
    // A complete head stays complete, with the same answer, whatever follows it.
    if (whole.route != ferrow::HttpRoute::incomplete && whole.route != ferrow::HttpRoute::headersTooLarge) {
        const QByteArray longer = received.toByteArray() + "trailing body";
        if (!(ferrow::parseHttpRequest(longer) == whole))
            __builtin_trap();
    }
    for (std::size_t cut = 0; cut < size && cut < 64; ++cut)
        ferrow::parseHttpRequest(received.first(static_cast<qsizetype>(cut)));
    ferrow::parseListenAddress(QString::fromUtf8(received));
    return 0;
}

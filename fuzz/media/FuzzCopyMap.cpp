// Any text as the map of a copy: it is refused with a reason, or written and read back as the same map.
#include <cstdlib>

#include "media/CopyMapText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QString why;
    const auto map =
        vantor::readCopyMap({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)}, &why);
    if (!map) {
        if (why.isEmpty()) {
            std::abort();
        }
        return 0;
    }
    const QByteArray text = vantor::writeCopyMap(*map);
    const auto again = vantor::readCopyMap(text);
    if (!again || vantor::writeCopyMap(*again) != text || again->bytes() != map->bytes()) {
        std::abort();
    }
    const vantor::CopyMap sectors = map->ofWholeSectors();
    if (sectors.bytesIn(vantor::CopyState::Copied) > map->bytesIn(vantor::CopyState::Copied)) {
        std::abort();
    }
    return 0;
}

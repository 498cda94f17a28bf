// ARJ archives. Source: ARJ technical information.
#include "formats/Crc.h"
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkArj(ByteView& view) {
    constexpr std::string_view kMark("\x60\xEA", 2);
    constexpr std::uint16_t kMostHeader = 2600;
    if (!view.matches(0, kMark))
        return unknownExtent();
    std::uint64_t at = 0;
    for (std::uint64_t headers = 0;; ++headers) {
        const auto size = view.le16(at + 2);
        if (!size)
            return cutOffAt(view, view.size());
        if (!view.matches(at, kMark) || *size > kMostHeader)
            return headers != 0 ? damagedAt(view, at) : unknownExtent();
        if (*size == 0)
            return headers != 0 ? completeAt(view, at + 4) : unknownExtent();
        const std::uint64_t body = at + 4;
        bool complete = false;
        const auto crc = crc32(view, body, body + *size, complete);
        if (complete && view.holds(body + *size, 4) && view.le32(body + *size) != crc)
            return headers != 0 ? damagedAt(view, at) : unknownExtent();
        // The first header is the archive's own and has no data.
        const std::uint64_t data = headers != 0 ? view.le32(body + 12).value_or(0) : 0;
        at = body + *size + 4;
        for (int extensions = 0; extensions < 16; ++extensions) {
            const auto extension = view.le16(at).value_or(0);
            at += 2;
            if (extension == 0)
                break;
            at += std::uint64_t{4} + extension;
        }
        at += data;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
}

}  // namespace

extern constexpr Format kArj = {
    .name = "ARJ",
    .group = Group::Archives,
    .walk = walkArj,
    .extensions = " ARJ ",
    .strongMagic = false,
};

}  // namespace vantor

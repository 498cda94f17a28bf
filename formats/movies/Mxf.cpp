// MXF: key, length, value, to the random index pack or the last set. Source: SMPTE 336M, 377M.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::string_view kLabel("\x06\x0E\x2B\x34", 4);
constexpr std::string_view kHeaderPartition("\x06\x0E\x2B\x34\x02\x05\x01\x01\x0D\x01\x02\x01\x01\x02", 14);
constexpr std::string_view kRandomIndex("\x06\x0E\x2B\x34\x02\x05\x01\x01\x0D\x01\x02\x01\x01\x11\x01", 15);

Extent walkMxf(ByteView& view) {
    if (!view.matches(0, kHeaderPartition))
        return unknownExtent();
    std::uint64_t at = 0;
    std::uint64_t items = 0;
    for (;; ++items) {
        if (!view.matches(at, kLabel) || (at != 0 && view.matches(at, kHeaderPartition)))
            break;
        const bool last = view.matches(at, kRandomIndex);
        const auto first = view.u8(at + 16);
        std::uint64_t body = at + 17;
        std::uint64_t bytes = first.value_or(0);
        if (bytes > 0x88 || bytes == 0x80)
            return damagedAt(view, at);
        if (bytes > 0x80) {
            const auto digits = bytes - 0x80;
            const auto length = view.number(body, digits, Endian::Big);
            if (!length)
                return cutOffAt(view, view.size());
            bytes = *length;
            body += digits;
        }
        at = addClamped(body, bytes);
        if (!first || at > view.size())
            return cutOffAt(view, view.size());
        if (last)
            return completeAt(view, at);
    }
    if (view.size() - at < 16 && at != view.size())
        return cutOffAt(view, at);
    return items > 2 ? inexact(completeAt(view, at)) : damagedAt(view, at);
}

}  // namespace

extern constexpr Format kMxf = {
    .name = "MXF",
    .group = Group::Movies,
    .walk = walkMxf,
    .extensions = " MXF ",
    .large = true,
};

}  // namespace vantor

// Flash movies: FLV tags, each proved by the length repeated behind it, and SWF by its told length.
// Sources: Adobe FLV specification 10.1, SWF specification 19.
#include "formats/Inflate.h"
#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint64_t kTagHead = 11;

bool isTagType(std::uint8_t type) {
    const auto kind = type & 0x1F;  // the bits above: filter (encryption)
    return kind == 8 || kind == 9 || kind == 18 || kind == 15;
}

}  // namespace

Extent walkFlv(ByteView& view) {
    if (!view.matches(0, std::string_view("FLV\x01", 4)) || (view.u8(4).value_or(0xFF) & 0xFA) != 0)
        return unknownExtent();
    const auto headBytes = view.be32(5);
    if (!headBytes || *headBytes < 9 || *headBytes > 4096)
        return unknownExtent();
    std::uint64_t at = std::uint64_t{*headBytes} + 4;  // behind "length of the tag before" of no tag
    std::uint64_t tags = 0;
    for (;; ++tags) {
        Cursor in(view, at);
        const auto type = in.u8();
        const auto bytes = in.u24();
        in.skip(4);
        const auto stream = in.u24();
        if (!in.ok() && at < view.size() && isTagType(type))
            return cutOffAt(view, at);
        if (!in.ok() || !isTagType(type) || stream != 0)
            break;
        const std::uint64_t behind = at + kTagHead + bytes;
        const auto repeated = view.be32(behind);
        if (!repeated)
            return cutOffAt(view, view.size());
        if (*repeated != bytes + kTagHead && *repeated != bytes)  // some writers leave out the head
            return damagedAt(view, at);
        at = behind + 4;
    }
    return tags != 0 ? inexact(completeAt(view, at)) : damagedAt(view, at);
}

Extent walkSwf(ByteView& view) {
    const bool plain = view.matches(0, "FWS"), zlib = view.matches(0, "CWS"), lzma = view.matches(0, "ZWS");
    const auto version = view.u8(3).value_or(0);
    if ((!plain && !zlib && !lzma) || version == 0 || version > 60)
        return unknownExtent();
    const std::uint64_t bytes = view.le32(4).value_or(0);
    if (bytes < 8)
        return unknownExtent();
    if (plain)
        return completeAt(view, bytes);
    if (lzma)
        return completeAt(view, 17 + std::uint64_t{view.le32(8).value_or(0)});
    const auto result = inflateZlib(view, 8, bytes);
    if (result.outcome == InflateOutcome::Cut)
        return cutOffAt(view, result.end);
    if (result.outcome != InflateOutcome::Done || result.produced + 8 != bytes)
        return damagedAt(view, result.end);
    return completeAt(view, result.end);
}

}  // namespace vantor

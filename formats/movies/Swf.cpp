// SWF movies by their told length. Source: Adobe SWF specification 19.
#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

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

}  // namespace

extern constexpr Format kSwf = {
    .name = "SWF",
    .group = Group::Movies,
    .walk = walkSwf,
    .extensions = " SWF ",
    .strongMagic = false,
};

}  // namespace vantor

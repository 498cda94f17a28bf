// SWF movies: by their tags or their packed content. Source: Adobe SWF specification 19.
#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

// The tags behind the header of a plain movie: to the end mark, which stands where the movie says it ends.
Extent walkTags(ByteView& view, std::uint64_t told) {
    constexpr std::uint64_t kHeaderBytes = 8, kRateAndCount = 4;
    // Codes go up to 94; of the first tags none is another, so that noise does not pass for a movie.
    constexpr std::uint32_t kMostCode = 94;
    constexpr int kProofTags = 3;
    const auto sizeBits = std::uint64_t{view.u8(kHeaderBytes).value_or(0)} >> 3;
    std::uint64_t at = kHeaderBytes + (5 + 4 * sizeBits + 7) / 8 + kRateAndCount;
    for (int tags = 0; at + 2 <= told; ++tags) {
        const auto head = view.le16(at);
        if (!head)
            return cutOffAt(view, view.size());
        if (tags < kProofTags && *head >> 6 > kMostCode)
            return unknownExtent();
        constexpr std::uint32_t kLong = 63;
        const bool isLong = (*head & kLong) == kLong;
        const std::uint64_t bytes = isLong ? view.le32(at + 2).value_or(0) : *head & kLong;
        const std::uint64_t tag = at;
        at += bytes + (isLong ? 6 : 2);
        if (at > told)
            return damagedAt(view, tag);
        if (*head == 0)
            return completeAt(view, told);
    }
    return completeAt(view, told);
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
        return walkTags(view, bytes);
    if (lzma)
        return completeAt(view, 17 + std::uint64_t{view.le32(8).value_or(0)});
    const std::uint32_t head = view.be16(8).value_or(0);
    if (head % 31 != 0 || (head >> 8 & 15) != 8)
        return unknownExtent();
    const auto result = inflateZlib(view, 8, bytes);
    if (result.outcome == InflateOutcome::Cut)
        return cutOffAt(view, result.end);
    if (result.outcome != InflateOutcome::Done || result.produced + 8 != bytes)
        return damagedAt(view, result.end);
    return withContent(completeAt(view, result.end));
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

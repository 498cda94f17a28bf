// Design files of the second generation (DGN): elements that tell their length, then a word of ones.
// Source: reference guide of the ISFF format (Intergraph Standard File Formats).
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkDesignFile(ByteView& view) {
    constexpr std::uint64_t kFirstWords = 766, kBlock = 512;
    constexpr std::uint16_t kEnd = 0xFFFF;
    constexpr std::uint8_t kKind = 0x7F;
    const auto dimensions = view.u8(0);
    if ((dimensions != 0x08 && dimensions != 0xC8) || view.u8(1) != 9 || view.le16(2) != kFirstWords)
        return unknownExtent();
    for (std::uint64_t at = 0;;) {
        const auto head = view.le16(at), words = view.le16(at + 2);
        if (head == kEnd) {
            // Some writers go on with zeros to the block's end.
            const auto block = at + 2 + (kBlock - (at + 2) % kBlock) % kBlock;
            return inexact(completeAt(view, words == 0 && at + 4 <= block ? block : at + 2));
        }
        if (!head || !words)
            return cutOffAt(view, view.size());
        if ((*head >> 8 & kKind) == 0)
            return damagedAt(view, at);  // no kind of element
        at += 4 + std::uint64_t{*words} * 2;
    }
}

}  // namespace

extern constexpr Format kDesignFile = {
    .name = "Design file",
    .group = Group::Documents,
    .walk = walkDesignFile,
    .extensions = " DGN ",
};

}  // namespace vantor

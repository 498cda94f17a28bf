// Macintosh pictures (PICT) of version 2, from the record that follows the 512 bytes left to programs: the
// low half of the length is told, and the end has an opcode. Source: Inside Macintosh, Imaging With
// QuickDraw.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkPict(ByteView& view) {
    constexpr std::uint64_t kLeast = 40, kStep = 65536, kMost = 256ULL << 20;
    if (!view.matches(10, std::string_view("\0\x11\x02\xFF\x0C\0", 6)))
        return unknownExtent();
    const std::uint64_t low = view.be16(0).value_or(0);
    if (low % 2 != 0)
        return unknownExtent();
    const auto reach = std::min(view.size(), kMost);
    for (std::uint64_t end = low >= kLeast ? low : low + kStep; end <= reach; end += kStep) {
        if (view.be16(end - 2) == 0x00FF)
            return inexact(completeAt(view, end));
    }
    return unknownExtent();
}

}  // namespace

extern constexpr Format kPict = {
    .name = "PICT",
    .group = Group::Pictures,
    .walk = walkPict,
    .extensions = " PICT ",
    .mayNotTellEnd = true,
};

}  // namespace vantor

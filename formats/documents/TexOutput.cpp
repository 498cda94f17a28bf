// What TeX writes: the postamble is found from behind it, by the position that the file's last words tell of
// it. Source: the DVI format as "DVItype" describes it.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint8_t kPreamble = 247, kPostamble = 248, kPostPostamble = 249, kFiller = 223;
constexpr std::uint64_t kTexOutputMostFillers = 7;  // at least four, up to a multiple of four bytes
constexpr std::uint64_t kTexOutputMostBytes = 256 * 1024 * 1024;

// The post-postamble at `at`: the postamble's position, the version again, fillers.
std::uint64_t endOfFile(ByteView& view, std::uint64_t at, std::uint8_t version) {
    const auto postamble = view.be32(at + 1);
    if (!postamble || *postamble >= at || view.u8(at + 5) != version || view.u8(*postamble) != kPostamble ||
        view.be32(at + 6) != 0xDFDFDFDFU)
        return 0;
    std::uint64_t end = at + 10;
    while (end % 4 != 0 && end < at + 6 + kTexOutputMostFillers && view.u8(end) == kFiller)
        ++end;
    return end;
}

Extent walkTexOutput(ByteView& view) {
    const auto version = view.u8(1);
    if (view.u8(0) != kPreamble || !version || (*version != 2 && *version != 3) ||
        view.be32(2) != 25'400'000U)
        return unknownExtent();
    const auto limit = std::min(view.size(), kTexOutputMostBytes);
    auto sign = view.find(kPostPostamble, 15, limit);
    for (; sign.found(); sign = view.find(kPostPostamble, sign.at + 1, limit)) {
        if (const auto end = endOfFile(view, sign.at, *version))
            return completeAt(view, end);
    }
    return sign.stopped() || limit == view.size() ? cutOffAt(view, view.size()) : damagedAt(view, 15);
}

}  // namespace

extern constexpr Format kTexOutput = {
    .name = "DVI",
    .group = Group::Documents,
    .walk = walkTexOutput,
    .extensions = " DVI ",
};

}  // namespace vantor

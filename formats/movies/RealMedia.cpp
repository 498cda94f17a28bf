// RealMedia: chunk by chunk, as long as their names are known. Source: RealMedia file format.
#include <algorithm>
#include <array>
#include <optional>

#include "formats/AudioTags.h"
#include "formats/Format.h"

namespace vantor {

namespace {

// Where the packets of the chunk at `at` end; nothing when they are not as its head counts them.
std::optional<std::uint64_t> endOfPackets(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kHead = 18, kLeastPacket = 12;
    const auto packets = view.be32(at + 10);
    if (!packets)
        return {};
    at += kHead;
    for (std::uint32_t i = 0; i < *packets; ++i) {
        const auto kind = view.be16(at), bytes = view.be16(at + 2);
        if (!kind || !bytes || *kind > 1 || *bytes < kLeastPacket)
            return {};
        at += *bytes;
    }
    return at;
}

// Some writers count the head of the data twice, and end the file with the empty head of a further chunk.
std::optional<std::uint64_t> endOfDataCountedTwice(ByteView& view, std::uint64_t start, std::uint64_t told) {
    constexpr std::uint64_t kTooMuch = 18, kEmptyHead = 8;
    if (told < kTooMuch || view.be64(told - kTooMuch) != 0U)
        return {};
    const auto packets = endOfPackets(view, start);
    return packets == told - kTooMuch ? std::optional(*packets + kEmptyHead) : std::nullopt;
}

Extent walkRealMedia(ByteView& view) {
    static constexpr std::array<std::string_view, 8> kNames = {"PROP", "MDPR", "CONT", "DATA",
                                                               "INDX", "RMMD", "RMJD", "RMJE"};
    if (!view.matches(0, ".RMF"))
        return unknownExtent();
    std::uint64_t at = view.be32(4).value_or(0);
    if (at < 10 || at > 64)
        return unknownExtent();
    constexpr int kMostChunks = 1 << 16;
    bool sawData = false;
    for (int chunks = 0; chunks < kMostChunks; ++chunks) {
        const auto standsHere = [&](std::string_view name) { return view.matches(at, name); };
        if (std::none_of(kNames.begin(), kNames.end(), standsHere))
            break;
        const auto bytes = view.be32(at + 4).value_or(0);
        if (bytes < 8)
            return sawData ? completeAt(view, at) : unknownExtent();
        if (standsHere("DATA")) {
            sawData = true;
            if (const auto end = endOfDataCountedTwice(view, at, at + bytes))
                return completeAt(view, *end);
        }
        at += bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    if (!sawData)
        return view.holds(at, 8) ? damagedAt(view, at) : cutOffAt(view, at);
    return completeAt(view, skipTrailingTags(view, at));
}

}  // namespace

extern constexpr Format kRealMedia = {
    .name = "RealMedia",
    .group = Group::Movies,
    .walk = walkRealMedia,
    .extensions = " RM RMVB RA RAM RV ",
    .large = true,
};

}  // namespace vantor

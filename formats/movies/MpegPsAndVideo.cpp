// MPEG program streams (MPG, VOB, MOD) by their packet lengths, and bare MPEG video by its start codes.
// Sources: ISO/IEC 11172-1 and -2, 13818-1 and -2.
#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostStuffing = 64 * 1024;                   // zero bytes between packets
constexpr std::uint64_t kMpegPsAndVideoMostSilence = 256 * 1024;     // without a start code in bare video
constexpr std::array<std::uint64_t, 2> kDiscSectors = {2324, 2048};  // of a Video CD and others, a pack each
constexpr std::uint64_t kFewCodes = 4;                               // fewer start codes do not make a video
constexpr std::uint8_t kFirstSlice = 0x01, kLastSlice = 0xAF;

// The code behind 00 00 01 at `at`; nothing when no start code stands there.
std::optional<std::uint8_t> startCode(ByteView& view, std::uint64_t at) {
    const auto word = view.be32(at);
    return word && *word >> 8 == 1 ? std::optional(static_cast<std::uint8_t>(*word)) : std::nullopt;
}

// The next start code in [from, to).
Finding findStartCode(ByteView& view, std::uint64_t from, std::uint64_t to) {
    auto one = view.find(1, from + 2, to);
    while (one.found() && !startCode(view, one.at - 2))
        one = view.find(1, one.at + 1, to);
    if (one.found())
        one.at -= 2;
    return one;
}

std::uint64_t packHeaderBytes(ByteView& view, std::uint64_t at) {
    const auto first = view.u8(at + 4).value_or(0);
    if ((first & 0xC0) == 0x40)
        return 14 + (view.u8(at + 13).value_or(0) & 7U);
    return (first & 0xF0) == 0x20 ? 12 : 0;
}

// The system clock of the pack at `at`, in units of 1/90,000 s.
std::uint64_t packClock(ByteView& view, std::uint64_t at) {
    const auto bits = view.number(at + 4, 5, Endian::Big).value_or(0);
    if ((bits >> 38 & 3) == 1)  // MPEG-2: 2 bits of mark, then 3, 15 and 15 bits with a mark bit behind each
        return (bits >> 35 & 7) << 30 | (bits >> 19 & 0x7FFF) << 15 | (bits >> 3 & 0x7FFF);
    return (bits >> 33 & 7) << 30 | (bits >> 17 & 0x7FFF) << 15 | (bits >> 1 & 0x7FFF);
}

// Behind the zero bytes from `at` on, if a packet follows them; else `at`.
std::uint64_t skipStuffing(ByteView& view, std::uint64_t at) {
    const auto limit = std::min(view.size(), at + kMostStuffing);
    std::uint64_t end = at;
    while (end < limit && view.u8(end) == 0)
        ++end;
    if (end < at + 2 || view.u8(end) != 1)
        return at;
    const auto code = startCode(view, end - 2);
    return code && *code >= 0xB9 ? end - 2 : at;
}

// Behind the zeros that fill the last sector of a stream on a disc, whose packs all begin with one of so many
// bytes; `at` itself where something else stands there.
std::uint64_t behindDiscFilling(ByteView& view, std::uint64_t at, std::uint64_t sector) {
    const auto end = (at + sector - 1) / sector * sector;
    for (auto filling = at; filling < end; ++filling) {
        if (view.u8(filling) != std::uint8_t{0})
            return at;
    }
    return end;
}

Extent walkMpegPs(ByteView& view) {
    if (startCode(view, 0) != 0xBA || packHeaderBytes(view, 0) == 0)
        return unknownExtent();
    std::uint64_t at = 0;
    std::uint64_t packets = 0;
    std::uint64_t clock = 0;
    std::uint64_t packs = 0;
    auto discSectors = kDiscSectors;  // those that no pack contradicts, the others 1
    bool navigation = false;
    for (;;) {
        const auto here = skipStuffing(view, at);
        const auto code = startCode(view, here);
        if (!code || *code < 0xB9)
            break;
        std::uint64_t end = 0;
        if (*code == 0xB9) {
            end = here + 4;
            // Joined streams go on; what begins at a sector's start is the next file.
            if (startCode(view, end) != 0xBA || isSectorStart(end))
                return completeAt(view, end);
        } else if (*code == 0xBA) {
            const auto bytes = packHeaderBytes(view, here);
            const auto now = packClock(view, here);
            // A recording that begins at a sector's start with its clock set back is the next file; on a DVD,
            // told by its navigation packets, the clock starts anew inside a file.
            const bool again =
                now < clock || (now == clock && here != 0 && startCode(view, here + bytes) == 0xBB);
            if (bytes == 0 || (again && !navigation && isSectorStart(here)))
                break;
            clock = now;
            ++packs;
            for (auto& sector : discSectors)
                sector = here % sector == 0 ? sector : 1;
            end = here + bytes;
        } else {
            const auto bytes = view.be16(here + 4);
            if (!bytes)
                return cutOffAt(view, view.size());
            end = here + 6 + *bytes;
            ++packets;
            navigation = navigation || *code == 0xBF;
        }
        if (end > view.size())
            return inexact(cutOffAt(view, view.size()));
        at = end;
    }
    if (packets < 2)
        return view.holds(at, 6) ? unknownExtent() : cutOffAt(view, at);
    const auto sector = std::max(discSectors[0], discSectors[1]);
    return inexact(completeAt(view, packs > 1 ? behindDiscFilling(view, at, sector) : at));
}

// Where the zero bytes in front of `at` begin, not before `from`.
std::uint64_t startOfZeros(ByteView& view, std::uint64_t from, std::uint64_t at) {
    while (at > from && view.u8(at - 1) == 0)
        --at;
    return at;
}

// Three zero bytes occur in no slice: where they first stand in [from, to) it has ended; else `to`.
std::uint64_t endOfSlice(ByteView& view, std::uint64_t from, std::uint64_t to) {
    auto zero = view.find(0, from, to);
    while (zero.found() && view.number(zero.at, 3, Endian::Big) != 0U)
        zero = view.find(0, zero.at + 1, to);
    return zero.found() ? zero.at : to;
}

Extent walkMpegVideo(ByteView& view) {
    if (startCode(view, 0) != 0xB3)
        return unknownExtent();
    Facts facts;
    const auto size = view.number(4, 3, Endian::Big).value_or(0);
    facts.width = static_cast<std::uint32_t>(size >> 12);
    facts.height = static_cast<std::uint32_t>(size & 0xFFF);
    std::uint64_t at = 0;
    std::uint64_t longest = 0;
    std::uint64_t codes = 0;
    for (;; ++codes) {
        const auto limit = std::min(view.size(), at + kMpegPsAndVideoMostSilence);
        const auto next = findStartCode(view, at + 4, limit);
        if (next.stopped() && codes >= kFewCodes)
            return inexact(cutOffAt(view, next.at, facts));
        if (!next.found())
            break;
        // A sequence that begins at a sector's start, behind a filled one, is the next file.
        if (codes >= kFewCodes && isSectorStart(next.at) && startCode(view, next.at) == 0xB3) {
            const auto filled = startOfZeros(view, at + 4, next.at);
            if (next.at - filled > 2)
                return inexact(completeAt(view, filled, facts));
        }
        const auto before = startCode(view, at).value_or(0);
        if (codes >= kFewCodes && before >= kFirstSlice && before <= kLastSlice) {
            const auto filled = startOfZeros(view, at + 4, next.at);
            const auto end = endOfSlice(view, at + 4, filled);
            if (end < filled)
                return inexact(completeAt(view, end, facts));
        }
        longest = std::max(longest, next.at - at);
        at = next.at;
        const auto code = startCode(view, at).value_or(0);
        if (code == 0xB7)
            return completeAt(view, at + 4, facts);
        if (code >= 0xB9 || code == 0xB0 || code == 0xB1 || code == 0xB6)
            return codes < kFewCodes ? unknownExtent() : inexact(completeAt(view, at, facts));
    }
    if (codes < kFewCodes)
        return unknownExtent();
    // No end code: the last picture slice is hardly longer than the longest before it.
    const auto reach = std::min(view.size(), at + longest);
    return inexact(completeAt(view, endOfSlice(view, std::min(reach, at + 4), reach), facts));
}

}  // namespace

extern constexpr Format kMpegPs = {
    .name = "MPEG program stream",
    .group = Group::Movies,
    .walk = walkMpegPs,
    .extensions = " MPG MPEG VOB MOD MPE M2P EVO TOD ",
    .large = true,
    .frameStream = true,
};

extern constexpr Format kMpegVideo = {
    .name = "MPEG video",
    .group = Group::Movies,
    .walk = walkMpegVideo,
    .extensions = " M1V M2V MPV ",
    .large = true,
    .frameStream = true,
};

}  // namespace vantor

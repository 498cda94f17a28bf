// KTX textures, versions 1 and 2. Sources: Khronos KTX 1.0 and KTX 2.0 specifications.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMostLevels = 32;

constexpr std::uint64_t upTo4(std::uint64_t bytes) {
    return (bytes + 3) / 4 * 4;
}

Extent walkKtx1(ByteView& view) {
    constexpr std::uint64_t kHead = 64;
    const bool little = view.matches(12, "\1\2\3\4");
    if (!little && !view.matches(12, "\4\3\2\1"))
        return unknownExtent();
    Cursor in(view, 36, little ? Endian::Little : Endian::Big);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    in.skip(4);
    const auto elements = in.u32(), faces = in.u32(), levels = in.u32(), notes = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (levels > kMostLevels || (faces != 1 && faces != 6))
        return unknownExtent();
    // The size of a cube's level is told for one face.
    const std::uint64_t times = faces == 6 && elements == 0 ? 6 : 1;
    std::uint64_t at = kHead + notes;
    for (std::uint32_t level = 0; level < std::max(1U, levels); ++level) {
        const auto bytes = view.number(at, 4, little ? Endian::Little : Endian::Big);
        if (!bytes)
            return cutOffAt(view, view.size(), facts);
        if (*bytes == 0)
            return damagedAt(view, at, facts);
        at += 4 + upTo4(*bytes) * times;
    }
    return completeAt(view, at, facts);
}

Extent walkKtx2(ByteView& view) {
    constexpr std::uint64_t kHead = 80, kLevel = 24;
    Cursor in(view, 20, Endian::Little);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    in.skip(12);
    const auto levels = in.u32();
    in.skip(4);
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (levels > kMostLevels)
        return unknownExtent();
    std::uint64_t end = kHead + std::max(1U, levels) * kLevel;
    const auto reach = [&](std::uint64_t at, std::uint64_t bytes) {
        if (bytes != 0)
            end = std::max(end, addClamped(at, bytes));
    };
    for (int part = 0; part < 2; ++part) {
        const std::uint64_t at = in.u32(), bytes = in.u32();
        reach(at, bytes);
    }
    for (std::uint32_t part = 0; part < 1 + std::max(1U, levels); ++part) {
        const auto at = in.u64(), bytes = in.u64();
        reach(at, bytes);
        in.skip(part == 0 ? 0 : 8);
    }
    return in.ok() ? completeAt(view, end, facts) : cutOffAt(view, view.size(), facts);
}

Extent walkKtx(ByteView& view) {
    if (view.matches(0, "\xABKTX 11\xBB\r\n\x1A\n"))
        return walkKtx1(view);
    return view.matches(0, "\xABKTX 20\xBB\r\n\x1A\n") ? walkKtx2(view) : unknownExtent();
}

}  // namespace

extern constexpr Format kKtx = {
    .name = "KTX",
    .group = Group::Pictures,
    .walk = walkKtx,
    .extensions = " KTX KTX2 ",
};

}  // namespace vantor

// Smacker movies. Source: Smacker notes.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkSmacker(ByteView& view) {
    constexpr std::uint64_t kHead = 104;
    constexpr std::uint32_t kRing = 1, kMostCount = 1 << 22;
    if (!view.matches(0, "SMK2") && !view.matches(0, "SMK4"))
        return unknownExtent();
    Cursor in(view, 4, Endian::Little);
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    const auto told = in.u32();
    in.skip(4);
    const auto flags = in.u32();
    in.skip(28);
    const std::uint64_t trees = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (told == 0 || told > kMostCount)
        return unknownExtent();
    const std::uint64_t frames = told + ((flags & kRing) != 0 ? 1U : 0U);
    auto end = kHead + frames * 5 + trees;
    for (std::uint64_t i = 0; i < frames; ++i) {
        const auto bytes = view.le32(kHead + i * 4);
        if (!bytes)
            return cutOffAt(view, view.size(), facts);
        end += *bytes & ~std::uint32_t{3};  // two flags stand in the length
    }
    return completeAt(view, end, facts);
}

}  // namespace

extern constexpr Format kSmacker = {
    .name = "Smacker",
    .group = Group::Movies,
    .walk = walkSmacker,
    .extensions = " SMK ",
};

}  // namespace vantor

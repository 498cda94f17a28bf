// Tables of translated texts (MO). Source: GNU gettext manual ("The Format of GNU MO Files").
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

// Two tables of texts and a hash table; every text is followed by a NUL.
Extent walkTranslations(ByteView& view) {
    constexpr std::uint32_t kMostTexts = 1 << 20;
    const bool little = view.matches(0, "\xDE\x12\x04\x95");
    if (!little && !view.matches(0, "\x95\x04\x12\xDE"))
        return unknownExtent();
    const auto endian = little ? Endian::Little : Endian::Big;
    Cursor in(view, 4, endian);
    const auto revision = in.u32(), texts = in.u32();
    const std::uint64_t tables[] = {in.u32(), in.u32()};
    const std::uint64_t hashes = in.u32(), hashTable = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if ((revision & 0xFFFF0000) != 0 || texts == 0 || texts > kMostTexts)
        return unknownExtent();
    std::uint64_t end = std::max<std::uint64_t>(28, hashes != 0 ? hashTable + hashes * 4 : 0);
    for (const auto table : tables) {
        for (std::uint64_t i = 0; i < texts; ++i) {
            Cursor entry(view, table + i * 8, endian);
            const std::uint64_t bytes = entry.u32(), at = entry.u32();
            if (!entry.ok())
                return cutOffAt(view, view.size());
            end = std::max(end, at + bytes + 1);
        }
    }
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kTranslations = {
    .name = "Translations",
    .group = Group::Systems,
    .walk = walkTranslations,
    .extensions = " MO GMO ",
    .strongMagic = false,
};

}  // namespace vantor

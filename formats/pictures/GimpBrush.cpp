// Brushes and patterns of the GIMP (GBR, PAT): a header that tells its own length, then pixels. Plotter files
// share the first ending and are text; patches of instruments share the second and are neither. Source: GIMP
// developer documentation (gbr.txt, pat.txt).
#include "formats/Format.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

Extent walkGimpBrush(ByteView& view) {
    constexpr std::uint32_t kMostHeader = 4096, kMostSide = 10000, kMostBytes = 18;
    const bool pattern = view.matches(20, "GPAT");
    if (!pattern && !view.matches(20, "GIMP"))
        return view.u8(0).value_or(0) != 0 && !view.matches(0, "GF1PATCH") ? walkText(view) : unknownExtent();
    Cursor in(view);
    const std::uint64_t head = in.u32();
    const auto version = in.u32();
    Facts facts;
    facts.width = in.u32();
    facts.height = in.u32();
    const std::uint64_t bytes = in.u32();
    if (head < 20 || head > kMostHeader || version == 0 || version > 3 || facts.width == 0 ||
        facts.width > kMostSide || facts.height == 0 || facts.height > kMostSide || bytes == 0 ||
        bytes > kMostBytes)
        return unknownExtent();
    return completeAt(view, head + bytes * facts.width * facts.height, facts);
}

}  // namespace

extern constexpr Format kGimpBrush = {
    .name = "GIMP brush",
    .group = Group::Pictures,
    .walk = walkGimpBrush,
    .extensions = " GBR PAT ",
    .strongMagic = false,
    .mayNotTellEnd = true,
};

}  // namespace vantor

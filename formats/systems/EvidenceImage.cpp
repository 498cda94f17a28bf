// Evidence images (E01). Source: Expert Witness Compression Format notes.
#include "formats/Format.h"

namespace vantor {

namespace {

// Sections that each name the place of the next; the last names its own.
Extent walkEvidence(ByteView& view) {
    constexpr std::uint64_t kHead = 13, kSection = 76;
    constexpr std::uint32_t kMostSections = 1 << 16;
    if (!view.matches(0, std::string_view("EVF\x09\r\n\xFF\0", 8)))
        return unknownExtent();
    std::uint64_t at = kHead;
    for (std::uint32_t sections = 0; sections < kMostSections; ++sections) {
        const auto next = view.le64(at + 16);
        if (!next || !view.holds(at, kSection))
            return cutOffAt(view, view.size());
        if (view.matches(at, std::string_view("done\0", 5)) ||
            view.matches(at, std::string_view("next\0", 5)))
            return completeAt(view, at + kSection);
        if (*next < at + kSection)
            return damagedAt(view, at);
        at = *next;
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kEvidenceImage = {
    .name = "Evidence image",
    .group = Group::Systems,
    .walk = walkEvidence,
    .extensions = " E01 ",
    .large = true,
};

}  // namespace vantor

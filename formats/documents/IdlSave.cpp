// Variables that IDL saved (SAV): records that each tell where the next one begins. Source: C Markwardt,
// "Unofficial format specification: IDL save files".
#include "formats/Format.h"
#include "formats/ToldLength.h"

namespace vantor {

namespace {

Extent walkIdlSave(ByteView& view) {
    constexpr std::uint32_t kEnd = 6, kMostKinds = 32;
    constexpr std::uint64_t kFirst = 4, kHead = 16;
    if (!view.matches(0, "SR\0\4\0\0\0\xA"_b) && !view.matches(0, "SR\0\6\0\0\0\xA"_b))
        return unknownExtent();  // the first record is that of the date
    for (std::uint64_t at = kFirst;;) {
        Cursor in(view, at);
        const auto kind = in.u32();
        const std::uint64_t low = in.u32(), high = in.u32();
        if (!in.ok())
            return cutOffAt(view, view.size());
        if (kind == kEnd)
            return completeAt(view, at + kHead);
        const auto next = low | high << 32;
        if (kind > kMostKinds || next < at + kHead)
            return at == kFirst ? unknownExtent() : damagedAt(view, at);
        at = next;
    }
}

}  // namespace

extern constexpr Format kIdlSave = {
    .name = "IDL variables",
    .group = Group::Documents,
    .walk = walkIdlSave,
    .extensions = " IDL ",
};

}  // namespace vantor

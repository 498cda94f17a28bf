// AMV movies of small players. Source: AMV notes.
#include "formats/Format.h"

namespace vantor {

namespace {

// RIFF whose lengths were never filled in; its frames tell theirs, and a word ends it.
Extent walkAmv(ByteView& view) {
    constexpr std::uint64_t kMostHead = 4096, kHead = 8;
    if (!view.matches(0, "RIFF") || !view.matches(8, "AMV LIST"))
        return unknownExtent();
    auto list = view.find('m', 12, kMostHead);
    while (list.found() && !view.matches(list.at, "movi"))
        list = view.find('m', list.at + 1, kMostHead);
    if (!list.found())
        return list.stopped() ? cutOffAt(view, view.size()) : unknownExtent();
    std::uint64_t at = list.at + 4;
    for (;;) {
        if (view.matches(at, "AMV_END_"))
            return completeAt(view, at + kHead);
        const auto bytes = view.le32(at + 4);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (!view.matches(at, "00dc") && !view.matches(at, "01wb"))
            return damagedAt(view, at);
        at += kHead + *bytes;
        // Some writers pad frames of odd length.
        if (*bytes % 2 != 0 && view.u8(at) == 0)
            ++at;
    }
}

}  // namespace

extern constexpr Format kAmv = {
    .name = "AMV",
    .group = Group::Movies,
    .walk = walkAmv,
    .extensions = " AMV ",
    .strongMagic = false,
};

}  // namespace vantor

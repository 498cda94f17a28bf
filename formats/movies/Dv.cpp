// DV movies as bare frames. Sources: IEC 61834 and SMPTE 314M.
#include "formats/Format.h"

namespace vantor {

namespace {

// Frames of ten or twelve sequences, each of 150 blocks and numbered in its first.
Extent walkDv(ByteView& view) {
    constexpr std::uint64_t kSequence = 150 * 80;
    const auto system = view.u8(3);
    const auto startsAt = [&](std::uint64_t at, unsigned sequence) {
        return view.u8(at).value_or(0) >> 5 == 0 && view.u8(at).value_or(0) == 0x1F &&
               view.u8(at + 1).value_or(0) >> 4 == sequence && view.u8(at + 2) == 0 &&
               view.u8(at + 3) == system;
    };
    if (!system || (*system & 0x7F) != 0x3F || !startsAt(0, 0))
        return unknownExtent();
    const unsigned sequences = (*system & 0x80) != 0 ? 12 : 10;
    std::uint64_t at = 0;
    while (startsAt(at, 0)) {
        for (unsigned sequence = 1; sequence < sequences; ++sequence) {
            const auto start = at + sequence * kSequence;
            if (start + kSequence > view.size())
                return cutOffAt(view, view.size());
            if (!startsAt(start, sequence))
                return at == 0 ? unknownExtent() : damagedAt(view, at);
        }
        at += sequences * kSequence;
    }
    return inexact(completeAt(view, at));
}

}  // namespace

extern constexpr Format kDv = {
    .name = "DV",
    .group = Group::Movies,
    .walk = walkDv,
    .extensions = " DV DIF ",
    .strongMagic = false,
    .large = true,
    .frameStream = true,
};

}  // namespace vantor

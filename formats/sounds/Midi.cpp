// MIDI files. Source: Standard MIDI Files 1.0.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr int kMidiMostChunks = 1 << 16;

Extent walkMidi(ByteView& view) {
    if (!view.matches(0, "MThd"))
        return unknownExtent();
    Cursor in(view, 4);
    std::uint64_t at = 8 + std::uint64_t{in.u32()};
    in.skip(2);
    const auto tracks = in.u16();
    if (!in.ok() || at < 14 || at > 64 || tracks == 0)
        return unknownExtent();
    for (std::uint32_t seen = 0, chunks = 0; seen < tracks && chunks < kMidiMostChunks; ++chunks) {
        const auto bytes = view.be32(at + 4);
        if (!bytes)
            return cutOffAt(view, at);
        if (view.matches(at, "MTrk"))
            ++seen;
        else if ((view.u8(at).value_or(0) & 0xC0) != 0x40)  // chunks of other kinds are named by letters
            return damagedAt(view, at);
        at += 8 + std::uint64_t{*bytes};
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return completeAt(view, at);
}

}  // namespace

extern constexpr Format kMidi = {
    .name = "MIDI",
    .group = Group::Sounds,
    .walk = walkMidi,
    .extensions = " MID MIDI KAR ",
};

}  // namespace vantor

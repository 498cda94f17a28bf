// Images of game cartridges with a header that counts their banks (NES). Sources: public descriptions of iNES
// and NES 2.0.
#include "formats/Format.h"

namespace vantor {

namespace {

// Bytes of one of the two memories: counted in units, or in version 2 as a power of two and a small factor.
std::uint64_t bankBytes(std::uint64_t low, std::uint64_t high, std::uint64_t unit) {
    constexpr std::uint64_t kExponential = 15;
    if (high != kExponential)
        return (high << 8 | low) * unit;
    const auto exponent = low >> 2;
    return exponent < 32 ? (std::uint64_t{1} << exponent) * ((low & 3) * 2 + 1) : 0;
}

Extent walkCartridge(ByteView& view) {
    constexpr std::uint64_t kHead = 16, kTrainer = 512, kProgramUnit = 16384, kPictureUnit = 8192;
    constexpr std::uint64_t kHints = 8192 + 32;  // of a machine that several games stood in
    if (!view.matches(0, "NES\x1A"))
        return unknownExtent();
    if (!view.holds(0, kHead))
        return cutOffAt(view, view.size());
    Cursor in(view, 4);
    const std::uint64_t programs = in.u8(), pictures = in.u8();
    const auto flags6 = in.u8(), flags7 = in.u8();
    in.skip(1);
    const auto high = in.u8();
    const bool second = (flags7 & 0x0C) == 8;
    const auto program = bankBytes(programs, second ? high & 15U : 0, kProgramUnit);
    if (program == 0)
        return unknownExtent();
    const auto end = kHead + ((flags6 & 4) != 0 ? kTrainer : 0) + program +
                     bankBytes(pictures, second ? high >> 4 : 0, kPictureUnit) +
                     (!second && (flags7 & 2) != 0 ? kHints : 0);
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kCartridge = {
    .name = "Cartridge",
    .group = Group::Systems,
    .walk = walkCartridge,
    .extensions = " NES ",
};

}  // namespace vantor

// DTS: nothing but frames. Source: ETSI TS 102 114.
#include "formats/Format.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

// Frames of the core stream, each with an extension of its own or without.
Extent walkDts(ByteView& view) {
    constexpr std::uint32_t kCore = 0x7FFE8001, kExtension = 0x64582025;
    const auto bitsAt = [&](std::uint64_t at, unsigned first, unsigned count) {
        const auto eight = view.number(at + first / 8, 4, Endian::Big).value_or(0);
        return eight >> (32 - first % 8 - count) & ((std::uint64_t{1} << count) - 1);
    };
    if (view.be32(0) != kCore)
        return unknownExtent();
    return walkFrames(view, 0, kProofFrames, [&](std::uint64_t at) -> std::uint64_t {
        constexpr std::uint64_t kLeast = 96;
        if (view.be32(at) == kCore) {
            const auto bytes = bitsAt(at, 46, 14) + 1;
            return bytes >= kLeast ? bytes : 0;
        }
        if (view.be32(at) != kExtension)
            return 0;
        const bool wide = bitsAt(at, 42, 1) != 0;
        return bitsAt(at, wide ? 55 : 51, wide ? 20 : 16) + 1;
    });
}

}  // namespace

extern constexpr Format kDts = {
    .name = "DTS",
    .group = Group::Sounds,
    .walk = walkDts,
    .extensions = " DTS ",
    .strongMagic = false,
    .frameStream = true,
};

}  // namespace vantor

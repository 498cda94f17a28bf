// MATLAB data of version 5 (MAT): elements that tell their length, one after the other. Later versions are
// HDF5 behind a header. Source: MAT-File Format (MathWorks).
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMatlabHead = 128;
constexpr std::uint32_t kMatrix = 14, kMatlabPacked = 15;

// Whether an element stands at `at`: a matrix, or one that begins as packed data does.
bool isElement(ByteView& view, std::uint64_t at, Endian endian) {
    const auto type = view.number(at, 4, endian);
    if (type == kMatlabPacked)
        return view.u8(at + 8) == 0x78 && view.be16(at + 8).value_or(1) % 31 == 0;
    // A matrix begins with its flags, an element of eight bytes.
    constexpr std::uint32_t kFlags = 6;
    return type == kMatrix && view.number(at + 8, 4, endian) == kFlags &&
           view.number(at + 12, 4, endian) == 8U;
}

Extent walkMatlab(ByteView& view) {
    if (!view.matches(0, "MATLAB 5.0 MAT-file"))
        return unknownExtent();
    const bool big = view.matches(126, "MI");
    if (!big && !view.matches(126, "IM"))
        return view.holds(0, kMatlabHead) ? damagedAt(view, kMatlabHead) : cutOffAt(view, view.size());
    const auto endian = big ? Endian::Big : Endian::Little;
    std::uint64_t at = kMatlabHead;
    while (isElement(view, at, endian)) {
        at += 8 + view.number(at + 4, 4, endian).value_or(0);
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return at != kMatlabHead ? inexact(completeAt(view, at)) : unknownExtent();
}

}  // namespace

extern constexpr Format kMatlab = {
    .name = "MATLAB",
    .group = Group::Documents,
    .walk = walkMatlab,
    .extensions = " MAT ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

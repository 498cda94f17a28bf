// Java classes. Source: Java Virtual Machine Specification, chapter 4.
#include "formats/Format.h"

namespace vantor {

namespace {

// Bytes of a constant behind its tag; 0 for a tag that none bears. Texts tell their length.
std::uint64_t constantBytes(std::uint8_t tag) {
    switch (tag) {
        case 7:
        case 8:
        case 16:
        case 19:
        case 20:
            return 2;
        case 15:
            return 3;
        case 3:
        case 4:
        case 9:
        case 10:
        case 11:
        case 12:
        case 17:
        case 18:
            return 4;
        case 5:
        case 6:
            return 8;
        default:
            return 0;
    }
}

void skipAttributes(Cursor& in) {
    for (std::uint32_t left = in.u16(); left > 0 && in.ok(); --left) {
        in.skip(2);
        const auto bytes = in.u32();
        in.skip(bytes);
    }
}

Extent walkJavaClass(ByteView& view) {
    Cursor in(view, 6);
    const auto version = in.u16();
    std::uint32_t constants = in.u16();
    if (!view.matches(0, "\xCA\xFE\xBA\xBE") || version < 45 || version > 99 || constants < 2)
        return unknownExtent();
    while (--constants > 0 && in.ok()) {
        constexpr std::uint8_t kText = 1, kLong = 5, kDouble = 6;
        const auto at = in.at();
        const auto tag = in.u8();
        const std::uint64_t bytes = tag == kText ? in.u16() : constantBytes(tag);
        if (in.ok() && tag != kText && bytes == 0)
            return damagedAt(view, at);
        in.skip(bytes);
        if ((tag == kLong || tag == kDouble) && constants > 1)
            --constants;  // takes two numbers
    }
    in.skip(6);
    const auto interfaces = in.u16();
    in.skip(std::uint64_t{interfaces} * 2);
    for (int kind = 0; kind < 2; ++kind) {  // fields, methods
        for (std::uint32_t left = in.u16(); left > 0 && in.ok(); --left) {
            in.skip(6);
            skipAttributes(in);
        }
    }
    skipAttributes(in);
    return in.ok() ? completeAt(view, in.at()) : cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kJavaClass = {
    .name = "Java class",
    .group = Group::Systems,
    .walk = walkJavaClass,
    .extensions = " CLASS ",
};

}  // namespace vantor

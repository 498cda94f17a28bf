// Translations of Qt programs (QM): named parts one after the other. Source: Qt documentation, "Qt Linguist
// manual", and the layout lrelease writes.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkQtTranslations(ByteView& view) {
    constexpr std::string_view kMark = "\x3C\xB8\x64\x18\xCA\xEF\x9C\x95\xCD\x21\x1C\xBF\x60\xA1\xBD\xDD";
    constexpr std::uint8_t kParts[] = {0x2F, 0x42, 0x69, 0x88, 0x96, 0xA7};
    if (!view.matches(0, kMark))
        return unknownExtent();
    std::uint64_t at = kMark.size();
    for (std::uint8_t met = 0;;) {
        const auto part = view.u8(at);
        std::uint8_t bit = 1;
        for (const auto each : kParts) {
            if (part == each)
                break;
            bit = static_cast<std::uint8_t>(bit << 1);
        }
        // Each stands there once.
        if (!part || bit >= 1 << std::size(kParts) || (met & bit) != 0)
            return met != 0 ? inexact(completeAt(view, at)) : cutOffAt(view, view.size());
        met |= bit;
        const auto bytes = view.be32(at + 1);
        if (!bytes)
            return cutOffAt(view, view.size());
        at += 5 + std::uint64_t{*bytes};
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
}

}  // namespace

extern constexpr Format kQtTranslations = {
    .name = "Qt translations",
    .group = Group::Systems,
    .walk = walkQtTranslations,
    .extensions = " QM ",
};

}  // namespace vantor

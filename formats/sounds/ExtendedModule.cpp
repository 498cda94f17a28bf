// Extended Modules of trackers (XM). Source: FastTracker 2 XM description.
#include "formats/Format.h"

namespace vantor {

namespace {

// Behind an instrument at `at` and the sounds of it; nothing when it is not all there.
std::optional<std::uint64_t> behindInstrument(ByteView& view, std::uint64_t at) {
    const auto bytes = view.le32(at);
    const auto sounds = view.le16(at + 27);
    if (!bytes || !sounds)
        return std::nullopt;
    auto next = at + *bytes;
    if (*sounds == 0)
        return next;
    const std::uint64_t head = view.le32(at + 29).value_or(0);
    auto end = next + head * *sounds;
    for (std::uint32_t i = 0; i < *sounds; ++i, next += head) {
        const auto length = view.le32(next);
        if (!length)
            return std::nullopt;
        end += *length;
    }
    return end;
}

Extent walkExtendedModule(ByteView& view) {
    constexpr std::uint16_t kMostPatterns = 256, kMostInstruments = 255;
    if (!view.matches(0, "Extended Module: ") || view.u8(37) != 0x1A)
        return unknownExtent();
    Cursor in(view, 60, Endian::Little);
    std::uint64_t at = 60 + std::uint64_t{in.u32()};
    in.skip(6);
    const auto patterns = in.u16(), instruments = in.u16();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (patterns > kMostPatterns || instruments > kMostInstruments)
        return unknownExtent();
    for (std::uint16_t i = 0; i < patterns; ++i) {
        const auto head = view.le32(at);
        const auto bytes = view.le16(at + 7);
        if (!head || !bytes)
            return cutOffAt(view, view.size());
        if (*head < 9)
            return damagedAt(view, at);
        at += std::uint64_t{*head} + *bytes;
    }
    for (std::uint16_t i = 0; i < instruments; ++i) {
        const auto next = behindInstrument(view, at);
        if (!next)
            return cutOffAt(view, view.size());
        if (*next < at + 29)
            return damagedAt(view, at);
        at = *next;
    }
    return completeAt(view, at);
}

}  // namespace

extern constexpr Format kExtendedModule = {
    .name = "Extended Module",
    .group = Group::Sounds,
    .walk = walkExtendedModule,
    .extensions = " XM ",
};

}  // namespace vantor

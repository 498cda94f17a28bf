// RAR archives of both kinds: blocks with checked headers to the end-of-archive block.
// Sources: RAR 4 and RAR 5.0 archive format technical notes.
#include "formats/Crc.h"
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::string_view kMagic4("Rar!\x1A\x07\0", 7);
constexpr std::string_view kMagic5("Rar!\x1A\x07\x01\0", 8);
constexpr std::uint64_t kMostHeader5 = 2 * 1024 * 1024;

std::optional<std::uint64_t> rarNumber(ByteView& view, std::uint64_t& at) {
    constexpr unsigned kMostGroups = 10;
    return groupedNumber(view, at, kMostGroups);
}

Extent walkRar5(ByteView& view) {
    std::uint64_t at = kMagic5.size();
    for (std::uint64_t blocks = 0;; ++blocks) {
        std::uint64_t field = at + 4;
        const auto told = view.le32(at);
        const auto size = rarNumber(view, field);
        if (!told || !size)
            return cutOffAt(view, view.size());
        const auto headerEnd = addClamped(field, *size);
        if (*size == 0 || *size > kMostHeader5)
            return damagedAt(view, at);
        bool complete = false;
        const auto crc = crc32(view, at + 4, headerEnd, complete);
        if (!complete)
            return cutOffAt(view, view.size());
        if (crc != *told)
            return blocks != 0 ? damagedAt(view, at) : unknownExtent();
        const auto type = rarNumber(view, field), flags = rarNumber(view, field);
        if (type == 4)  // all that follows is encrypted
            return unknownExtent();
        if ((flags.value_or(0) & 1) != 0)
            rarNumber(view, field);  // length of the extra area inside the header
        const auto data = (flags.value_or(0) & 2) != 0 ? rarNumber(view, field).value_or(0) : 0;
        at = addClamped(headerEnd, data);
        if (at > view.size())
            return cutOffAt(view, view.size());
        if (type == 5)
            return completeAt(view, at);
    }
}

Extent walkRar4(ByteView& view) {
    enum : std::uint8_t { kMain = 0x73, kFile = 0x74, kService = 0x7A, kEnd = 0x7B };
    constexpr std::uint16_t kHasData = 0x8000, kEncrypted = 0x80, kLarge = 0x100;
    std::uint64_t at = kMagic4.size();
    for (std::uint64_t blocks = 0;; ++blocks) {
        Cursor in(view, at, Endian::Little);
        const auto told = in.u16();
        const auto type = in.u8();
        const auto flags = in.u16();
        const auto size = in.u16();
        if (!in.ok())
            return blocks > 1 && at == view.size() ? inexact(completeAt(view, at))
                                                   : cutOffAt(view, view.size());
        // Archives of old versions have no end block: they stop where no block is.
        if (type < 0x72 || type > kEnd || size < 7)
            return blocks > 1 ? inexact(completeAt(view, at)) : damagedAt(view, at);
        bool complete = false;
        const auto crc = crc32(view, at + 2, at + size, complete);
        if (!complete)
            return cutOffAt(view, view.size());
        if (static_cast<std::uint16_t>(crc) != told && type >= kFile)
            return damagedAt(view, at);
        if (type == kMain && (flags & kEncrypted) != 0)  // headers are unreadable
            return unknownExtent();
        const bool content = type == kFile || type == kService;
        std::uint64_t data = content || (flags & kHasData) != 0 ? in.u32() : 0;
        if (content && (flags & kLarge) != 0)
            data |= std::uint64_t{view.le32(at + 32).value_or(0)} << 32;
        at = addClamped(at + size, data);
        if (at > view.size())
            return cutOffAt(view, view.size());
        if (type == kEnd)
            return completeAt(view, at);
    }
}

Extent walkRar(ByteView& view) {
    if (view.matches(0, kMagic5))
        return walkRar5(view);
    return view.matches(0, kMagic4) ? walkRar4(view) : unknownExtent();
}

}  // namespace

extern constexpr Format kRar = {
    .name = "RAR",
    .group = Group::Archives,
    .walk = walkRar,
    .extensions = " RAR CBR REV ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

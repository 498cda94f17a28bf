// Files of records that say their kind and length, up to one that is the last: Blender scenes, chip layouts,
// Lotus sheets, KeePass safes, torrents, RPM packages, Unity data. Sources: Blender "The .blend file format";
// GDSII Stream Format; Lotus WK1 file format; KeePass KDBX 4 description; BEP 3; LSB 5.0 (RPM); UnityFS
// header notes.
#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMostRecords = 1 << 24;

}  // namespace

Extent walkBlend(ByteView& view) {
    const auto width = view.u8(7).value_or(0), order = view.u8(8).value_or(0);
    if (!view.matches(0, "BLENDER") || (width != '_' && width != '-') || (order != 'v' && order != 'V'))
        return unknownExtent();
    const auto endian = order == 'v' ? Endian::Little : Endian::Big;
    const std::uint64_t head = width == '_' ? 20 : 24;
    std::uint64_t at = 12;
    for (std::uint32_t blocks = 0; blocks < kMostRecords; ++blocks) {
        const auto bytes = view.number(at + 4, 4, endian);
        if (!bytes || !view.holds(at, head))
            return cutOffAt(view, view.size());
        if (view.matches(at, "ENDB"))
            return completeAt(view, at + head);
        const auto letter = view.u8(at).value_or(0);
        if (letter < 'A' || letter > 'Z')
            return damagedAt(view, at);
        at += head + *bytes;
    }
    return damagedAt(view, at);
}

Extent walkChipLayout(ByteView& view) {
    constexpr std::uint8_t kEndOfLibrary = 4, kLastKind = 0x3B;
    if (!view.matches(0, std::string_view("\0\6\0\2", 4)))
        return unknownExtent();
    std::uint64_t at = 0;
    for (;;) {
        const auto bytes = view.be16(at);
        const auto kind = view.u8(at + 2);
        if (!bytes || !kind)
            return cutOffAt(view, view.size());
        if (*bytes < 4 || *bytes % 2 != 0 || *kind > kLastKind)
            return damagedAt(view, at);
        at += *bytes;
        if (*kind == kEndOfLibrary)
            return completeAt(view, at);
    }
}

Extent walkLotus(ByteView& view) {
    constexpr std::uint16_t kEnd = 1, kLastKind = 0x400;
    const auto first = view.le16(2).value_or(0);
    if (view.le16(0) != 0U || (first != 2 && first != 0x1A))
        return unknownExtent();
    for (std::uint64_t at = 0;;) {
        const auto kind = view.le16(at), bytes = view.le16(at + 2);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (*kind == kEnd && *bytes == 0)
            return completeAt(view, at + 4);
        if (*kind > kLastKind || (at != 0 && *kind == 0))
            return at == 0 ? unknownExtent() : damagedAt(view, at);
        at += 4 + std::uint64_t{*bytes};
    }
}

Extent walkPasswordSafe(ByteView& view) {
    constexpr int kMostFields = 256;
    constexpr std::uint64_t kProofs = 64, kProof = 32;
    if (!view.matches(0, "\x03\xD9\xA2\x9A\x67\xFB\x4B\xB5") || view.le16(10) != 4U)
        return unknownExtent();  // older ones are one encrypted stream without a length
    std::uint64_t at = 12;
    for (int fields = 0;; ++fields) {
        const auto kind = view.u8(at);
        const auto bytes = view.le32(at + 1);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (fields == kMostFields)
            return damagedAt(view, at);
        at += 5 + std::uint64_t{*bytes};
        if (*kind == 0)
            break;
    }
    at += kProofs;
    for (;;) {
        const auto bytes = view.le32(at + kProof);
        if (!bytes)
            return cutOffAt(view, view.size());
        at += kProof + 4 + *bytes;
        if (*bytes == 0)
            return completeAt(view, at);
    }
}

// Nested lists closed by letters; texts lead with their length.
Extent walkTorrent(ByteView& view) {
    constexpr std::uint64_t kMostDigits = 20;
    if (view.u8(0) != 'd' || view.u8(1).value_or(0) < '1' || view.u8(1).value_or(0) > '9')
        return unknownExtent();
    std::uint64_t depth = 0;
    for (std::uint64_t at = 0;;) {
        const auto byte = view.u8(at);
        if (!byte)
            return cutOffAt(view, view.size());
        if (*byte == 'd' || *byte == 'l') {
            ++depth;
            ++at;
        } else if (*byte == 'e') {
            ++at;
            if (--depth == 0)
                return completeAt(view, at);
        } else {
            const bool text = *byte >= '0' && *byte <= '9';
            if (!text && *byte != 'i')
                return at < 16 ? unknownExtent() : damagedAt(view, at);
            const std::uint8_t closing = text ? ':' : 'e';
            const auto search = view.find(closing, at, at + kMostDigits);
            if (search.stopped())
                return cutOffAt(view, view.size());
            const auto close = search.at;
            std::uint64_t number = 0;
            for (auto digit = at; text && digit < close; ++digit) {
                const auto value = view.u8(digit).value_or(0);
                if (value < '0' || value > '9')
                    return at < 16 ? unknownExtent() : damagedAt(view, at);
                number = addClamped(mulClamped(number, 10), value - '0');
            }
            if (!search.found())
                return damagedAt(view, at);
            at = addClamped(close + 1, number);
        }
    }
}

// The signature says how long the header and the payload behind it are.
Extent walkRpm(ByteView& view) {
    constexpr std::uint64_t kSignature = 96, kIndex = 16;
    constexpr std::uint32_t kSizeTag = 1000, kLongSizeTag = 270, kMostEntries = 4096;
    if (!view.matches(0, "\xED\xAB\xEE\xDB"))
        return unknownExtent();
    Cursor in(view, kSignature);
    const auto magic = in.u32();
    in.skip(4);
    const auto entries = in.u32();
    const std::uint64_t bytes = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (magic != 0x8EADE801 || entries == 0 || entries > kMostEntries)
        return unknownExtent();
    const auto store = kSignature + kIndex + entries * kIndex;
    const auto behind = (store + bytes + 7) / 8 * 8;
    for (std::uint64_t i = 0; i < entries; ++i) {
        Cursor entry(view, kSignature + kIndex + i * kIndex);
        const auto tag = entry.u32();
        entry.skip(4);
        const std::uint64_t at = entry.u32();
        if (tag != kSizeTag && tag != kLongSizeTag)
            continue;
        const auto rest = view.number(store + at, tag == kSizeTag ? 4 : 8, Endian::Big);
        return rest ? completeAt(view, addClamped(behind, *rest)) : cutOffAt(view, view.size());
    }
    return view.holds(0, behind) ? unknownExtent() : cutOffAt(view, view.size());
}

Extent walkUnityData(ByteView& view) {
    constexpr std::uint64_t kLongestVersion = 64;
    if (!view.matches(0, std::string_view("UnityFS\0", 8)))
        return unknownExtent();
    std::uint64_t at = 12;
    for (int version = 0; version < 2; ++version) {
        const auto nul = view.find(0, at, at + kLongestVersion);
        if (!nul.found())
            return nul.stopped() ? cutOffAt(view, view.size()) : unknownExtent();
        at = nul.at + 1;
    }
    const auto bytes = view.be64(at);
    if (!bytes)
        return cutOffAt(view, view.size());
    return *bytes > at + 8 ? completeAt(view, *bytes) : damagedAt(view, at);
}

}  // namespace vantor

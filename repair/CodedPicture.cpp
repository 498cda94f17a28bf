// Sources: ISO/IEC 14496-10, 7.3.1, 7.3.3, 7.4.1.2 (AVC); 23008-2, 7.3.6, 7.4.2.4 (HEVC); ITU-T T.81, B.1;
// SMPTE RDD 36.
#include "repair/CodedPicture.h"

#include <algorithm>
#include <cstring>

#include "repair/BitReader.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostUnitBytes = std::uint64_t{32} << 20;
constexpr unsigned kMostUnits = 1024;        // of one picture
constexpr std::size_t kSliceHeadBytes = 48;  // far more than is read of it

struct Unit {
    std::uint64_t body = 0;
    std::uint64_t end = 0;
    unsigned kind = 0;
    bool slice = false;
    bool firstSlice = false;
    bool begins = false;   // stands only before the slices of its picture
    CodedPicture picture;  // of a first slice
    bool field = false;    // (AVC) one of two that make a picture
    bool bottom = false;
};

void readAvcSlice(BitReader in, const PictureSyntax& syntax, std::uint8_t head, Unit& unit, bool& good) {
    unit.firstSlice = in.golomb() == 0;
    const std::uint32_t kind = in.golomb();
    const std::uint32_t set = in.golomb();
    if (syntax.separatePlanes) {
        in.bits(2);
    }
    CodedPicture& picture = unit.picture;
    picture.number = in.bits(syntax.frameNumberBits);
    if (!syntax.framesOnly) {
        unit.field = in.bit() != 0;
        unit.bottom = unit.field && in.bit() != 0;
    }
    picture.sync = picture.restartsOrder = unit.kind == 5;
    picture.refersOnly = (head & 0x60) != 0;
    if (picture.sync) {
        in.golomb();
    }
    picture.order = in.bits(syntax.orderBits);
    const bool intra = kind % 5 == 2 || kind % 5 == 4;
    good = in.ok() && kind <= 9 && set < syntax.sets.size() && syntax.sets[set] &&
           (!picture.sync || (intra && picture.number == 0));
}

void readHevcSlice(BitReader in, const PictureSyntax& syntax, Unit& unit, bool& good) {
    const bool random = unit.kind >= 16 && unit.kind <= 23;
    const bool instant = unit.kind == 19 || unit.kind == 20;
    unit.firstSlice = in.bit() != 0;
    if (random) {
        in.bit();
    }
    const std::uint32_t set = in.golomb();
    CodedPicture& picture = unit.picture;
    picture.sync = random;
    picture.restartsOrder = instant || (unit.kind >= 16 && unit.kind <= 18);
    picture.refersOnly = true;
    picture.aside = (unit.kind < 16 && unit.kind % 2 == 0) || (unit.kind >= 6 && unit.kind <= 9);
    good = in.ok() && set < syntax.sets.size() && syntax.sets[set];
    if (!unit.firstSlice || !good) {
        return;
    }
    in.bits(syntax.extraSliceBits);
    const std::uint32_t kind = in.golomb();
    good = random ? kind == 2 : kind <= 2;
    if (syntax.outputFlag) {
        in.bit();
    }
    if (syntax.separatePlanes) {
        in.bits(2);
    }
    picture.order = instant ? 0 : in.bits(syntax.orderBits);
    good = good && in.ok();
}

bool readUnitHead(std::span<const std::uint8_t> bytes, const PictureSyntax& syntax, Unit& unit) {
    const std::uint8_t head = bytes[0];
    bool good = (head & 0x80) == 0 && syntax.heads[head];
    if (!good) {
        return false;
    }
    if (syntax.coding == Coding::Avc) {
        unit.kind = head & 31U;
        unit.slice = unit.kind == 1 || unit.kind == 5;
        unit.begins = unit.kind >= 6 && unit.kind <= 9;
        if (unit.slice) {
            readAvcSlice(BitReader(bytes.subspan(1)), syntax, head, unit, good);
        }
        return good && unit.kind != 0;
    }
    unit.kind = head >> 1 & 63U;
    unit.slice = unit.kind <= 9 || (unit.kind >= 16 && unit.kind <= 21);
    unit.begins = (unit.kind >= 32 && unit.kind <= 35) || unit.kind == 39;
    good = bytes.size() > 2 && (head & 1) == 0 && bytes[1] >> 3 == 0 && (bytes[1] & 7) != 0;
    if (good && unit.slice) {
        readHevcSlice(BitReader(bytes.subspan(2)), syntax, unit, good);
    }
    return good;
}

// Where a recording was cut off, what flash memory holds when it was erased may stand for the rest of a unit.
bool endsInErased(ByteView& view, const Unit& unit) {
    constexpr std::uint64_t kMoreThanCoded = 16;
    for (std::uint64_t i = 1; i <= kMoreThanCoded; ++i) {
        if (unit.end - unit.body < i || view.u8(unit.end - i) != 0xFF) {
            return false;
        }
    }
    return true;
}

// No coded unit holds two zeros followed by a byte of 0, 1 or 2; the first bytes of the next unit's length,
// or of sound, often do.
bool isCodedAllThrough(ByteView& view, std::uint64_t at, std::uint64_t end) {
    unsigned zeros = 0;
    while (at < end) {
        const auto bytes = view.window(at);
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), end - at));
        if (count == 0) {
            return false;
        }
        for (std::size_t i = 0; i < count;) {
            if (zeros == 0) {
                const void* const zero = std::memchr(bytes.data() + i, 0, count - i);
                if (zero == nullptr) {
                    break;
                }
                i = static_cast<std::size_t>(static_cast<const std::uint8_t*>(zero) - bytes.data()) + 1;
                zeros = 1;
                continue;
            }
            const std::uint8_t byte = bytes[i++];
            if (zeros >= 2 && byte <= 2) {
                return false;
            }
            zeros = byte == 0 ? zeros + 1 : 0;
        }
        at += count;
    }
    return zeros == 0;
}

std::optional<Unit> unitAt(ByteView& view, const PictureSyntax& syntax, std::uint64_t at,
                           std::uint64_t limit) {
    const auto length = view.number(at, syntax.lengthBytes, Endian::Big);
    Unit unit;
    unit.body = at + syntax.lengthBytes;
    if (!length || *length < 2 || *length > kMostUnitBytes || unit.body > limit ||
        *length > limit - unit.body) {
        return std::nullopt;
    }
    unit.end = unit.body + *length;
    auto bytes = view.window(unit.body, kSliceHeadBytes);
    bytes = bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), *length)));
    if (bytes.empty() || !readUnitHead(bytes, syntax, unit)) {
        return std::nullopt;
    }
    return unit;
}

// Units of one picture, to the first that belongs to the next.
std::optional<CodedPicture> unitsAt(ByteView& view, const PictureSyntax& syntax, std::uint64_t at,
                                    std::uint64_t limit) {
    std::optional<Unit> first;
    CodedPicture picture;
    std::uint64_t end = at;
    unsigned fields = 0;
    for (unsigned units = 0; units < kMostUnits; ++units) {
        const auto unit = unitAt(view, syntax, end, limit);
        if (!unit || (first && unit->begins)) {
            break;
        }
        if (unit->slice && unit->firstSlice) {
            const bool secondField = first && first->field && unit->field && fields == 1 &&
                                     unit->bottom != first->bottom &&
                                     unit->picture.number == first->picture.number;
            if (first && !secondField) {
                break;
            }
            ++fields;
        }
        if (unit->slice && !unit->firstSlice && !first) {
            return std::nullopt;
        }
        if (!isCodedAllThrough(view, unit->body, unit->end) || endsInErased(view, *unit)) {
            break;
        }
        if (unit->slice) {
            if (!first) {
                first = unit;
                picture = unit->picture;
            }
            ++picture.slices;
        }
        end = unit->end;
    }
    if (!first) {
        return std::nullopt;
    }
    picture.at = at;
    picture.end = end;
    return picture;
}

// From FF D8 to the FF D9 that no segment and no coded data covers.
std::optional<CodedPicture> jpegAt(ByteView& view, std::uint64_t at, std::uint64_t limit) {
    constexpr int kMostMarkers = 1 << 16;
    if (!view.matches(at, "\xFF\xD8\xFF")) {
        return std::nullopt;
    }
    std::uint64_t here = at + 2;
    for (int markers = 0; markers < kMostMarkers && here < limit; ++markers) {
        const auto found = view.find(0xFF, here, limit);
        if (!found.found()) {
            return std::nullopt;
        }
        const std::uint8_t marker = view.u8(found.at + 1).value_or(0);
        here = found.at + (marker == 0xFF ? 1 : 2);
        if (marker == 0xD9) {
            CodedPicture picture;
            picture.at = at;
            picture.end = here;
            picture.sync = picture.restartsOrder = true;
            picture.slices = 1;
            return picture.end <= limit ? std::optional(picture) : std::nullopt;
        }
        if (marker == 0xD8) {
            return std::nullopt;
        }
        if (marker >= 0xC0 && marker < 0xFF && (marker < 0xD0 || marker > 0xD7)) {
            const auto length = view.be16(here);
            if (!length || *length < 2) {
                return std::nullopt;
            }
            here += *length;
        }
    }
    return std::nullopt;
}

// One field or frame: a table of slices, each of which tells how its bytes are shared out. Where it ends.
std::optional<std::uint64_t> proResPictureEnd(ByteView& view, std::uint64_t at, std::uint64_t limit) {
    const std::uint64_t headBytes = view.u8(at).value_or(0) >> 3;
    const std::uint64_t bytes = view.be32(at + 1).value_or(0);
    const std::uint64_t slices = view.be16(at + 5).value_or(0);
    const std::uint64_t table = at + headBytes;
    if (headBytes < 8 || slices == 0 || at > limit || bytes > limit - at || headBytes + 2 * slices > bytes) {
        return std::nullopt;
    }
    std::uint64_t slice = table + 2 * slices;
    for (std::uint64_t i = 0; i < slices; ++i) {
        constexpr std::uint64_t kMostScale = 224;
        const std::uint64_t sliceBytes = view.be16(table + 2 * i).value_or(0);
        const std::uint64_t sliceHead = view.u8(slice).value_or(0) >> 3;
        const std::uint64_t scale = view.u8(slice + 1).value_or(0);
        const std::uint64_t shared =
            std::uint64_t{view.be16(slice + 2).value_or(0)} + view.be16(slice + 4).value_or(0);
        if (sliceHead < 6 || scale == 0 || scale > kMostScale || sliceHead + shared > sliceBytes) {
            return std::nullopt;
        }
        slice += sliceBytes;
    }
    return slice <= at + bytes ? std::optional(at + bytes) : std::nullopt;
}

std::optional<CodedPicture> proResAt(ByteView& view, std::uint64_t at, std::uint64_t limit) {
    constexpr std::uint64_t kLeast = 28;
    const auto length = view.be32(at);
    if (!length || *length < kLeast || *length > kMostUnitBytes || at > limit || *length > limit - at ||
        !view.matches(at + 4, "icpf")) {
        return std::nullopt;
    }
    const unsigned fields = (view.u8(at + 20).value_or(0) & 0x0C) != 0 ? 2 : 1;
    std::optional<std::uint64_t> here = at + 8 + view.be16(at + 8).value_or(0);
    for (unsigned field = 0; field < fields && here; ++field) {
        here = proResPictureEnd(view, *here, at + *length);
    }
    if (!here) {
        return std::nullopt;
    }
    CodedPicture picture;
    picture.at = at;
    picture.end = at + *length;
    picture.sync = picture.restartsOrder = true;
    picture.slices = 1;
    return picture;
}

}  // namespace

std::optional<CodedPicture> pictureAt(ByteView& view, const PictureSyntax& syntax, std::uint64_t at,
                                      std::uint64_t limit) {
    switch (syntax.coding) {
        case Coding::Avc:
        case Coding::Hevc:
            return unitsAt(view, syntax, at, limit);
        case Coding::Jpeg:
            return jpegAt(view, at, limit);
        case Coding::ProRes:
            return proResAt(view, at, limit);
        default:
            return std::nullopt;
    }
}

bool mayBeginPicture(ByteView& view, const PictureSyntax& syntax, std::uint64_t at) {
    const auto bytes = view.window(at, 8);
    if (bytes.size() < 8) {
        return false;
    }
    switch (syntax.coding) {
        case Coding::Avc:
        case Coding::Hevc:
            return syntax.heads[bytes[syntax.lengthBytes]] && (syntax.lengthBytes < 4 || bytes[0] <= 1);
        case Coding::Jpeg:
            return bytes[0] == 0xFF && bytes[1] == 0xD8 && bytes[2] == 0xFF;
        case Coding::ProRes:
            return std::memcmp(bytes.data() + 4, "icpf", 4) == 0;
        default:
            return false;
    }
}

bool isWholeUnitChain(ByteView& view, Coding coding, unsigned lengthBytes, std::uint64_t from,
                      std::uint64_t to) {
    if (to < from || !lookAtSample(view, coding, lengthBytes, from, to - from)) {
        return false;
    }
    for (unsigned units = 0; units < kMostUnits && from < to; ++units) {
        const std::uint64_t body = from + lengthBytes;
        const std::uint64_t end = body + view.number(from, lengthBytes, Endian::Big).value_or(0);
        if (end <= body || end > to || !isCodedAllThrough(view, body, end)) {
            return false;
        }
        from = end;
    }
    return from == to;
}

bool follows(const PictureSyntax& syntax, const CodedPicture& last, const CodedPicture& next) {
    if (next.restartsOrder) {
        return true;
    }
    if (syntax.coding == Coding::Avc) {
        const std::uint32_t step = (next.number - last.number) & ((1U << syntax.frameNumberBits) - 1);
        return step <= 1;
    }
    constexpr std::uint32_t kMostJump = 32;
    const std::uint32_t range = 1U << syntax.orderBits;
    const std::uint32_t step = (next.order - last.order) & (range - 1);
    return syntax.coding != Coding::Hevc || range <= 2 * kMostJump || step <= kMostJump ||
           step >= range - kMostJump;
}

}  // namespace vantor

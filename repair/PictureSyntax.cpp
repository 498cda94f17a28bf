#include "repair/PictureSyntax.h"

#include "repair/BitReader.h"

namespace vantor {

namespace {

using Bytes = std::span<const std::uint8_t>;

// Takes `count` bytes off the front; fewer when there are fewer.
Bytes take(Bytes& from, std::size_t count) {
    const Bytes taken = from.first(std::min(count, from.size()));
    from = from.subspan(taken.size());
    return taken;
}

std::size_t takeNumber(Bytes& from, std::size_t bytes) {
    std::size_t value = 0;
    for (const std::uint8_t byte : take(from, bytes)) {
        value = value << 8 | byte;
    }
    return value;
}

void skipScalingLists(BitReader& in, unsigned lists) {
    for (unsigned list = 0; list < lists && in.ok(); ++list) {
        if (in.bit() == 0) {
            continue;
        }
        std::int64_t last = 8;
        std::int64_t next = 8;
        for (unsigned i = 0, size = list < 6 ? 16 : 64; i < size && in.ok(); ++i) {
            if (next != 0) {
                const std::uint32_t coded = in.golomb();
                const std::int64_t delta =
                    coded % 2 != 0 ? (std::int64_t{coded} + 1) / 2 : -std::int64_t{coded / 2};
                next = (last + delta + 256) % 256;
            }
            last = next == 0 ? last : next;
        }
    }
}

bool readAvcSequence(Bytes unit, PictureSyntax& syntax) {
    BitReader in(unit.subspan(1));
    const std::uint32_t profile = in.bits(8);
    in.bits(16);
    in.golomb();
    switch (profile) {
        case 100:
        case 110:
        case 122:
        case 244:
        case 44:
        case 83:
        case 86:
        case 118:
        case 128: {
            const std::uint32_t chroma = in.golomb();
            syntax.separatePlanes = chroma == 3 && in.bit() != 0;
            in.golomb();
            in.golomb();
            in.bit();
            if (in.bit() != 0) {
                skipScalingLists(in, chroma == 3 ? 12 : 8);
            }
            break;
        }
        default:
            break;
    }
    syntax.frameNumberBits = in.golomb() + 4;
    const std::uint32_t orderKind = in.golomb();
    if (orderKind == 0) {
        syntax.orderBits = in.golomb() + 4;
    } else if (orderKind == 1) {
        return false;  // no encoder in use writes it
    }
    in.golomb();
    in.bit();
    in.golomb();
    in.golomb();
    syntax.framesOnly = in.bit() != 0;
    return in.ok() && syntax.frameNumberBits <= 16 && syntax.orderBits <= 16;
}

bool readHevcSequence(Bytes unit, PictureSyntax& syntax) {
    BitReader in(unit.subspan(2));
    in.bits(4);
    const std::uint32_t layers = in.bits(3);
    in.bit();
    for (int i = 0; i < 88; ++i) {
        in.bit();
    }
    in.bits(8);
    std::uint32_t profileThere = 0;
    std::uint32_t levelThere = 0;
    for (std::uint32_t i = 0; i < layers; ++i) {
        profileThere |= in.bit() << i;
        levelThere |= in.bit() << i;
    }
    for (std::uint32_t i = layers; layers != 0 && i < 8; ++i) {
        in.bits(2);
    }
    for (std::uint32_t i = 0; i < layers; ++i) {
        const int skipped = ((profileThere >> i & 1) != 0 ? 88 : 0) + ((levelThere >> i & 1) != 0 ? 8 : 0);
        for (int bit = 0; bit < skipped; ++bit) {
            in.bit();
        }
    }
    in.golomb();
    syntax.separatePlanes = in.golomb() == 3 && in.bit() != 0;
    in.golomb();
    in.golomb();
    if (in.bit() != 0) {
        for (int side = 0; side < 4; ++side) {
            in.golomb();
        }
    }
    in.golomb();
    in.golomb();
    syntax.orderBits = in.golomb() + 4;
    return in.ok() && syntax.orderBits <= 16;
}

void noteSet(std::uint32_t number, PictureSyntax& syntax) {
    if (number < syntax.sets.size()) {
        syntax.sets.set(number);
    }
}

bool readHevcPicture(Bytes unit, PictureSyntax& syntax) {
    BitReader in(unit.subspan(2));
    noteSet(in.golomb(), syntax);
    in.golomb();
    in.bit();
    syntax.outputFlag = in.bit() != 0;
    syntax.extraSliceBits = in.bits(3);
    return in.ok();
}

}  // namespace

std::optional<PictureSyntax> avcSyntax(Bytes configuration) {
    PictureSyntax syntax;
    syntax.coding = Coding::Avc;
    const Bytes head = take(configuration, 6);
    if (head.size() < 6) {
        return std::nullopt;
    }
    syntax.lengthBytes = (head[4] & 3U) + 1;
    bool known = false;
    for (unsigned i = 0; i < (head[5] & 31U); ++i) {
        const Bytes unit = take(configuration, takeNumber(configuration, 2));
        known = known || (unit.size() > 1 && readAvcSequence(unit, syntax));
    }
    const std::size_t pictureSets = takeNumber(configuration, 1);
    for (std::size_t i = 0; i < pictureSets && !configuration.empty(); ++i) {
        const Bytes unit = take(configuration, takeNumber(configuration, 2));
        if (unit.size() > 1) {
            noteSet(BitReader(unit.subspan(1)).golomb(), syntax);
        }
    }
    return known && syntax.sets.any() ? std::optional(syntax) : std::nullopt;
}

std::optional<PictureSyntax> hevcSyntax(Bytes configuration) {
    constexpr std::uint8_t kSequence = 33;
    constexpr std::uint8_t kPicture = 34;
    PictureSyntax syntax;
    syntax.coding = Coding::Hevc;
    const Bytes head = take(configuration, 23);
    if (head.size() < 23) {
        return std::nullopt;
    }
    syntax.lengthBytes = (head[21] & 3U) + 1;
    bool sequence = false;
    bool picture = false;
    for (unsigned array = 0; array < head[22]; ++array) {
        const std::size_t kind = takeNumber(configuration, 1) & 63U;
        const std::size_t units = takeNumber(configuration, 2);
        for (std::size_t i = 0; i < units && !configuration.empty(); ++i) {
            const Bytes unit = take(configuration, takeNumber(configuration, 2));
            if (unit.size() < 3) {
                continue;
            }
            sequence = sequence || (kind == kSequence && readHevcSequence(unit, syntax));
            picture = (kind == kPicture && readHevcPicture(unit, syntax)) || picture;
        }
    }
    return sequence && picture ? std::optional(syntax) : std::nullopt;
}

}  // namespace vantor

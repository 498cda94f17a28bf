// BMP: the length follows from the size of the picture; the length field is believed only near it.
// Source: Windows GDI documentation (BITMAPFILEHEADER, BITMAPINFOHEADER, BITMAPV5HEADER).
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kFileHeader = 14;
constexpr std::uint32_t kBmpMostSide = 1 << 20;
constexpr std::uint64_t kMostSlack = 4096;  // what writers add behind the pixels and count in

struct BmpHeader {
    std::uint32_t fileBytes = 0;
    std::uint32_t pixelsAt = 0;
    std::uint32_t headerBytes = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t bits = 0;
    std::uint32_t compression = 0;
    std::uint32_t pixelBytes = 0;
};

std::uint32_t magnitude(std::uint32_t number) {
    return (number & 0x80000000U) != 0 ? ~number + 1 : number;  // a negative height means top row first
}

BmpHeader readHeader(ByteView& view) {
    BmpHeader header;
    Cursor in(view, 2, Endian::Little);
    header.fileBytes = in.u32();
    in.skip(4);
    header.pixelsAt = in.u32();
    header.headerBytes = in.u32();
    const bool old = header.headerBytes == 12;
    header.width = old ? in.u16() : in.u32();
    header.height = old ? in.u16() : magnitude(in.u32());
    in.skip(2);
    header.bits = in.u16();
    if (!old) {
        header.compression = in.u32();
        header.pixelBytes = in.u32();
    }
    return in.ok() ? header : BmpHeader{};
}

bool isPlausible(const BmpHeader& header) {
    const bool bits = header.bits == 0 || header.bits == 1 || header.bits == 2 || header.bits == 4 ||
                      header.bits == 8 || header.bits == 16 || header.bits == 24 || header.bits == 32;
    const bool size = header.headerBytes == 12 || (header.headerBytes >= 16 && header.headerBytes <= 124);
    return bits && size && header.width != 0 && header.width <= kBmpMostSide && header.height != 0 &&
           header.height <= kBmpMostSide && header.compression <= 13 &&
           header.pixelsAt >= kFileHeader + header.headerBytes && header.pixelsAt <= (1U << 20);
}

std::uint64_t colourProfileEnd(ByteView& view, const BmpHeader& header) {
    if (header.headerBytes != 124)
        return 0;
    const auto at = view.le32(kFileHeader + 112), bytes = view.le32(kFileHeader + 116);
    return at && bytes && *at != 0 ? kFileHeader + *at + *bytes : 0;
}

Extent walkBmp(ByteView& view) {
    if (!view.matches(0, "BM"))
        return unknownExtent();
    const BmpHeader header = readHeader(view);
    if (!isPlausible(header))
        return unknownExtent();
    Facts facts;
    facts.width = header.width;
    facts.height = header.height;
    // Uncompressed kinds are 0 (RGB), 3 and 6 (bit masks).
    const bool plain = header.compression == 0 || header.compression == 3 || header.compression == 6;
    const std::uint64_t rows = (std::uint64_t{header.width} * header.bits + 31) / 32 * 4 * header.height;
    if (!plain && header.pixelBytes == 0)
        return unknownExtent();
    std::uint64_t end = header.pixelsAt + (plain ? rows : header.pixelBytes);
    end = std::max(end, colourProfileEnd(view, header));
    if (header.fileBytes > end && header.fileBytes - end <= kMostSlack)
        end = header.fileBytes;
    return completeAt(view, end, facts);
}

}  // namespace

extern constexpr Format kBmp = {
    .name = "BMP",
    .group = Group::Pictures,
    .walk = walkBmp,
    .extensions = " BMP DIB ",
    .strongMagic = false,
};

}  // namespace vantor

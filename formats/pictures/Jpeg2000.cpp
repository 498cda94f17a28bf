// JPEG 2000 in boxes and as a bare codestream. Source: ITU-T T.800 annexes A and I.
#include <algorithm>
#include <array>

#include "formats/Among.h"
#include "formats/Format.h"
#include "formats/IsoBox.h"

namespace vantor {

namespace {

constexpr std::uint16_t kSoc = 0xFF4F, kSiz = 0xFF51, kSot = 0xFF90, kEoc = 0xFFD9;
constexpr int kJpeg2000MostBoxes = 65536;

constexpr std::array<std::string_view, 18> kJp2Names = {"ftyp", "jp2h", "jp2c", "jp2i", "uuid", "uinf",
                                                        "xml ", "rreq", "asoc", "ftbl", "jpch", "jplh",
                                                        "free", "mdat", "cref", "nlst", "res ", "jumb"};

// Behind the end mark of the last tile-part, whose length is not told; `at` is behind its first segment.
// Packed data never holds 0xFF and a byte above 0x8F but in packet marks.
Extent scanToEnd(ByteView& view, std::uint64_t at, const Facts& facts) {
    constexpr std::uint16_t kStartOfData = 0xFF93;
    for (std::optional<std::uint16_t> marker = view.be16(at); marker != kStartOfData;
         marker = view.be16(at)) {
        const auto bytes = view.be16(at + 2);
        if (!marker || !bytes)
            return cutOffAt(view, at, facts);
        if (*marker < 0xFF50 || *marker > 0xFF8F || *bytes < 2)
            return damagedAt(view, at, facts);
        at += std::uint64_t{2} + *bytes;
    }
    at += 2;
    for (;;) {
        constexpr std::uint64_t kHopelessRun =
            4 * 1024 * 1024;  // without a byte that packed data often holds
        const auto hit = view.find(0xFF, at, std::min(view.size(), at + kHopelessRun));
        if (hit.at - at >= kHopelessRun)
            return damagedAt(view, at, facts);
        at = hit.at;
        const auto next = hit.found() ? view.u8(at + 1) : std::nullopt;
        if (!next)
            return cutOffAt(view, at, facts);
        if (*next == 0xD9)
            return completeAt(view, at + 2, facts);
        if (*next > 0x92)
            return damagedAt(view, at, facts);
        at += 2;
    }
}

Extent walkStream(ByteView& view, std::uint64_t start) {
    Facts facts;
    if (view.be16(start) != kSoc || view.be16(start + 2) != kSiz)
        return unknownExtent();
    Cursor in(view, start + 8);
    const auto right = in.u32(), bottom = in.u32(), left = in.u32(), top = in.u32();
    if (in.ok() && right > left && bottom > top) {
        facts.width = right - left;
        facts.height = bottom - top;
    }
    std::uint64_t at = start + 2;
    for (bool sawTile = false;;) {
        const auto marker = view.be16(at);
        if (!marker)
            return cutOffAt(view, view.size(), facts);
        if (*marker == kEoc)
            return sawTile ? completeAt(view, at + 2, facts) : damagedAt(view, at, facts);
        if (*marker == kSot) {
            const auto bytes = view.be32(at + 6);
            if (!bytes)
                return cutOffAt(view, view.size(), facts);
            if (*bytes == 0)  // the last part: up to the end mark
                return scanToEnd(view, at + 12, facts);
            if (*bytes < 14)
                return damagedAt(view, at, facts);
            sawTile = true;
            at += *bytes;
        } else {
            const auto bytes = view.be16(at + 2);
            if (!bytes)
                return cutOffAt(view, view.size(), facts);
            if (sawTile || *marker < 0xFF50 || *marker > 0xFF8F || *bytes < 2)
                return damagedAt(view, at, facts);
            at += std::uint64_t{2} + *bytes;
        }
        if (at > view.size())
            return cutOffAt(view, view.size(), facts);
    }
}

Extent walkJp2Boxes(ByteView& view) {
    std::uint64_t at = 12;
    Facts facts;
    bool sawPicture = false;
    for (int boxes = 0; boxes < kJpeg2000MostBoxes; ++boxes) {
        const auto box = readIsoBox(view, at);
        if (!box || !isAmong(kJp2Names, box->text()))
            break;
        if (box->text() == "jp2c") {
            sawPicture = true;
            if (box->toEnd)  // only the stream itself knows
                return walkStream(view, box->body);
        }
        if (box->text() == "jp2h" && view.matches(box->body + 4, "ihdr")) {
            facts.height = view.be32(box->body + 8).value_or(0);
            facts.width = view.be32(box->body + 12).value_or(0);
        }
        if (box->toEnd || box->end > view.size())
            return cutOffAt(view, view.size(), facts);
        at = box->end;
    }
    if (sawPicture)
        return completeAt(view, at, facts);
    return view.holds(at, 8) ? damagedAt(view, at, facts) : cutOffAt(view, at, facts);
}

Extent walkJpeg2000(ByteView& view) {
    if (view.matches(0, std::string_view("\0\0\0\x0CjP  \r\n\x87\n", 12)))
        return walkJp2Boxes(view);
    return walkStream(view, 0);
}

}  // namespace

extern constexpr Format kJpeg2000 = {
    .name = "JPEG 2000",
    .group = Group::Pictures,
    .walk = walkJpeg2000,
    .extensions = " JP2 J2K J2C JPC JPF JPX JPM MJ2 JPH JHC ",
};

}  // namespace vantor

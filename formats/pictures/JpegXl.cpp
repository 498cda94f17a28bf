// JPEG XL in boxes; a bare stream hides its end. Source: ISO/IEC 18181-2.
#include <array>

#include "formats/Among.h"
#include "formats/Format.h"
#include "formats/IsoBox.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

constexpr int kJpegXlMostBoxes = 65536;

constexpr std::array<std::string_view, 9> kJxlNames = {"ftyp", "jxlc", "jxlp", "jxll", "jxli",
                                                       "Exif", "xml ", "brob", "jbrd"};

Extent walkJpegXl(ByteView& view) {
    if (!view.matches(0, std::string_view("\0\0\0\x0CJXL \r\n\x87\n", 12)))
        return unknownExtent();  // a bare stream (FF 0A) tells its end only to a decoder
    std::uint64_t at = 12;
    Facts facts;
    bool sawPicture = false;
    for (int boxes = 0; boxes < kJpegXlMostBoxes; ++boxes) {
        const auto box = readIsoBox(view, at);
        if (!box || !isAmong(kJxlNames, box->text()))
            break;
        if (box->toEnd)
            return unknownExtent();
        constexpr std::uint8_t kLastPart = 0x80;
        sawPicture = sawPicture || box->text() == "jxlc" ||
                     (box->text() == "jxlp" && (view.u8(box->body).value_or(0) & kLastPart) != 0);
        if (box->text() == "Exif")
            addTiffFacts(view, addClamped(box->body + 4, view.be32(box->body).value_or(0)), facts);
        if (box->end > view.size())
            return cutOffAt(view, view.size(), facts);
        at = box->end;
    }
    if (sawPicture)
        return completeAt(view, at, facts);
    return view.holds(at, 8) ? damagedAt(view, at, facts) : cutOffAt(view, at, facts);
}

}  // namespace

extern constexpr Format kJpegXl = {
    .name = "JPEG XL",
    .group = Group::Pictures,
    .walk = walkJpegXl,
    .extensions = " JXL ",
    .mayNotTellEnd = true,
};

}  // namespace vantor

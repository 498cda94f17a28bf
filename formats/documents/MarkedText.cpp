// BDF, DXF, IDX, OFF, SAM and X files where they are text. Source for genes: the format
// description of SAM, version 1.
#include "formats/Format.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

// Types that are text in one form and something else in another: text only where it begins as such.
Extent walkMarkedText(ByteView& view) {
    static constexpr std::string_view kBeginnings[] = {
        "STARTFONT ",   "# VobSub index", "  0\r\nSECTION", "  0\nSECTION",  "999\r\n",
        "999\n",        "OFF\n",          " 0\nSECTION",    " 0\r\nSECTION", "0\nSECTION",
        "0\r\nSECTION", "xof 0302txt",    "xof 0303txt",    "@HD\tVN:",      "##fileformat=VCF"};
    for (const auto beginning : kBeginnings) {
        if (view.matches(0, beginning))
            return walkText(view);
    }
    return unknownExtent();
}

}  // namespace

extern constexpr Format kMarkedText = {
    .name = "Marked text",
    .group = Group::Documents,
    .walk = walkMarkedText,
    .extensions = " BDF DXF IDX OFF SAM X ",
    .strongMagic = false,
};

}  // namespace vantor

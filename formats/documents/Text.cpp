// Plain text: anything until the first byte that is none.
#include "formats/documents/Text.h"

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

Extent walkText(ByteView& view) {
    constexpr std::uint64_t kLeast = 4;
    // Sixteen-bit text with its mark: until the first unit that is a control character.
    if (view.matches(0, "\xFF\xFE") || view.matches(0, "\xFE\xFF")) {
        const auto endian = view.matches(0, "\xFF\xFE") ? Endian::Little : Endian::Big;
        std::uint64_t at = 2;
        for (;; at += 2) {
            const auto unit = view.number(at, 2, endian);
            if (!unit || isControl(static_cast<int>(*unit)) || *unit >= 0xFFFE)
                break;
        }
        return at >= kLeast ? inexact(completeAt(view, at)) : unknownExtent();
    }
    const auto end = textEnd(view, 0);
    return end >= kLeast ? inexact(completeAt(view, end)) : unknownExtent();
}

extern constexpr Format kText = {
    .name = "Text",
    .group = Group::Documents,
    .walk = walkText,
    .extensions =
        " TXT EML MBOX CSV LOG INI JSON MD C H CPP HPP PY SH BAT JS CSS SQL TEX SRT SUB ASS M3U "
        "PLS NFO PHP PL JAVA TSV YAML YML AFM CCD CUBE CUE DIFF GCODE GPL IMY IPYNB LDIF OBJ OFX "
        "ORG PEM PGN PO QIF RIS SGF URL USDA VTT ASC ASPX BAS BIB CIF DESKTOP ENW FASTA FRM GBR "
        "GFF HQX IGS INF JDX JSP LRC LWS LY MIF MOL2 MSF NB NMEA PBXPROJ PCB PFA PPD PPK RB REG "
        "RPP SFD SHAR SLK SLN SMI STEP UU VBP VNT WRL X_T ",
    .strongMagic = false,
    .frameStream = true,
};

}  // namespace vantor

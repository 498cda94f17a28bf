// The list of walkers and the types they serve.
#include "formats/Registry.h"

#include <algorithm>
#include <array>
#include <string>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::array kWalkers = {
    Walker{"JPEG", walkJpeg, true, " JPG JPEG JPE JFIF JIF MPO THM INSP "},
    Walker{"PNG", walkPng, true, " PNG APNG MNG JNG "},
    Walker{"GIF", walkGif, true, " GIF "},
    Walker{"BMP", walkBmp, false, " BMP DIB "},
    Walker{"TIFF", walkTiff, true,
           " TIF TIFF DNG NEF NRW CR2 ARW SR2 SRF PEF ORF RW2 RWL RAW SRW KDC DCR K25 3FR FFF GPR ERF MEF "
           "MOS IIQ "
           "CAP EIP JXR WDP HDP DCS PTX "},
    Walker{"ISO media", walkIsoMedia, true,
           " MP4 MOV QT 3GP 3G2 3GPP M4A M4B M4V M4P F4V F4A CR3 CRM HEIC HEIF HIF AVIF AVIFS INSV LRV GLV "
           "MQV "},
    Walker{"RIFF", walkRiff, true,
           " AVI WAV WAVE WEBP RF64 BW64 ANI RMI AIF AIFF AIFC 8SVX LBM IFF DIVX CDR "},
    Walker{"PDF", walkPdf, true, " PDF AI "},
    Walker{"ZIP", walkZip, true,
           " ZIP DOCX DOCM DOTX XLSX XLSM XLTX XLSB PPTX PPTM PPSX POTX ODT ODS ODP ODG ODF ODB OTT EPUB JAR "
           "APK XPS "
           "OXPS KMZ PAGES NUMBERS KEY VSDX CBZ IPA WAR XPI SKETCH 3MF WHL SXW SXC SXI IDML "},
};

}  // namespace

std::span<const Walker> allWalkers() {
    return kWalkers;
}

const Walker* walkerFor(std::string_view extension) {
    if (extension.empty() || extension.find(' ') != extension.npos)
        return nullptr;
    const std::string framed = " " + std::string(extension.substr(0, 16)) + " ";
    const auto serves = [&](const Walker& walker) {
        return walker.extensions.find(framed) != std::string_view::npos;
    };
    const auto hit = std::find_if(kWalkers.begin(), kWalkers.end(), serves);
    return hit != kWalkers.end() ? &*hit : nullptr;
}

Extent walk(std::string_view extension, ByteSource& source) {
    ByteView view(source);
    const Walker* own = walkerFor(extension);
    Extent extent;
    if (own != nullptr)
        extent = own->walk(view);
    for (const Walker& walker : kWalkers) {
        if (extent.verdict != Verdict::Unknown)
            break;
        if (&walker == own || !walker.strongMagic)
            continue;
        // Facts stay when only the end could not be told.
        Extent other = walker.walk(view);
        if (other.verdict != Verdict::Unknown || other.facts.width != 0 || other.facts.taken)
            extent = other;
    }
    return extent;
}

}  // namespace vantor

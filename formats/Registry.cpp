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
    Walker{"PSD", walkPsd, true, " PSD PSB PDD "},
    Walker{"JPEG 2000", walkJpeg2000, true, " JP2 J2K J2C JPC JPF JPX JPM MJ2 JPH JHC "},
    Walker{"JPEG XL", walkJpegXl, true, " JXL "},
    Walker{"Icon", walkIcon, false, " ICO CUR "},
    Walker{"ICNS", walkIcns, true, " ICNS "},
    Walker{"PCX", walkPcx, false, " PCX "},
    Walker{"TGA", walkTga, false, " TGA ICB VDA VST "},
    Walker{"DDS", walkDds, true, " DDS "},
    Walker{"XCF", walkXcf, true, " XCF "},
    Walker{"Any map", walkAnyMap, false, " PPM PGM PBM PNM "},
    Walker{"Float map", walkFloatMap, false, " PFM "},
    Walker{"Radiance", walkRadiance, false, " HDR "},
    Walker{"SGI", walkSgi, false, " SGI RGB RGBA BW "},
    Walker{"QOI", walkQoi, true, " QOI "},
    Walker{"XPM", walkXpm, true, " XPM "},
    Walker{"RAF", walkRaf, true, " RAF "},
    Walker{"MRW", walkMrw, true, " MRW "},
    Walker{"CRW", walkCrw, true, " CRW "},
    Walker{"X3F", walkX3f, true, " X3F "},
    Walker{"ISO media", walkIsoMedia, true,
           " MP4 MOV QT 3GP 3G2 3GPP M4A M4B M4V M4P F4V F4A CR3 CRM HEIC HEIF HIF AVIF AVIFS INSV LRV GLV "
           "MQV "},
    Walker{"RIFF", walkRiff, true,
           " AVI WAV WAVE WEBP RF64 BW64 ANI RMI AIF AIFF AIFC 8SVX LBM IFF DIVX CDR "},
    Walker{"Matroska", walkMatroska, true, " MKV WEBM MKA MK3D MKS "},
    Walker{"ASF", walkAsf, true, " ASF WMV WMA WM DVR-MS "},
    Walker{"FLV", walkFlv, true, " FLV "},
    Walker{"SWF", walkSwf, false, " SWF "},
    Walker{"MXF", walkMxf, true, " MXF "},
    Walker{"RealMedia", walkRealMedia, true, " RM RMVB RA RAM RV "},
    Walker{"FLAC", walkFlac, true, " FLAC FLA "},
    Walker{"Ogg", walkOgg, true, " OGG OGA OGV OGX OPUS SPX OGM "},
    Walker{"AMR", walkAmr, true, " AMR AWB "},
    Walker{"AU", walkAu, true, " AU SND "},
    Walker{"MIDI", walkMidi, true, " MID MIDI KAR "},
    Walker{"Monkey's Audio", walkMonkeysAudio, true, " APE MAC "},
    Walker{"Musepack", walkMusepack, true, " MPC MP+ "},
    Walker{"Core Audio", walkCoreAudio, true, " CAF "},
    Walker{"Creative Voice", walkVoice, true, " VOC "},
    Walker{"MPEG program stream", walkMpegPs, true, " MPG MPEG VOB MOD MPE M2P EVO TOD "},
    Walker{"MPEG transport stream", walkMpegTs, false, " TS M2TS MTS M2T TRP TP "},
    Walker{"MPEG video", walkMpegVideo, true, " M1V M2V MPV "},
    Walker{"MPEG audio", walkMpegAudio, false, " MP3 MP2 MP1 MPA M2A "},
    Walker{"ADTS", walkAdts, false, " AAC ADTS "},
    Walker{"AC-3", walkAc3, false, " AC3 EAC3 EC3 "},
    Walker{"PDF", walkPdf, true, " PDF AI "},
    Walker{
        "ZIP", walkZip, true,
        " ZIP DOCX DOCM DOTX XLSX XLSM XLTX XLSB PPTX PPTM PPSX POTX ODT ODS ODP ODG ODF ODB OTT EPUB JAR "
        "APK XPS "
        "OXPS KMZ PAGES NUMBERS KEY VSDX CBZ IPA WAR XPI SKETCH 3MF WHL SXW SXC SXI SXD SXM IDML ODC ODI ODM "
        "OTG OTH OTP OTS ORA KRA XD GGB SB3 FCSTD NPZ ASICE "},
    Walker{"gzip", walkGzip, true, " GZ TGZ SVGZ EMZ "},
    Walker{"bzip2", walkBzip2, true, " BZ2 TBZ TBZ2 "},
    Walker{"xz", walkXz, true, " XZ TXZ "},
    Walker{"RAR", walkRar, true, " RAR CBR REV "},
    Walker{"7z", walkSevenZip, true, " 7Z CB7 "},
    Walker{"tar", walkTar, true, " TAR "},
    Walker{"ar", walkAr, true, " A AR LIB DEB "},
    Walker{"cpio", walkCpio, true, " CPIO "},
    Walker{"CAB", walkCab, true, " CAB "},
    Walker{"ARJ", walkArj, false, " ARJ "},
    Walker{"LZH", walkLzh, true, " LZH LHA "},
    Walker{"OLE2", walkCompoundFile, true,
           " DOC DOT XLS XLT PPT PPS POT MSG VSD PUB MPP FPX MSI DB OFT WPS XLA SUO MAX HWP "},
    Walker{"SQLite", walkSqlite, true, " SQLITE SQLITE3 DB3 "},
    Walker{"PST", walkPst, true, " PST OST PAB "},
    Walker{"Jet database", walkJetDatabase, true, " MDB ACCDB MDE "},
    Walker{"Palm database", walkPalmDatabase, true, " MOBI AZW AZW3 PRC PDB "},
    Walker{"Executable", walkExecutable, false, " EXE DLL SYS OCX SCR COM "},
    Walker{"ELF", walkElf, true, " ELF SO O "},
    Walker{"CHM", walkChm, true, " CHM "},
    Walker{"DjVu", walkDjvu, true, " DJVU DJV "},
    Walker{"Shell link", walkShellLink, true, " LNK "},
    Walker{"PostScript", walkPostScript, true, " PS EPS EPSF "},
    Walker{"RTF", walkRtf, true, " RTF "},
    Walker{"XML", walkXml, false,
           " XML SVG XMP GPX KML PLIST XSL XSD RSS FB2 XHTML WPL ABW AMF ATOM CML CSPROJ DAE DBK DRAWIO ENEX "
           "FCPXML FDX FODT GML GRAPHML JMX KDENLIVE MM MPD MUSICXML MZML NZB OPML OSM QGS QRC SBML TCX TTML "
           "UI X3D XLF XSPF "},
    Walker{"HTML", walkHtml, false, " HTML HTM XHT MHT "},
    Walker{"vCard", walkContacts, true, " VCF VCARD "},
    Walker{"iCalendar", walkCalendar, true, " ICS IFB VCS "},
    Walker{
        "Text", walkText, false,
        " TXT EML MBOX CSV LOG INI JSON MD C H CPP HPP PY SH BAT JS CSS SQL TEX SRT SUB ASS M3U PLS NFO "
        "PHP PL JAVA TSV YAML YML AFM CCD CUBE CUE DIFF GCODE GPL IMY IPYNB LDIF OBJ OFX ORG PEM PGN PO QIF "
        "RIS SGF URL USDA VTT "},
};

}  // namespace

std::span<const Walker> allWalkers() {
    return kWalkers;
}

const Walker* walkerFor(std::string_view extension) {
    if (extension.empty() || extension.find(' ') != extension.npos)
        return nullptr;
    std::string framed(1, ' ');
    framed.append(extension.substr(0, 16)).append(1, ' ');
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

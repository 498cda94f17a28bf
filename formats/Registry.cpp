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
    Walker{"OpenEXR", walkOpenExr, true, " EXR "},
    Walker{"DPX", walkDpx, true, " DPX "},
    Walker{"Cineon", walkCineon, true, " CIN "},
    Walker{"KTX", walkKtx, true, " KTX KTX2 "},
    Walker{"ASTC", walkAstc, true, " ASTC "},
    Walker{"Paint Shop Pro", walkPaintShopPro, true, " PSP PSPIMAGE "},
    Walker{"Sun raster", walkSunRaster, true, " RAS SUN "},
    Walker{"PAM", walkPam, false, " PAM "},
    Walker{"FITS", walkFits, true, " FITS FTS "},
    Walker{"NIfTI", walkNifti, true, " NII "},
    Walker{"MRC", walkMrc, false, " MRC CCP4 "},
    Walker{"DICOM", walkDicom, true, " DCM DICOM "},
    Walker{"NITF", walkNitf, false, " NTF NITF "},
    Walker{"RAF", walkRaf, true, " RAF "},
    Walker{"MRW", walkMrw, true, " MRW "},
    Walker{"CRW", walkCrw, true, " CRW "},
    Walker{"X3F", walkX3f, true, " X3F "},
    Walker{"ISO media", walkIsoMedia, true,
           " MP4 MOV QT 3GP 3G2 3GPP M4A M4B M4V M4P F4V F4A CR3 CRM HEIC HEIF HIF AVIF AVIFS INSV LRV GLV "
           "MQV AAX DVB "},
    Walker{"RIFF", walkRiff, true,
           " AVI WAV WAVE WEBP RF64 BW64 ANI RMI AIF AIFF AIFC 8SVX LBM IFF DIVX CDR DLS SF2 "
           "QCP PAL CMX CPR LWO "},
    Walker{"Matroska", walkMatroska, true, " MKV WEBM MKA MK3D MKS "},
    Walker{"ASF", walkAsf, true, " ASF WMV WMA WM DVR-MS "},
    Walker{"FLV", walkFlv, true, " FLV "},
    Walker{"SWF", walkSwf, false, " SWF "},
    Walker{"MXF", walkMxf, true, " MXF "},
    Walker{"RealMedia", walkRealMedia, true, " RM RMVB RA RAM RV "},
    Walker{"IVF", walkIvf, true, " IVF "},
    Walker{"YUV4MPEG2", walkYuv4Mpeg, true, " Y4M "},
    Walker{"DV", walkDv, false, " DV DIF "},
    Walker{"AMV", walkAmv, false, " AMV "},
    Walker{"GXF", walkGxf, true, " GXF "},
    Walker{"Smacker", walkSmacker, true, " SMK "},
    Walker{"FLAC", walkFlac, true, " FLAC FLA "},
    Walker{"Ogg", walkOgg, true, " OGG OGA OGV OGX OPUS SPX OGM "},
    Walker{"AMR", walkAmr, true, " AMR AWB "},
    Walker{"AU", walkAu, true, " AU SND "},
    Walker{"MIDI", walkMidi, true, " MID MIDI KAR "},
    Walker{"Monkey's Audio", walkMonkeysAudio, true, " APE MAC "},
    Walker{"Musepack", walkMusepack, true, " MPC MP+ "},
    Walker{"Core Audio", walkCoreAudio, true, " CAF "},
    Walker{"Creative Voice", walkVoice, true, " VOC "},
    Walker{"True Audio", walkTrueAudio, true, " TTA "},
    Walker{"WavPack", walkWavPack, true, " WV WVC "},
    Walker{"Extended Module", walkExtendedModule, true, " XM "},
    Walker{"SPC", walkConsoleSound, true, " SPC "},
    Walker{"MPEG program stream", walkMpegPs, true, " MPG MPEG VOB MOD MPE M2P EVO TOD "},
    Walker{"MPEG transport stream", walkMpegTs, false, " TS M2TS MTS M2T TRP TP "},
    Walker{"MPEG video", walkMpegVideo, true, " M1V M2V MPV "},
    Walker{"MPEG audio", walkMpegAudio, false, " MP3 MP2 MP1 MPA M2A "},
    Walker{"ADTS", walkAdts, false, " AAC ADTS "},
    Walker{"AC-3", walkAc3, false, " AC3 EAC3 EC3 "},
    Walker{"DTS", walkDts, false, " DTS "},
    Walker{"PDF", walkPdf, true, " PDF AI "},
    Walker{
        "ZIP", walkZip, true,
        " ZIP DOCX DOCM DOTX XLSX XLSM XLTX XLSB PPTX PPTM PPSX POTX ODT ODS ODP ODG ODF ODB OTT EPUB JAR "
        "APK XPS "
        "OXPS KMZ PAGES NUMBERS KEY VSDX CBZ IPA WAR XPI SKETCH 3MF WHL SXW SXC SXI SXD SXM IDML ODC ODI ODM "
        "OTG OTH OTP OTS ORA KRA XD GGB SB3 FCSTD NPZ ASICE "},
    Walker{"gzip", walkGzip, true, " GZ TGZ SVGZ EMZ BAM "},
    Walker{"bzip2", walkBzip2, true, " BZ2 TBZ TBZ2 "},
    Walker{"xz", walkXz, true, " XZ TXZ "},
    Walker{"LZ4", walkLz4, true, " LZ4 "},
    Walker{"Zstandard", walkZstandard, true, " ZST TZST "},
    Walker{"lzip", walkLzip, true, " LZ TLZ "},
    Walker{"lzop", walkLzop, true, " LZO "},
    Walker{"RAR", walkRar, true, " RAR CBR REV "},
    Walker{"7z", walkSevenZip, true, " 7Z CB7 "},
    Walker{"tar", walkTar, true, " TAR "},
    Walker{"ar", walkAr, true, " A AR LIB DEB "},
    Walker{"cpio", walkCpio, true, " CPIO "},
    Walker{"CAB", walkCab, true, " CAB "},
    Walker{"ARJ", walkArj, false, " ARJ "},
    Walker{"LZH", walkLzh, true, " LZH LHA "},
    Walker{"RPM", walkRpm, true, " RPM "},
    Walker{"PAR2", walkRepairData, true, " PAR2 "},
    Walker{"Disc image", walkDiscImage, false, " ISO "},
    Walker{"Apple disk image", walkAppleDiskImage, false, " DMG "},
    Walker{"Windows image", walkWindowsImage, true, " WIM SWM ESD "},
    Walker{"Sparse image", walkSparseImage, true, " SIMG "},
    Walker{"Evidence image", walkEvidence, true, " E01 "},
    Walker{"Packed disc", walkPackedDisc, true, " CSO "},
    Walker{"VirtualBox disk", walkVirtualBoxDisk, true, " VDI "},
    Walker{"Virtual PC disk", walkVirtualPcDisk, false, " VHD "},
    Walker{"OLE2", walkCompoundFile, true,
           " DOC DOT XLS XLT PPT PPS POT MSG VSD PUB MPP FPX MSI DB OFT WPS XLA SUO MAX HWP "},
    Walker{"SQLite", walkSqlite, true, " SQLITE SQLITE3 DB3 GPKG MBTILES "},
    Walker{"PST", walkPst, true, " PST OST PAB "},
    Walker{"Jet database", walkJetDatabase, true, " MDB ACCDB MDE "},
    Walker{"Palm database", walkPalmDatabase, true, " MOBI AZW AZW3 PRC PDB "},
    Walker{"Executable", walkExecutable, false, " EXE DLL SYS OCX SCR COM "},
    Walker{"ELF", walkElf, true, " ELF SO O "},
    Walker{"Mach-O", walkMachO, false, " MACHO DYLIB "},
    Walker{"WebAssembly", walkWebAssembly, true, " WASM "},
    Walker{"Java class", walkJavaClass, true, " CLASS "},
    Walker{"Translations", walkTranslations, false, " MO GMO "},
    Walker{"pcap", walkPcap, true, " PCAP "},
    Walker{"pcapng", walkPcapNg, true, " PCAPNG "},
    Walker{"Weather data", walkWeather, false, " GRIB GRB GRIB2 BUFR "},
    Walker{"Laser scan", walkLaserScan, false, " LAS "},
    Walker{"KeePass", walkPasswordSafe, false, " KDBX "},
    Walker{"Certificate", walkCertificate, false, " CER DER PFX P12 P7M P7B P7S P7C "},
    Walker{"Torrent", walkTorrent, false, " TORRENT "},
    Walker{"Lotus", walkLotus, false, " WK1 WK3 WK4 123 "},
    Walker{"Font", walkFont, true, " TTF OTF TTC OTC "},
    Walker{"PFB", walkPackedType1, true, " PFB "},
    Walker{"Blender", walkBlend, false, " BLEND "},
    Walker{"Drawing", walkDrawing, true, " DWG DWT "},
    Walker{"GDSII", walkChipLayout, false, " GDS "},
    Walker{"Unity data", walkUnityData, true, " UNITY3D "},
    Walker{"Told length", walkToldLength, true,
           " WOFF WOFF2 DEX DTB ICC ICM GLB MD2 MD3 EVTX HLP BRSTM MMF VGM SHP EMF WMF SIT PF MPQ WPD "
           "BIK BK2 BLF MED FIT FLC FLI CRAMFS UIMAGE ONE ONETOC2 WRI VOX "},
    Walker{"Long told length", walkLongToldLength, true, " HDF5 H5 E57 ROOT DSF DFF W64 "},
    Walker{"DisplayWrite", walkDisplayWrite, true, " FFT DCA "},
    Walker{"CHM", walkChm, true, " CHM "},
    Walker{"DjVu", walkDjvu, true, " DJVU DJV "},
    Walker{"Shell link", walkShellLink, true, " LNK "},
    Walker{"PostScript", walkPostScript, true, " PS EPS EPSF "},
    Walker{"RTF", walkRtf, true, " RTF "},
    Walker{"XML", walkXml, false,
           " XML SVG XMP GPX KML PLIST XSL XSD RSS FB2 XHTML WPL ABW AMF ATOM CML CSPROJ DAE DBK DRAWIO ENEX "
           "FCPXML FDX FODT GML GRAPHML JMX KDENLIVE MM MPD MUSICXML MZML NZB OPML OSM QGS QRC SBML TCX TTML "
           "UI X3D XLF XSPF ASX AUP BRD JNLP "},
    Walker{"HTML", walkHtml, false, " HTML HTM XHT MHT "},
    Walker{"vCard", walkContacts, true, " VCF VCARD "},
    Walker{"iCalendar", walkCalendar, true, " ICS IFB VCS "},
    Walker{"Marked text", walkMarkedText, false, " BDF DXF IDX OFF "},
    Walker{
        "Text", walkText, false,
        " TXT EML MBOX CSV LOG INI JSON MD C H CPP HPP PY SH BAT JS CSS SQL TEX SRT SUB ASS M3U PLS NFO "
        "PHP PL JAVA TSV YAML YML AFM CCD CUBE CUE DIFF GCODE GPL IMY IPYNB LDIF OBJ OFX ORG PEM PGN PO QIF "
        "RIS SGF URL USDA VTT ASC ASPX BAS BIB CIF DESKTOP ENW FASTA FRM GBR GFF HQX IGS INF JDX JSP LRC LWS "
        "LY MIF MOL2 MSF NB NMEA PBXPROJ PCB PFA PPD PPK RB REG RPP SFD SHAR SLK SLN SMI STEP UU VBP VNT WRL "
        "X_T "},
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

// The walkers: one function a format, each from the file's first byte. All behave alike:
// - Unknown when the first bytes are not of the format, or when nothing in the format tells the end;
// - never an end beyond the source, no allocation by a size read from the file, no recursion by its depth;
// - time in proportion to the structures met, and at most ByteView's cap of bytes read.
#pragma once

#include "formats/ByteView.h"

namespace vantor {

// Pictures.
Extent walkJpeg(ByteView& view);  // JPEG, multi-picture files, motion photos
Extent walkPng(ByteView& view);   // PNG, APNG, MNG, JNG
Extent walkGif(ByteView& view);
Extent walkBmp(ByteView& view);
Extent walkTiff(ByteView& view);      // TIFF, BigTIFF, DNG, NEF, CR2, ARW, PEF, ORF, RW2, SRW …, JPEG XR
Extent walkPsd(ByteView& view);       // PSD, PSB
Extent walkJpeg2000(ByteView& view);  // JP2 family and bare codestreams
Extent walkJpegXl(ByteView& view);    // in boxes; a bare stream is Unknown
Extent walkIcon(ByteView& view);      // ICO, CUR
Extent walkIcns(ByteView& view);
Extent walkPcx(ByteView& view);
Extent walkTga(ByteView& view);
Extent walkDds(ByteView& view);
Extent walkXcf(ByteView& view);
Extent walkAnyMap(ByteView& view);  // PBM, PGM, PPM in bytes
Extent walkFloatMap(ByteView& view);
Extent walkSgi(ByteView& view);
Extent walkRadiance(ByteView& view);  // also the text that bears the same ending
Extent walkQoi(ByteView& view);
Extent walkOpenExr(ByteView& view);
Extent walkDpx(ByteView& view);
Extent walkCineon(ByteView& view);
Extent walkKtx(ByteView& view);  // versions 1 and 2
Extent walkAstc(ByteView& view);
Extent walkPaintShopPro(ByteView& view);
Extent walkSunRaster(ByteView& view);
Extent walkPam(ByteView& view);
Extent walkFits(ByteView& view);
Extent walkNifti(ByteView& view);
Extent walkMrc(ByteView& view);
Extent walkXpm(ByteView& view);
Extent walkRaf(ByteView& view);
Extent walkMrw(ByteView& view);
Extent walkCrw(ByteView& view);
Extent walkX3f(ByteView& view);

// Containers of picture, sound and movie.
Extent walkIsoMedia(ByteView& view);  // MP4, MOV, 3GP, M4A, HEIF, AVIF, CR3
Extent walkRiff(ByteView& view);      // AVI, WAV, WebP, RF64; AIFF and other IFF
Extent walkMatroska(ByteView& view);  // MKV, WebM, MKA
Extent walkAsf(ByteView& view);       // ASF, WMV, WMA
Extent walkFlv(ByteView& view);
Extent walkSwf(ByteView& view);
Extent walkMxf(ByteView& view);
Extent walkRealMedia(ByteView& view);
Extent walkIvf(ByteView& view);
Extent walkYuv4Mpeg(ByteView& view);
Extent walkDv(ByteView& view);
Extent walkAmv(ByteView& view);
Extent walkGxf(ByteView& view);
Extent walkSmacker(ByteView& view);

// Streams.
Extent walkMpegTs(ByteView& view);     // TS, M2TS, MTS
Extent walkMpegPs(ByteView& view);     // MPG, VOB, MOD
Extent walkMpegVideo(ByteView& view);  // bare MPEG-1/2 video
Extent walkMpegAudio(ByteView& view);  // MP1, MP2, MP3 with their tags
Extent walkAdts(ByteView& view);       // AAC
Extent walkAc3(ByteView& view);        // AC-3, E-AC-3
Extent walkDts(ByteView& view);
Extent walkAmr(ByteView& view);
Extent walkFlac(ByteView& view);
Extent walkOgg(ByteView& view);
Extent walkAu(ByteView& view);
Extent walkMidi(ByteView& view);
Extent walkMonkeysAudio(ByteView& view);  // APE
Extent walkMusepack(ByteView& view);      // MPC, versions 7 and 8
Extent walkCoreAudio(ByteView& view);     // CAF
Extent walkVoice(ByteView& view);         // VOC
Extent walkTrueAudio(ByteView& view);     // TTA
Extent walkWavPack(ByteView& view);
Extent walkExtendedModule(ByteView& view);  // XM
Extent walkConsoleSound(ByteView& view);    // SPC

// Documents and archives.
Extent walkPdf(ByteView& view);
Extent walkZip(ByteView& view);  // ZIP, office documents, EPUB, packages
Extent walkGzip(ByteView& view);
Extent walkBzip2(ByteView& view);
Extent walkXz(ByteView& view);
Extent walkLz4(ByteView& view);
Extent walkZstandard(ByteView& view);
Extent walkLzip(ByteView& view);
Extent walkLzop(ByteView& view);
Extent walkRar(ByteView& view);  // versions 4 and 5
Extent walkSevenZip(ByteView& view);
Extent walkTar(ByteView& view);
Extent walkAr(ByteView& view);
Extent walkCpio(ByteView& view);
Extent walkCab(ByteView& view);
Extent walkArj(ByteView& view);
Extent walkLzh(ByteView& view);
Extent walkCompoundFile(ByteView& view);  // OLE2: DOC, XLS, PPT, MSG, FPX …
Extent walkSqlite(ByteView& view);
Extent walkPst(ByteView& view);
Extent walkJetDatabase(ByteView& view);   // MDB, ACCDB
Extent walkPalmDatabase(ByteView& view);  // MOBI, AZW
Extent walkExecutable(ByteView& view);    // PE, DOS
Extent walkElf(ByteView& view);
Extent walkMachO(ByteView& view);
Extent walkWebAssembly(ByteView& view);
Extent walkJavaClass(ByteView& view);
Extent walkTranslations(ByteView& view);    // MO
Extent walkDiscImage(ByteView& view);       // ISO 9660, also from its volume record on
Extent walkAppleDiskImage(ByteView& view);  // DMG
Extent walkWindowsImage(ByteView& view);    // WIM
Extent walkSparseImage(ByteView& view);     // of Android
Extent walkEvidence(ByteView& view);        // E01
Extent walkPackedDisc(ByteView& view);      // CSO
Extent walkVirtualBoxDisk(ByteView& view);  // VDI
Extent walkVirtualPcDisk(ByteView& view);   // VHD of growing size
Extent walkRpm(ByteView& view);
Extent walkRepairData(ByteView& view);  // PAR2
Extent walkPcap(ByteView& view);
Extent walkPcapNg(ByteView& view);
Extent walkWeather(ByteView& view);       // GRIB, BUFR
Extent walkPasswordSafe(ByteView& view);  // KDBX, version 4
Extent walkUnityData(ByteView& view);
Extent walkChm(ByteView& view);
Extent walkDjvu(ByteView& view);
Extent walkDisplayWrite(ByteView& view);  // and other documents of IBM's Document Content Architecture
Extent walkShellLink(ByteView& view);     // LNK
Extent walkPostScript(ByteView& view);    // PS, EPS
Extent walkRtf(ByteView& view);
Extent walkXml(ByteView& view);  // XML, SVG; hands HTML on
Extent walkHtml(ByteView& view);
Extent walkContacts(ByteView& view);    // VCF
Extent walkCalendar(ByteView& view);    // ICS
Extent walkText(ByteView& view);        // anything until the first control byte
Extent walkMarkedText(ByteView& view);  // BDF, DXF, IDX, OFF where they are text
Extent walkTorrent(ByteView& view);
Extent walkCertificate(ByteView& view);  // CER, PFX, P7M
Extent walkLotus(ByteView& view);        // WK1 to 123
Extent walkFont(ByteView& view);         // TTF, OTF, TTC
Extent walkPackedType1(ByteView& view);  // PFB
Extent walkBlend(ByteView& view);
Extent walkDrawing(ByteView& view);     // DWG from R13 on
Extent walkChipLayout(ByteView& view);  // GDS
Extent walkDicom(ByteView& view);
Extent walkLaserScan(ByteView& view);  // LAS
Extent walkNitf(ByteView& view);
Extent walkToldLength(ByteView& view);      // many formats whose header gives the file's length
Extent walkLongToldLength(ByteView& view);  // and those whose files may be of gigabytes

// Behind the ISO media boxes that begin at `start`, for formats that carry a movie; `start` when there are
// none.
std::uint64_t endOfIsoBoxes(ByteView& view, std::uint64_t start);

}  // namespace vantor

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

// Streams.
Extent walkMpegTs(ByteView& view);     // TS, M2TS, MTS
Extent walkMpegPs(ByteView& view);     // MPG, VOB, MOD
Extent walkMpegVideo(ByteView& view);  // bare MPEG-1/2 video
Extent walkMpegAudio(ByteView& view);  // MP1, MP2, MP3 with their tags
Extent walkAdts(ByteView& view);       // AAC
Extent walkAc3(ByteView& view);        // AC-3, E-AC-3
Extent walkAmr(ByteView& view);
Extent walkFlac(ByteView& view);
Extent walkOgg(ByteView& view);
Extent walkAu(ByteView& view);
Extent walkMidi(ByteView& view);
Extent walkMonkeysAudio(ByteView& view);  // APE
Extent walkMusepack(ByteView& view);      // MPC, versions 7 and 8
Extent walkCoreAudio(ByteView& view);     // CAF
Extent walkVoice(ByteView& view);         // VOC

// Documents and archives.
Extent walkPdf(ByteView& view);
Extent walkZip(ByteView& view);  // ZIP, office documents, EPUB, packages
Extent walkGzip(ByteView& view);
Extent walkBzip2(ByteView& view);
Extent walkXz(ByteView& view);
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
Extent walkChm(ByteView& view);
Extent walkDjvu(ByteView& view);
Extent walkShellLink(ByteView& view);   // LNK
Extent walkPostScript(ByteView& view);  // PS, EPS
Extent walkRtf(ByteView& view);
Extent walkXml(ByteView& view);  // XML, SVG; hands HTML on
Extent walkHtml(ByteView& view);
Extent walkContacts(ByteView& view);  // VCF
Extent walkCalendar(ByteView& view);  // ICS
Extent walkText(ByteView& view);      // anything until the first control byte

// Behind the ISO media boxes that begin at `start`, for formats that carry a movie; `start` when there are
// none.
std::uint64_t endOfIsoBoxes(ByteView& view, std::uint64_t start);

}  // namespace vantor

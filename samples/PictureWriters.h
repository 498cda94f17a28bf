// Pictures written in every format that is simple enough to be written exactly.
#pragma once

#include <QByteArray>
#include <vector>

#include "samples/Canvas.h"

namespace vantor::samples {

QByteArray pngFile(const Picture& picture);                                      // ISO/IEC 15948, true colour
QByteArray animatedPngFile(const std::vector<Picture>& frames);                  // the same with APNG chunks
QByteArray gifFile(const std::vector<Picture>& frames, int hundredthsPerFrame);  // GIF89a, 6 × 6 × 6 colours
QByteArray bmpFile(const Picture& picture);                                      // 24 bits, bottom row first
QByteArray tiffFile(const Picture& picture);           // TIFF 6.0, uncompressed strips, "II"
QByteArray bigEndianTiffFile(const Picture& picture);  // the same, "MM"
QByteArray dngFile(const Picture& picture);            // Adobe DNG 1.1, 16-bit colour filter array
QByteArray ppmFile(const Picture& picture);            // P6
QByteArray pgmFile(const Picture& picture);            // P5
QByteArray tgaFile(const Picture& picture);            // 24 bits, with the TRUEVISION footer
QByteArray pcxFile(const Picture& picture);            // version 5, three planes, run lengths
QByteArray sgiFile(const Picture& picture);            // uncompressed planes
QByteArray qoiFile(const Picture& picture);
QByteArray psdFile(const Picture& picture);             // one flattened layer, uncompressed
QByteArray icoFile(const std::vector<Picture>& sizes);  // 32-bit bitmaps
QByteArray webpFile(const Picture& picture);            // lossless, literals only
QByteArray xpmFile(const Picture& picture);
QByteArray icnsFile(const Picture& picture256);    // one PNG of 256 × 256
QByteArray curFile(const Picture& picture);        // a cursor of one size, 32-bit
QByteArray psbFile(const Picture& picture);        // as the PSD, in the large form
QByteArray pbmFile(const Picture& picture);        // P4
QByteArray pamFile(const Picture& picture);        // P7
QByteArray pfmFile(const Picture& picture);        // PF, little-endian floats
QByteArray radianceFile(const Picture& picture);   // HDR without run lengths
QByteArray fitsFile(const Picture& picture);       // FITS 4.0, grey bytes
QByteArray sunRasterFile(const Picture& picture);  // RAS, 24 bits
QByteArray ddsFile(const Picture& picture);        // DirectDraw surface, 24 bits
QByteArray ktxFile(const Picture& picture);        // KTX 1, one level; rows of whole words
QByteArray lbmFile(const Picture& picture);        // Amiga ILBM, 24 planes
QByteArray dpxFile(const Picture& picture);        // SMPTE ST 268, 8 bits
QByteArray miffFile(const Picture& picture);
QByteArray jngFile(const Picture& picture);             // a JPEG in PNG's chunks
QByteArray dcxFile(const std::vector<Picture>& pages);  // PCX pages
// Several JPEG files in one, indexed by the first (CIPA DC-007).
QByteArray mpoFile(const Picture& left, const Picture& right);

// A chunk of PNG and its kin: length, type, content, checksum.
QByteArray pngChunk(const char* type, const QByteArray& content);

}  // namespace vantor::samples

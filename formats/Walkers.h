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
Extent walkTiff(ByteView& view);  // TIFF, BigTIFF, DNG, NEF, CR2, ARW, PEF, ORF, RW2, SRW …, JPEG XR

// Containers of picture, sound and movie.
Extent walkIsoMedia(ByteView& view);  // MP4, MOV, 3GP, M4A, HEIF, AVIF, CR3
Extent walkRiff(ByteView& view);      // AVI, WAV, WebP, RF64; AIFF and other IFF

// Documents and archives.
Extent walkPdf(ByteView& view);
Extent walkZip(ByteView& view);  // ZIP, office documents, EPUB, packages

// Behind the ISO media boxes that begin at `start`, for formats that carry a movie; `start` when there are
// none.
std::uint64_t endOfIsoBoxes(ByteView& view, std::uint64_t start);

}  // namespace vantor

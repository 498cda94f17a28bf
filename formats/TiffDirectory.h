// Reading of TIFF image file directories, shared by TIFF itself, the camera raw formats built on it, and Exif
// blocks inside other formats. Source: TIFF 6.0 (1992), BigTIFF, Exif 2.32.
#pragma once

#include <cstdint>
#include <optional>

#include "formats/ByteView.h"

namespace vantor {

// Tags that more than one reader asks for.
inline constexpr std::uint16_t kTiffWidth = 256;
inline constexpr std::uint16_t kTiffHeight = 257;
inline constexpr std::uint16_t kTiffExif = 34665;

// The start of a TIFF structure. `base` is what its offsets count from.
struct TiffHeader {
    std::uint64_t base = 0;
    Endian endian = Endian::Big;
    bool big = false;                  // BigTIFF: 64-bit offsets
    std::uint16_t magic = 42;          // 42, 43, or a camera maker's own number
    std::uint64_t firstDirectory = 0;  // relative to base
};

struct TiffEntry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint64_t count = 0;
    std::uint64_t valueAt = 0;     // absolute position of the value's first byte
    std::uint64_t valueBytes = 0;  // length of the value; 0 for an unknown type
    bool isInline = false;         // the value stands in the entry itself
};

struct TiffDirectory {
    std::uint64_t at = 0;  // absolute
    std::uint64_t entries = 0;
    std::uint64_t end = 0;  // absolute, behind the link to the next directory
};

std::optional<TiffHeader> readTiffHeader(ByteView& view, std::uint64_t base);

// The entry count of the directory at absolute position `at`; nothing when it cannot be one.
std::optional<TiffDirectory> readTiffDirectory(ByteView& view, const TiffHeader& header, std::uint64_t at);
std::optional<TiffEntry> readTiffEntry(ByteView& view, const TiffHeader& header,
                                       const TiffDirectory& directory, std::uint64_t index);
// Link to the next directory, relative to base; 0 = last, nothing = unreadable.
std::optional<std::uint64_t> readTiffNext(ByteView& view, const TiffHeader& header,
                                          const TiffDirectory& directory);

// Element `index` of an entry with an unsigned integer type.
std::optional<std::uint64_t> readTiffNumber(ByteView& view, const TiffHeader& header, const TiffEntry& entry,
                                            std::uint64_t index);

// Adds the date (and, where the directories tell it, the pixel size) of the TIFF structure at `base`. Quietly
// adds nothing where there is none.
void addTiffFacts(ByteView& view, std::uint64_t base, Facts& facts);

}  // namespace vantor

// Formats whose header says how long the file is: a mark, and where the number stands. A line a format.
// Sources: WOFF 1.0 and 2.0 (W3C); Dalvik executable format (Android); Devicetree Specification 0.4;
// ICC.1:2010; glTF 2.0 (Khronos); [MS-ONESTORE]; [MS-EMF]; [MS-WMF]; public descriptions of MD2, MD3, HLP,
// EVTX, prefetch, StuffIt, WordPerfect 6, Word 2, Write, MPQ, Bink, FLIC, VOX, VGM and MED files; SMAF; ESRI
// shapefile description; FIT protocol; cramfs and U-Boot documentation; HDF5 File Format 3.0; ASTM E2807
// (E57); ROOT file description; DSF 1.01; DSDIFF 1.5; Sony Wave64.
#include <array>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr auto kBig = Endian::Big;
constexpr auto kLittle = Endian::Little;

struct Mark {
    std::uint64_t at;
    std::string_view bytes;
};

struct ToldLength {
    Mark first, second;
    std::uint64_t at;   // of the number
    std::size_t bytes;  // it takes
    Endian endian;
    std::uint64_t least;      // a smaller number is none: a writer that never came back to fill it in
    std::uint64_t unit = 1;   // bytes it counts
    std::uint64_t apart = 0;  // bytes it does not count
};

constexpr std::string_view operator""_b(const char* text, std::size_t length) {
    return {text, length};
}

constexpr std::array kFiles = {
    ToldLength{{0, "wOFF\0\1\0\0"_b}, {}, 8, 4, kBig, 44},
    ToldLength{{0, "wOFFOTTO"}, {}, 8, 4, kBig, 44},
    ToldLength{{0, "wOF2\0\1\0\0"_b}, {}, 8, 4, kBig, 48},
    ToldLength{{0, "wOF2OTTO"}, {}, 8, 4, kBig, 48},
    ToldLength{{0, "dex\n0"}, {40, "\x78\x56\x34\x12"}, 32, 4, kLittle, 112},
    ToldLength{{0, "\xD0\x0D\xFE\xED"}, {20, "\0\0\0\x11"_b}, 4, 4, kBig, 40},  // flattened device tree
    ToldLength{{36, "acsp"}, {}, 0, 4, kBig, 132},                              // colour profile
    ToldLength{{0, "glTF\2\0\0\0"_b}, {}, 8, 4, kLittle, 20},
    ToldLength{{0, "IDP2\x08\0\0\0"_b}, {}, 64, 4, kLittle, 68},
    ToldLength{{0, "IDP3\x0F\0\0\0"_b}, {}, 104, 4, kLittle, 108},
    ToldLength{{0, "ElfFile\0"_b}, {32, "\x80\0\0\0"_b}, 42, 2, kLittle, 1, 65536, 4096},
    ToldLength{{0, "?_\3\0"_b}, {}, 12, 4, kLittle, 16},  // Windows help
    ToldLength{{0, "RSTM\xFE\xFF"}, {}, 8, 4, kBig, 64},
    ToldLength{{0, "MMMD"}, {8, "CNTI"}, 4, 4, kBig, 16, 1, 8},
    ToldLength{{0, "Vgm "}, {}, 4, 4, kLittle, 60, 1, 4},
    ToldLength{{0, "\0\0\x27\x0A\0\0\0\0"_b}, {28, "\xE8\3\0\0"_b}, 24, 4, kBig, 50, 2},  // shapes of a map
    ToldLength{{40, " EMF\0\0\1\0"_b}, {0, "\1\0\0\0"_b}, 48, 4, kLittle, 108},
    ToldLength{{0, "\xD7\xCD\xC6\x9A\0\0"_b}, {24, "\x09\0"_b}, 28, 4, kLittle, 12, 2, 22},  // metafile
    ToldLength{{0, "SIT!"}, {10, "rLau"}, 6, 4, kBig, 22},
    ToldLength{{0, "StuffIt (c)1997"}, {}, 84, 4, kBig, 100},
    ToldLength{{4, "SCCA"}, {1, "\0\0\0"_b}, 12, 4, kLittle, 84},  // prefetch
    ToldLength{{0, "MPQ\x1A\x20\0\0\0"_b}, {}, 8, 4, kLittle, 32},
    ToldLength{{0, "\xFFWPC"}, {9, "\x0A\2"}, 20, 4, kLittle, 32},  // WordPerfect 6 and later
    ToldLength{{0, "BIK"}, {}, 4, 4, kLittle, 44, 1, 8},
    ToldLength{{0, "KB2"}, {}, 4, 4, kLittle, 44, 1, 8},
    ToldLength{{4, "\x11\xAF"}, {12, "\x08\0"_b}, 0, 4, kLittle, 144},  // Animator, two generations
    ToldLength{{4, "\x12\xAF"}, {12, "\x08\0"_b}, 0, 4, kLittle, 144},
    ToldLength{{0, "\xDB\xA5\x2D\0"_b}, {}, 32, 4, kLittle, 384},         // Word 2
    ToldLength{{0, "\x31\xBE\0\0\0\xAB"_b}, {}, 96, 2, kLittle, 2, 128},  // Write, in pages
    ToldLength{{0, "\x32\xBE\0\0\0\xAB"_b}, {}, 96, 2, kLittle, 2, 128},
    ToldLength{{0, "VOX \x96\0\0\0"_b}, {8, "MAIN\0\0\0\0"_b}, 16, 4, kLittle, 12, 1, 20},
    ToldLength{{0, "LOGG\x90\0\0\0"_b}, {}, 16, 8, kLittle, 144},
    ToldLength{{0, "MMD0"}, {}, 4, 4, kBig, 52},
    ToldLength{{0, "MMD1"}, {}, 4, 4, kBig, 52},
    ToldLength{{0, "MMD2"}, {}, 4, 4, kBig, 52},
    ToldLength{{8, ".FIT"}, {0, "\x0E"}, 4, 4, kLittle, 1, 1, 16},  // header and checksum are not counted
    ToldLength{{8, ".FIT"}, {0, "\x0C"}, 4, 4, kLittle, 1, 1, 14},
    ToldLength{{0, "\x45\x3D\xCD\x28"}, {16, "Compressed ROMFS"}, 4, 4, kLittle, 76},
    ToldLength{{0, "\x27\x05\x19\x56"}, {}, 12, 4, kBig, 1, 1, 64},  // boot loader image
    ToldLength{{0, "\xE4\x52\x5C\x7B\x8C\xD8\xA7\x4D\xAE\xB1\x53\x78\xD0\x29\x96\xD3"},
               {},
               196,
               8,
               kLittle,
               1024},  // OneNote section
    ToldLength{{0, "\xA1\x2F\xFF\x43\xD9\xEF\x76\x4C\x9E\xE2\x10\xEA\x57\x22\x76\x5F"},
               {},
               196,
               8,
               kLittle,
               1024}};  // and its contents

// Those that may well be of gigabytes.
constexpr std::array kLargeFiles = {
    ToldLength{{0, "\x89HDF\r\n\x1A\n\0"_b}, {13, "\x08"}, 40, 8, kLittle, 96},
    ToldLength{{0, "\x89HDF\r\n\x1A\n\1"_b}, {13, "\x08"}, 44, 8, kLittle, 96},
    ToldLength{{0, "\x89HDF\r\n\x1A\n\2\x08"_b}, {}, 28, 8, kLittle, 48},
    ToldLength{{0, "\x89HDF\r\n\x1A\n\3\x08"_b}, {}, 28, 8, kLittle, 48},
    ToldLength{{0, "ASTM-E57"}, {}, 16, 8, kLittle, 1024},
    ToldLength{{0, "root\0\0"_b}, {8, "\0\0\0\x64"_b}, 12, 4, kBig, 100},
    ToldLength{{0, "DSD \x1C\0\0\0\0\0\0\0"_b}, {28, "fmt "}, 12, 8, kLittle, 92},
    ToldLength{{0, "FRM8"}, {12, "DSD "}, 4, 8, kBig, 64, 1, 12},
    ToldLength{{0, "riff\x2E\x91\xCF\x11\xA5\xD6\x28\xDB\4\xC1\0\0"_b}, {24, "wave"}, 16, 8, kLittle, 104}};

template <std::size_t Count>
Extent endToldBy(ByteView& view, const std::array<ToldLength, Count>& formats) {
    for (const ToldLength& format : formats) {
        if (!view.matches(format.first.at, format.first.bytes) ||
            !view.matches(format.second.at, format.second.bytes))
            continue;
        const auto told = view.number(format.at, format.bytes, format.endian);
        if (!told)
            return cutOffAt(view, view.size());
        if (*told < format.least || *told == 0xFFFFFFFF)
            return unknownExtent();
        return completeAt(view, addClamped(mulClamped(*told, format.unit), format.apart));
    }
    return unknownExtent();
}

}  // namespace

Extent walkToldLength(ByteView& view) {
    return endToldBy(view, kFiles);
}

Extent walkLongToldLength(ByteView& view) {
    return endToldBy(view, kLargeFiles);
}

}  // namespace vantor

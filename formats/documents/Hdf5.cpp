// Data of scientists. Source: HDF5 File Format 3.0.
#include "formats/ToldLength.h"

namespace vantor {

namespace {

// Those of Matlab have a line of text in front, which counts.
constexpr ToldLength kHdf5Forms[] = {
    {{0, "MATLAB 7"}, {512, "\x89HDF\r\n\x1A\n\0"_b}, 512 + 40, 8, Endian::Little, 512 + 96},
    {{0, "MATLAB 7"}, {512, "\x89HDF\r\n\x1A\n\2\x08"_b}, 512 + 28, 8, Endian::Little, 512 + 48},
    {{0, "\x89HDF\r\n\x1A\n\0"_b}, {13, "\x08"}, 40, 8, Endian::Little, 96},
    {{0, "\x89HDF\r\n\x1A\n\1"_b}, {13, "\x08"}, 44, 8, Endian::Little, 96},
    {{0, "\x89HDF\r\n\x1A\n\2\x08"_b}, {}, 28, 8, Endian::Little, 48},
    {{0, "\x89HDF\r\n\x1A\n\3\x08"_b}, {}, 28, 8, Endian::Little, 48},
};

}  // namespace

extern constexpr Format kHdf5 = {
    .name = "HDF5",
    .group = Group::Documents,
    .walk = walkToldLength<kHdf5Forms>,
    .extensions = " HDF5 H5 ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

// One small whole file of every format, made by hand, so that the walkers are tested where no real files are.
#pragma once

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "Build.h"

namespace vantor::test {

struct Sample {
    std::string extension;
    Bytes bytes;
    bool marked = true;  // the format marks its end: Complete must be exact
    // The format does not mark its end, but tells how far it reaches: a cut file is never Complete.
    bool cutShows = false;
};

inline void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.extension;
}

std::vector<Sample> pictureSamples();
std::vector<Sample> movieSamples();
std::vector<Sample> soundSamples();
std::vector<Sample> archiveSamples();
std::vector<Sample> documentSamples();
std::vector<Sample> rasterSamples();
std::vector<Sample> recordSamples();
std::vector<Sample> toldLengthSamples();
std::vector<Sample> drawingSamples();
std::vector<Sample> modelSamples();
std::vector<Sample> moduleSamples();
std::vector<Sample> tableSamples();
std::vector<Sample> scienceSamples();
std::vector<Sample> allSamples();

// Building blocks that single tests use as well.
Bytes isoBox(std::string_view name, const Bytes& body);
Bytes pngChunk(std::string_view name, const Bytes& body);
Bytes riffChunk(std::string_view name, const Bytes& body);
Bytes jpeg(const Bytes& segments = {}, const Bytes& entropy = {0x12, 0x34, 0xFF, 0x00, 0x56});
// C source of an X bitmap with these numbers.
Bytes xBitmap(int width, int height, std::string_view numbers);
// A table of dBASE with two records of five letters.
Bytes dbaseTable();
// An image of a SquashFS that uses 300 bytes, without filling.
Bytes squashfs();
// A container of CRAM with its places of slices and bytes.
Bytes cramContainer(std::uint64_t records, const Bytes& landmarks, std::size_t bytes);
// The signature, a container and the one that ends the file.
Bytes cram();
// Keys of Redis with values of most kinds, up to the end mark before the sum.
Bytes redisValues();
// A store of R of two objects.
Bytes rStore();
// A design of a head and a line, up to its last word.
Bytes designFile();
// A TIFF of 4 x 4 grey pixels with a date.
Bytes tiff(bool little = true);
// Drawings of R2000, R2013 and R2007.
Bytes placedDrawing();
Bytes maskedDrawing();
Bytes packedDrawing();
// A header of FITS, padded to its block.
Bytes fitsCards(std::initializer_list<std::string_view> cards);
Bytes exrAttribute(std::string_view name, std::string_view type, const Bytes& value);
// The head of a compound file of 512-byte sectors, up to the count of its tables.
Bytes compoundHead();
// One small file, closed and padded to a record of 10,240 bytes.
// Units of H.264 (heads of a byte) or H.265 (of two), each behind a start code.
Bytes codedUnits(std::initializer_list<std::uint64_t> heads, int headBytes);
Bytes tar();
Bytes zipEntry(std::string_view name, const Bytes& content);
Bytes zip(std::string_view name, const Bytes& content, std::string_view comment = {});

}  // namespace vantor::test

// The one place that decides how long a saved file is, with the reasons.
//
// - Complete: the file's own end, before or behind the end of the carved run.
// - Damaged, cut off: the carved run, or up to where the structure still held if that is further. What
//   follows a break may be the rest of the file (one unreadable sector breaks a photo in its middle), so
//   nothing that was carved is given up. Behind the carved run a broken file is believed only up to the
//   length that its kind can plausibly have: a garbled length field must not fill the disk.
// - An end that nothing marks, at a sector that could not be read, is a break.
// - Cut off where the walker was not let see the medium's end: the carved run, for the same reason.
// - Unknown: the carved run as it was published. Zeros at its end stay, since no walker says that they
//   are not the file's.
#include "results/TrueLength.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "formats/Registry.h"
#include "results/MediumBytes.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMebibyte = std::uint64_t{1} << 20;
constexpr std::uint64_t kGibibyte = std::uint64_t{1} << 30;

constexpr std::uint64_t kMostSmallFile = 256 * kMebibyte;
// The longest file of FAT32; cameras split their movies there.
constexpr std::uint64_t kMostLargeFile = 4 * kGibibyte;

// Kinds whose files reach gigabytes; all others are pictures, documents, songs.
constexpr std::array<std::string_view, 26> kLargeKinds = {
    "ISO media", "RIFF",          "Matroska",  "ASF",
    "FLV",       "MXF",           "RealMedia", "MPEG program stream",
    "Ogg",       "MPEG video",    "ZIP",       "MPEG transport stream",
    "gzip",      "bzip2",         "xz",        "RAR",
    "7z",        "tar",           "SQLite",    "PST",
    "CAB",       "Jet database",  "TIFF",      "PSD",
    "FLAC",      "Monkey's Audio"};

constexpr std::array<std::string_view, 15> kLargePackedFiles = {
    "Zstandard",      "LZ4",         "lzip", "lzop", "Disc image", "Windows image",    "Sparse image",
    "Evidence image", "Packed disc", "PAR2", "RPM",  "Unity data", "Long told length", "VirtualBox disk",
    "Virtual PC disk"};
constexpr std::array<std::string_view, 11> kLargeRecordings = {
    "DV", "GXF", "IVF", "YUV4MPEG2", "FITS", "NIfTI", "MRC", "DICOM", "Laser scan", "pcap", "pcapng"};

constexpr std::array<std::string_view, 8> kFrameStreams = {"MPEG program stream",
                                                           "MPEG transport stream",
                                                           "MPEG video",
                                                           "MPEG audio",
                                                           "ADTS",
                                                           "AC-3",
                                                           "AMR",
                                                           "Text"};

// Walkers that recognise files whose end they cannot tell.
constexpr std::array<std::string_view, 11> kMayNotTellEnd = {
    "JPEG XL",     "ISO media",        "RAR",        "OLE2", "TIFF", "PDF",
    "Told length", "Long told length", "Sun raster", "RPM",  "Font"};

template <std::size_t Count>
bool isAmong(const std::array<std::string_view, Count>& names, const Walker* walker) {
    return walker != nullptr && std::find(names.begin(), names.end(), walker->name) != names.end();
}

std::string extensionOf(const QString& type) {
    return type.toUpper().toStdString();
}

}  // namespace

std::uint64_t bytesToKeep(const Extent& extent, const LengthLimits& limits) {
    const std::uint64_t end = std::min(extent.end, limits.view);
    switch (extent.verdict) {
        case Verdict::Complete:
            return end != 0 ? end : limits.carved;
        case Verdict::CutOff:
            if (!limits.viewEndsWithMedium) {
                return limits.carved;
            }
            break;
        case Verdict::Damaged:
            break;
        case Verdict::Unknown:
            return limits.carved;
    }
    return end > limits.mostPlausible ? limits.carved : std::max(end, limits.carved);
}

TrueLength trueLengthOf(const QString& type, MediumBytes& bytes, bool mayGoBeyond) {
    const std::string extension = extensionOf(type);
    const Walker* const walker = walkerFor(extension);
    const bool large = isAmong(kLargeKinds, walker) || isAmong(kLargePackedFiles, walker) ||
                       isAmong(kLargeRecordings, walker);
    const std::uint64_t mostPlausible = large ? kMostLargeFile : kMostSmallFile;
    if (!mayGoBeyond) {
        bytes.limitTo(bytes.carvedBytes());
    } else if (!large) {
        bytes.limitTo(mostPlausible);
    }
    TrueLength length;
    length.extent = walk(extension, bytes);
    if (!length.extent.exactEnd && bytes.isUnreadable(length.extent.end)) {
        length.extent.verdict = Verdict::Damaged;
    }
    length.bytes = bytesToKeep(length.extent,
                               {bytes.carvedBytes(), bytes.size(), bytes.endsWithMedium(), mostPlausible});
    return length;
}

bool isFrameStream(const QString& type) {
    return isAmong(kFrameStreams, walkerFor(extensionOf(type)));
}

bool isCertainlyUnsound(const QString& type, const Extent& extent) {
    const Walker* const walker = walkerFor(extensionOf(type));
    return walker != nullptr && walker->strongMagic && !isAmong(kMayNotTellEnd, walker) &&
           extent.verdict == Verdict::Unknown && extent.facts.width == 0;
}

}  // namespace vantor

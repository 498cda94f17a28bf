// The one place that decides how long a saved file is, with the reasons.
//
// - Complete: the file's own end, before or behind the end of the carved run.
// - Damaged inside, its end found: that end.
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
#include <string>

#include "formats/Registry.h"
#include "results/MediumBytes.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMebibyte = std::uint64_t{1} << 20;
constexpr std::uint64_t kGibibyte = std::uint64_t{1} << 30;

constexpr std::uint64_t kMostSmallFile = 256 * kMebibyte;
// The longest file of FAT32; cameras split their movies there.
constexpr std::uint64_t kMostLargeFile = 4 * kGibibyte;

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
            if (extent.endFound && end != 0) {
                return end;
            }
            break;
        case Verdict::Unknown:
            return limits.carved;
    }
    return end > limits.mostPlausible ? limits.carved : std::max(end, limits.carved);
}

TrueLength trueLengthOf(const QString& type, MediumBytes& bytes, bool mayGoBeyond) {
    const std::string extension = extensionOf(type);
    const Format* const format = formatFor(extension);
    const bool large = format != nullptr && format->large;
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
    const Format* const format = formatFor(extensionOf(type));
    return format != nullptr && format->frameStream;
}

bool isCertainlyUnsound(const QString& type, const Extent& extent) {
    const Format* const format = formatFor(extensionOf(type));
    if (format == nullptr || format->mayNotTellEnd || extent.verdict != Verdict::Unknown) {
        return false;
    }
    // Noise holds the mark of a frame now and then, but no row of them; behind a tag something else may
    // follow.
    const bool isRow = format->frameStream && format->group != Group::Documents;
    return (format->strongMagic || isRow) && extent.end == 0 && extent.facts.width == 0;
}

}  // namespace vantor

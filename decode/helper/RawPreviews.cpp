// Where the directories, or the box, say that a JPEG begins.
#include "decode/helper/RawPreviews.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string_view>

#include "decode/helper/RawDirectories.h"
#include "formats/IsoBox.h"

namespace vantor::decode {

namespace {

// The values of Exif's orientation that cameras write.
QImageIOHandler::Transformations turnOf(std::uint64_t orientation) {
    switch (orientation) {
        case 2:
            return QImageIOHandler::TransformationMirror;
        case 3:
            return QImageIOHandler::TransformationRotate180;
        case 6:
            return QImageIOHandler::TransformationRotate90;
        case 8:
            return QImageIOHandler::TransformationRotate270;
        default:
            return QImageIOHandler::TransformationNone;
    }
}

RawPreviews previewsOfTiff(ByteView& view, const TiffHeader& header) {
    constexpr std::uint16_t kStripAt = 273, kOrientation = 274, kStripBytes = 279, kJpegAt = 513,
                            kJpegBytes = 514;
    RawPreviews previews;
    // Of a directory: a picture in one strip, and one beside the strips.
    std::map<std::size_t, std::array<RawPreviews::Place, 2>> found;
    const auto see = [&](std::size_t directory, const TiffEntry& entry) {
        const std::uint64_t number = readTiffNumber(view, header, entry, 0).value_or(0);
        if (entry.tag == kOrientation && directory == 0) {
            previews.turn = turnOf(number);
        } else if (entry.tag == kStripAt && entry.count == 1) {
            found[directory][0].at = number;
        } else if (entry.tag == kStripBytes && entry.count == 1) {
            found[directory][0].bytes = number;
        } else if (entry.tag == kJpegAt) {
            found[directory][1].at = number;
        } else if (entry.tag == kJpegBytes) {
            found[directory][1].bytes = number;
        }
        return true;
    };
    visitDirectories(view, header, DirectoryScope::All, see);
    for (const auto& [directory, places] : found) {
        previews.places.insert(previews.places.end(), places.begin(), places.end());
    }
    return previews;
}

// Source: the public description of the CR3 format; behind the box's identifier stand eight bytes, then a box
// within.
RawPreviews previewsOfBoxes(ByteView& view) {
    constexpr std::string_view kPreviewBox("\xea\xf4\x2b\x5e\x1c\x98\x4b\x88\xb9\xfb\xb7\xdc\x40\x6e\x4d\x16",
                                           16);
    constexpr std::uint64_t kBytesAt = 44, kJpegAt = 48;
    constexpr int kMostBoxes = 16;
    RawPreviews previews;
    auto box = readIsoBox(view, 0);
    for (int seen = 0; box && !box->toEnd && seen < kMostBoxes; ++seen) {
        if (box->text() == "uuid" && view.matches(box->body, kPreviewBox)) {
            const std::uint64_t bytes = view.be32(box->body + kBytesAt).value_or(0);
            previews.places.push_back({box->body + kJpegAt, bytes});
        }
        box = readIsoBox(view, box->end);
    }
    return previews;
}

}  // namespace

RawPreviews rawPreviews(ByteView& view) {
    const auto header = readTiffHeader(view, 0);
    RawPreviews previews = header                        ? previewsOfTiff(view, *header)
                           : view.matches(4, "ftypcrx ") ? previewsOfBoxes(view)
                                                         : RawPreviews();
    std::erase_if(previews.places, [&](const RawPreviews::Place& place) {
        return place.bytes == 0 || !view.matches(place.at, "\xff\xd8\xff");
    });
    std::ranges::stable_sort(previews.places, std::ranges::greater(), &RawPreviews::Place::bytes);
    return previews;
}

}  // namespace vantor::decode

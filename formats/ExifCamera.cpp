// Two entries of the first directory, wherever a format keeps it.
#include "formats/ExifCamera.h"

#include <algorithm>

#include "formats/ByteView.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

constexpr std::uint16_t kTagMake = 271;
constexpr std::uint16_t kTagModel = 272;
constexpr std::uint16_t kTypeAscii = 2;
constexpr std::size_t kExifCameraMostLetters = 64;
constexpr int kExifCameraMostSegments =
    64;  // of a JPEG file before its Exif block, which comes first or second

// Where the TIFF structure of a JPEG file that begins at `at` begins; nothing where it has none.
std::optional<std::uint64_t> exifOfJpeg(ByteView& view, std::uint64_t at) {
    at += 2;
    for (int segment = 0; segment < kExifCameraMostSegments; ++segment) {
        const auto marker = view.be16(at);
        const auto length = view.be16(at + 2);
        if (!marker || !length || *length < 2 || *marker < 0xFFC0 || *marker == 0xFFDA) {
            return std::nullopt;
        }
        if (*marker == 0xFFE1 && view.matches(at + 4, std::string_view("Exif\0\0", 6))) {
            return at + 10;
        }
        at += 2 + *length;
    }
    return std::nullopt;
}

std::optional<std::uint64_t> tiffOf(ByteView& view) {
    if (view.be16(0) == 0xFFD8) {
        return exifOfJpeg(view, 0);
    }
    if (view.matches(0, "FUJIFILMCCD-RAW ")) {
        const std::uint64_t preview = view.be32(84).value_or(0);
        return view.be16(preview) == 0xFFD8 ? exifOfJpeg(view, preview) : std::nullopt;
    }
    return 0;
}

std::string textOf(ByteView& view, const TiffEntry& entry) {
    std::string text;
    if (entry.type != kTypeAscii) {
        return text;
    }
    const std::uint64_t letters = std::min<std::uint64_t>(entry.count, kExifCameraMostLetters);
    for (std::uint64_t i = 0; i < letters; ++i) {
        const auto letter = view.u8(addClamped(entry.valueAt, i));
        if (!letter || *letter == 0) {
            break;
        }
        if (*letter < 0x20 || *letter > 0x7E) {
            return {};  // no name of a camera
        }
        text.push_back(static_cast<char>(*letter));
    }
    const auto blank = [](char letter) { return letter == ' '; };
    text.erase(text.begin(), std::find_if_not(text.begin(), text.end(), blank));
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

// Makers sign as "NIKON CORPORATION" what they call "NIKON D850".
bool beginsWithMaker(const std::string& model, const std::string& make) {
    const std::string first = make.substr(0, make.find(' '));
    const auto same = [](char a, char b) {
        const auto lower = [](char letter) { return letter >= 'A' && letter <= 'Z' ? letter + 32 : letter; };
        return lower(a) == lower(b);
    };
    return model.size() >= first.size() && std::equal(first.begin(), first.end(), model.begin(), same);
}

}  // namespace

std::string cameraOf(ByteSource& source) {
    ByteView view(source);
    const auto base = tiffOf(view);
    const auto header = base ? readTiffHeader(view, *base) : std::nullopt;
    const auto directory =
        header ? readTiffDirectory(view, *header, addClamped(*base, header->firstDirectory)) : std::nullopt;
    std::string make, model;
    for (std::uint64_t i = 0; directory && i < directory->entries; ++i) {
        const auto entry = readTiffEntry(view, *header, *directory, i);
        if (!entry || entry->tag > kTagModel) {
            break;
        }
        if (entry->tag == kTagMake) {
            make = textOf(view, *entry);
        } else if (entry->tag == kTagModel) {
            model = textOf(view, *entry);
        }
    }
    if (model.empty() || make.empty() || beginsWithMaker(model, make)) {
        return model.empty() ? make : model;
    }
    return (make + ' ' + model).substr(0, kExifCameraMostLetters);
}

}  // namespace vantor

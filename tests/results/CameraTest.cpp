// The camera that a picture names, as the walkers' facts beside it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/ExifCamera.h"

namespace vantor {
namespace {

using Bytes = std::vector<std::uint8_t>;

void add(Bytes& into, std::uint32_t number, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        into.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
    }
}

// A TIFF structure of little numbers first with these two entries.
Bytes tiff(const std::string& make, const std::string& model) {
    Bytes bytes{'I', 'I', 42, 0, 8, 0, 0, 0};
    constexpr std::uint32_t kBehind = 8 + 2 + 2 * 12 + 4;
    add(bytes, 2, 2);
    std::uint32_t at = kBehind;
    for (const auto& [tag, text] : {std::pair{271U, make}, std::pair{272U, model}}) {
        add(bytes, tag, 2);
        add(bytes, 2, 2);
        add(bytes, static_cast<std::uint32_t>(text.size() + 1), 4);
        if (text.size() < 4) {
            std::string padded = text;
            padded.resize(4);
            bytes.insert(bytes.end(), padded.begin(), padded.end());
        } else {
            add(bytes, at, 4);
            at += static_cast<std::uint32_t>(text.size() + 1);
        }
    }
    add(bytes, 0, 4);
    for (const std::string& text : {make, model}) {
        if (text.size() >= 4) {
            bytes.insert(bytes.end(), text.begin(), text.end());
            bytes.push_back(0);
        }
    }
    return bytes;
}

Bytes jpeg(const Bytes& exif) {
    Bytes bytes{0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 'J', 'F', 0xFF, 0xE1};
    const std::size_t length = 2 + 6 + exif.size();
    bytes.push_back(static_cast<std::uint8_t>(length >> 8));
    bytes.push_back(static_cast<std::uint8_t>(length));
    for (const char letter : std::string("Exif\0\0", 6)) {
        bytes.push_back(static_cast<std::uint8_t>(letter));
    }
    bytes.insert(bytes.end(), exif.begin(), exif.end());
    return bytes;
}

std::string cameraIn(const Bytes& bytes) {
    SpanSource source(bytes);
    return cameraOf(source);
}

TEST(CameraOf, TellsMakerAndModel_TheMakerOnce) {
    EXPECT_EQ(cameraIn(tiff("Canon", "Canon EOS R6")), "Canon EOS R6");
    EXPECT_EQ(cameraIn(tiff("NIKON CORPORATION", "NIKON D850")), "NIKON D850");
    EXPECT_EQ(cameraIn(jpeg(tiff("SONY", "ILCE-7M3  "))), "SONY ILCE-7M3");
    EXPECT_EQ(cameraIn(tiff("LG", "")), "LG");
    EXPECT_EQ(cameraIn(tiff("", "X3")), "X3");
}

TEST(CameraOf, TellsNothingOfWhatNamesNone) {
    EXPECT_EQ(cameraIn({}), "");
    EXPECT_EQ(cameraIn({0xFF, 0xD8, 0xFF, 0xDA, 0, 8, 0, 0}), "");
    EXPECT_EQ(cameraIn(tiff("Ca\tnon", "\x01\x02\x03\x04\x05")), "");
    EXPECT_EQ(cameraIn(jpeg({'I', 'I', 42, 0, 0xFF, 0xFF, 0xFF, 0xFF})), "");
}

// Cut anywhere, and with any byte turned: no more than names come of it.
TEST(CameraOf, OutlastsWhateverIsCutOrTurned) {
    const Bytes whole = jpeg(tiff("SONY", std::string(200, 'x')));
    EXPECT_EQ(cameraIn(whole).size(), 64U);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        EXPECT_LE(cameraIn(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i))).size(), 64U);
        Bytes turned = whole;
        turned[i] = static_cast<std::uint8_t>(~turned[i]);
        EXPECT_LE(cameraIn(turned).size(), 64U);
    }
}

}  // namespace
}  // namespace vantor

// Unpacking what NTFS packs.
#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <string>

#include "filesystem/Lznt1.h"
#include "tests/filesystem/CardImage.h"

namespace vantor {
namespace {

std::string unpacked(const Bytes& packed, std::size_t most) {
    Bytes into(most, 0xEE);
    return unpackLznt1(packed, into) ? std::string(into.begin(), into.end()) : "illegible";
}

// The example of the public description; it ends with a zero.
TEST(Lznt1, MelodyOfTheDescription_IsUnpacked) {
    const Bytes packed{0x38, 0xB0, 0x88, 0x46, 0x23, 0x20, 0x00, 0x20, 0x47, 0x20, 0x41, 0x00,
                       0x10, 0xA2, 0x47, 0x01, 0xA0, 0x45, 0x20, 0x44, 0x00, 0x08, 0x45, 0x01,
                       0x50, 0x79, 0x00, 0xC0, 0x45, 0x20, 0x05, 0x24, 0x13, 0x88, 0x05, 0xB4,
                       0x02, 0x4A, 0x44, 0xEF, 0x03, 0x58, 0x02, 0x8C, 0x09, 0x16, 0x01, 0x48,
                       0x45, 0x00, 0xBE, 0x00, 0x9E, 0x00, 0x04, 0x01, 0x18, 0x90, 0x00};
    const std::string melody =
        "F# F# G A A G F# E D D E F# F# E E F# F# G A A G F# E D D E F# E D D E E F# D E F# G F# D E F# "
        "G F# E D E A F# F# G A A G F# E D D E F# E D D";
    EXPECT_EQ(unpacked(packed, melody.size() + 1), melody + '\0');
}

TEST(Lznt1, ChunksStandAtTheirPlaces_AndTheRestIsZeros) {
    // Three bytes as they are, in a chunk of their own; then one byte that is copied on and on.
    const Bytes packed{0x02, 0x30, 'a', 'b', 'c', 0x03, 0xB0, 0x02, 'x', 0x02, 0x00, 0, 0};
    EXPECT_EQ(unpacked(packed, 4104), "abc" + std::string(4093, '\0') + "xxxxxx" + std::string(2, '\0'));
}

// 18 of 4096 bytes are reached by 11 bits of length, the last of them by 4.
TEST(Lznt1, LongCopiesDeepInAChunk_ReachAsFarAsTheirBits) {
    Bytes packed{0, 0, 0x02, 'y'};
    const auto copy = [&](unsigned back, unsigned length, unsigned lengthBits) {
        const unsigned word = (back - 1) << lengthBits | (length - 3);
        packed.push_back(static_cast<std::uint8_t>(word));
        packed.push_back(static_cast<std::uint8_t>(word >> 8));
    };
    copy(1, 4000, 12);  // 4001 bytes are there: 4 bits of length are left
    packed[2] = 0x06;
    copy(4001, 18, 4);
    put(packed, 0, 0xB000 | (packed.size() - 3), 2);
    EXPECT_EQ(unpacked(packed, 4096), std::string(4019, 'y') + std::string(77, '\0'));
}

TEST(Lznt1, NonsenseIsRefused) {
    EXPECT_EQ(unpacked({0x02, 0x10, 'a', 'b', 'c'}, 10), "illegible") << "another mark";
    EXPECT_EQ(unpacked({0x05, 0x30, 'a', 'b', 'c'}, 10), "illegible") << "ends before";
    EXPECT_EQ(unpacked({0x03, 0xB0, 0x02, 'x', 0x00, 0x10}, 10), "illegible")
        << "further back than it begins";
    EXPECT_EQ(unpacked({0x03, 0xB0, 0x02, 'x', 0xFF, 0x0F}, 10), "illegible") << "beyond the room";
    EXPECT_EQ(unpacked({0x02, 0xB0, 0x02, 'x', 0x00}, 10), "illegible") << "half a word";
    EXPECT_EQ(unpacked({0x02, 0xB0, 0x00, 'x', 'y'}, 1), "illegible") << "more than there is room for";
    std::mt19937 random(5);
    int legible = 0;
    for (int i = 0; i < 20'000; ++i) {
        Bytes packed(random() % 64 + 3);
        std::generate(packed.begin(), packed.end(), [&] { return static_cast<std::uint8_t>(random()); });
        put(packed, 0, 0xB000 | (random() % packed.size()), 2);
        legible += unpacked(packed, random() % 8192).size() != 9 ? 1 : 0;
    }
    EXPECT_GT(legible, 0);
}

}  // namespace
}  // namespace vantor

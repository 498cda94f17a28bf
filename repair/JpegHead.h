// What stands before the coded units of a JPEG picture: how they are laid out and written.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "formats/ByteView.h"

namespace vantor {

// A table of variable-length codes. Source: ITU-T T.81, annex C.
struct JpegCodes {
    static constexpr unsigned kQuickBits = 9;

    std::array<std::uint16_t, std::size_t{1} << kQuickBits> quick{};  // length << 8 | value; 0: longer
    std::array<std::uint32_t, 17> limit{};                            // by length, of 16 bits
    std::array<std::int32_t, 17> offset{};
    std::array<std::uint8_t, 256> values{};
    bool known = false;
};

struct JpegComponent {
    unsigned id = 0;
    unsigned across = 1;  // blocks in a unit
    unsigned down = 1;
    unsigned quantisation = 0;
    unsigned dc = 0;
    unsigned ac = 0;
};

struct JpegHead {
    static constexpr std::size_t kTables = 4;
    static constexpr std::uint64_t kMostBytes = std::uint64_t{4} << 20;

    std::vector<JpegComponent> components;  // 1 to 4, all of them in the one scan
    unsigned unitsAcross = 0;
    unsigned unitsDown = 0;
    unsigned restartInterval = 0;  // units; 0: none
    std::uint64_t scanAt = 0;      // first coded byte
    std::array<JpegCodes, kTables> dc, ac;
    std::array<std::array<std::uint16_t, 64>, kTables> quantisation{};  // in the order of the file

    std::uint64_t units() const { return std::uint64_t{unitsAcross} * unitsDown; }
};

// Adds the code tables that a segment's body in [at, end) holds to those of the head; false where it is
// broken.
bool readJpegCodes(ByteView& view, std::uint64_t at, std::uint64_t end, JpegHead& head);

// The head of the picture that begins with the view's first byte; nothing where it is broken, or the picture
// is not coded block by block in a single scan of eight bits a sample. Source: ITU-T T.81, annex B.
std::optional<JpegHead> readJpegHead(ByteView& view);

}  // namespace vantor

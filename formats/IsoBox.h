// One box of the ISO base media family, shared by movies, HEIF, JPEG 2000 and JPEG XL.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "formats/ByteView.h"

namespace vantor {

struct IsoBox {
    std::uint64_t at = 0;
    std::uint64_t body = 0;  // behind size and name
    std::uint64_t end = 0;   // may lie beyond the view
    std::array<char, 4> name{};
    bool toEnd = false;  // size 0: "to the end of the file"

    std::string_view text() const { return {name.data(), name.size()}; }
};

// The box at `at`; nothing when the view ends in its header or the size cannot be one.
std::optional<IsoBox> readIsoBox(ByteView& view, std::uint64_t at);

// Behind the ISO media boxes that begin at `start`, for formats that carry a movie; `start` when there are
// none.
std::uint64_t endOfIsoBoxes(ByteView& view, std::uint64_t start);

// Adds the date and pixel size that a moov or meta box tells. Returns the position behind the last byte of
// the picture data that a meta box refers to; 0 = none outside itself.
std::uint64_t addIsoFacts(ByteView& view, const IsoBox& box, Facts& facts);

}  // namespace vantor

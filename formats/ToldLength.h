// The one rule of all formats whose header says how long the file is: a mark, and where the number stands.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "formats/Format.h"

namespace vantor {

// One form of such a format; positions and sizes in bytes from the file's first.
struct ToldLength {
    struct Mark {
        std::uint64_t at;
        std::string_view bytes;
    };

    Mark first, second;
    std::uint64_t at;   // of the number
    std::size_t bytes;  // it takes
    Endian endian;
    std::uint64_t least;      // a smaller number is none: a writer that never came back to fill it in
    std::uint64_t unit = 1;   // bytes it counts
    std::uint64_t apart = 0;  // bytes it does not count
};

// Marks hold zero bytes.
constexpr std::string_view operator""_b(const char* text, std::size_t length) {
    return {text, length};
}

// As the first of the forms whose marks stand in the view says; Unknown when none does.
Extent endToldBy(ByteView& view, std::span<const ToldLength> forms);

// The walk function of a format that has these forms.
template <const auto& kForms>
Extent walkToldLength(ByteView& view) {
    return endToldBy(view, kForms);
}

}  // namespace vantor

// Where the items of a HEIF or AVIF file lie, as its location box tells. Source: ISO/IEC 14496-12, 8.11.3.
#pragma once

#include <algorithm>

#include "formats/IsoBox.h"

namespace vantor {

struct IsoItemPiece {
    std::uint32_t item = 0;
    std::uint16_t pieces = 0;  // that the item lies in
    std::uint64_t at = 0;      // both in bytes, and neither is checked against the file
    std::uint64_t bytes = 0;
};

// Hands each piece that lies in the file itself to `each`, until that says false; those of `mostItems` items.
template <class Each>
void forItemPieces(ByteView& view, const IsoBox& locations, std::uint32_t mostItems, Each&& each) {
    Cursor in(view, locations.body);
    const auto version = in.u8();
    in.skip(3);
    const auto widths = in.u16();
    const auto sized = [&](int shift) -> std::uint64_t {
        const auto width = widths >> shift & 15;
        return width == 0 ? 0 : width == 4 ? in.u32() : in.u64();
    };
    // Pieces that take no bytes of the box are all the same.
    const bool allAlike = widths >> 8 == 0 && (version == 0 || (widths & 15) == 0);
    const auto goesOn = [&] { return in.ok() && in.at() < locations.end; };
    const std::uint32_t items = std::min(mostItems, version < 2 ? std::uint32_t{in.u16()} : in.u32());
    for (std::uint32_t i = 0; i < items && goesOn(); ++i) {
        IsoItemPiece piece;
        piece.item = version < 2 ? in.u16() : in.u32();
        const auto method = version == 0 ? 0 : in.u16() & 15;  // 0: in the file, 1: inside the meta box
        const auto reference = in.u16();                       // 0: this file
        const auto base = sized(4);
        piece.pieces = in.u16();
        const int told = allAlike ? std::min<int>(piece.pieces, 1) : piece.pieces;
        for (int extent = 0; extent < told && goesOn(); ++extent) {
            if (version != 0)
                sized(0);
            piece.at = addClamped(base, sized(12));
            piece.bytes = sized(8);
            if (method == 0 && reference == 0 && in.ok() && !each(piece))
                return;
        }
    }
}

}  // namespace vantor

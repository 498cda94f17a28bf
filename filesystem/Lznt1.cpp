#include "filesystem/Lznt1.h"

#include <algorithm>

namespace vantor {

namespace {

using Packed = std::span<const std::uint8_t>;

constexpr std::size_t kChunkBytes = 4096;

unsigned wordAt(Packed bytes, std::size_t at) {
    return bytes[at] | static_cast<unsigned>(bytes[at + 1]) << 8;
}

// Each flag, from the lowest bit of a byte on, stands before a byte as it is, or before a word that says how
// far back to copy from and how much: the further the chunk has come, the more of its bits tell how far.
bool unpackChunk(Packed packed, std::span<std::uint8_t> into) {
    std::size_t from = 0;
    std::size_t to = 0;
    while (from < packed.size()) {
        unsigned flags = packed[from++];
        for (int i = 0; i < 8 && from < packed.size(); ++i, flags >>= 1) {
            if ((flags & 1) == 0) {
                if (to == into.size()) {
                    return false;
                }
                into[to++] = packed[from++];
                continue;
            }
            unsigned lengthBits = 12;
            for (std::size_t reach = to; reach > 16; reach = (reach + 1) / 2) {
                --lengthBits;
            }
            if (from + 2 > packed.size()) {
                return false;
            }
            const unsigned word = wordAt(packed, from);
            const std::size_t back = (word >> lengthBits) + 1;
            const std::size_t length = (word & ((1U << lengthBits) - 1)) + 3;
            if (back > to || length > into.size() - to) {
                return false;
            }
            // Byte by byte: it may copy what it has just written.
            for (std::size_t end = to + length; to < end; ++to) {
                into[to] = into[to - back];
            }
            from += 2;
        }
    }
    return true;
}

}  // namespace

bool unpackLznt1(std::span<const std::uint8_t> packed, std::span<std::uint8_t> into) {
    constexpr unsigned kSignature = 3;
    std::fill(into.begin(), into.end(), std::uint8_t{0});
    while (!into.empty() && packed.size() >= 2) {
        const unsigned head = wordAt(packed, 0);
        if (head == 0) {
            break;
        }
        const std::size_t bytes = (head & 0xFFF) + 1;
        if ((head >> 12 & 7) != kSignature || bytes > packed.size() - 2) {
            return false;
        }
        const Packed chunk = packed.subspan(2, bytes);
        const std::span<std::uint8_t> place = into.first(std::min(kChunkBytes, into.size()));
        if ((head & 0x8000) == 0) {
            std::copy_n(chunk.begin(), std::min(bytes, place.size()), place.begin());
        } else if (!unpackChunk(chunk, place)) {
            return false;
        }
        packed = packed.subspan(2 + bytes);
        into = into.subspan(place.size());
    }
    return true;
}

}  // namespace vantor

// What NTFS packs files with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vantor {

// Unpacks chunks of 4 KiB until `into` is full or the chunks end; what no chunk fills is zeros. False where
// the bytes are no such chunks. Public description: LZNT1, in "Xpress Compression Algorithm".
bool unpackLznt1(std::span<const std::uint8_t> packed, std::span<std::uint8_t> into);

}  // namespace vantor

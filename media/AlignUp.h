// Memory for requests that go past the kernel's buffers.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vantor {

// The first address at or behind p that is a multiple of `alignment` bytes.
inline std::uint8_t* alignUp(std::uint8_t* p, std::size_t alignment) {
    const auto address = reinterpret_cast<std::uintptr_t>(p);
    return p + (alignment - address % alignment) % alignment;
}

}  // namespace vantor

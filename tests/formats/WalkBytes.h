// The shortest way from bytes in memory to a walker's answer.
#pragma once

#include <string_view>

#include "Build.h"
#include "formats/Registry.h"

namespace vantor::test {

// Files on a card begin at such places.
inline constexpr std::size_t kSector = 512;

inline Extent walkBytes(std::string_view extension, const Bytes& bytes) {
    SpanSource source(bytes);
    return walk(extension, source);
}

}  // namespace vantor::test

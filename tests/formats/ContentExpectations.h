// What a walker says of a file whose content is its own, and of one that holds another's.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "Corpus.h"
#include "WalkBytes.h"

namespace vantor::test {

inline Bytes overwritten(Bytes bytes, std::size_t from, std::size_t to, std::uint32_t seed = 3) {
    const Bytes foreign = noise(to - from, seed);
    std::copy(foreign.begin(), foreign.end(), bytes.begin() + static_cast<std::ptrdiff_t>(from));
    return bytes;
}

inline void expectWholeInside(std::string_view type, const Bytes& bytes, bool checked = true) {
    const Extent extent = walkBytes(type, bytes);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, bytes.size());
    EXPECT_EQ(extent.checked, checked);
}

inline void expectSpoilt(std::string_view type, const Bytes& bytes, std::size_t end) {
    const Extent extent = walkBytes(type, bytes);
    EXPECT_EQ(extent.verdict, Verdict::Damaged);
    EXPECT_EQ(extent.end, end);
    EXPECT_TRUE(extent.endFound);
    EXPECT_FALSE(extent.checked);
}

}  // namespace vantor::test

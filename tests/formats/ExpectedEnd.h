// What the tests of whole files expect.
#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "WalkBytes.h"

namespace vantor::test {

// The file is complete, and ends there.
inline void expectEnd(std::string_view extension, const Bytes& whole, std::size_t end) {
    const Extent extent = walkBytes(extension, whole);
    EXPECT_EQ(extent.verdict, Verdict::Complete);
    EXPECT_EQ(extent.end, end);
}

}  // namespace vantor::test

// How far putting broken files together has come.
#pragma once

#include <atomic>
#include <cstddef>

namespace vantor {

// Any thread. Files that are looked at once more, when others gave way, are not counted again.
struct CompletionProgress {
    std::atomic<std::size_t> looked{0};
    std::atomic<std::size_t> of{0};
};

}  // namespace vantor

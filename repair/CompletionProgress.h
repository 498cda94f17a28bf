// How far putting broken files together has come, and what came of it.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

#include "results/Assembly.h"

namespace vantor {

// Any thread. Files that are looked at once more, when others gave way, are not counted again.
struct CompletionProgress {
    std::atomic<std::size_t> looked{0};
    std::atomic<std::size_t> of{0};
};

// Takes the pieces of one of the broken files, by its place among those that were given.
using AssemblyFound = std::function<void(std::size_t broken, const Assembly& pieces)>;

}  // namespace vantor

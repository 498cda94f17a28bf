// The pages of a database, each reached from its schema or from its list of free ones.
#pragma once

#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

struct PageCensus {
    enum class Outcome {
        Silent,  // too many, or kinds that are not followed
        Sound,   // every one is what the page that points at it says
        Broken,
    };

    Outcome outcome = Outcome::Silent;
    std::uint64_t pages = 0;  // that the database has, as far as was followed
};

// Of the database at the view's beginning with pages of `pageBytes`. `told` is how many its header says; 0 =
// it does not, and the highest page that is pointed at is the last.
PageCensus countPages(ByteView& view, std::uint64_t pageBytes, std::uint64_t told);

}  // namespace vantor

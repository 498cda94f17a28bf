// How much of an item is saved, given what its format's walker says.
#pragma once

#include <QString>
#include <cstdint>

#include "formats/Extent.h"

namespace vantor {

class MediumBytes;

// The decision for one item.
struct TrueLength {
    std::uint64_t bytes = 0;  // from the item's first; never more than the medium holds
    Extent extent;            // as the walker gave it
};

// Walks the item with the walker of its type (`Ext_Name`, any case). Behind the carved
// run it reads, but for kinds that grow large, no further than a file of that kind plausibly reaches, and not
// at all where `mayGoBeyond` is false.
TrueLength trueLengthOf(const QString& type, MediumBytes& bytes, bool mayGoBeyond);

// The rule itself; bytes all. `carved` is the published run, `view` how far the walker could see.
struct LengthLimits {
    std::uint64_t carved = 0;
    std::uint64_t view = 0;
    bool viewEndsWithMedium = true;
    std::uint64_t mostPlausible = 0;
};
std::uint64_t bytesToKeep(const Extent& extent, const LengthLimits& limits);

// True for formats that are a row of frames, packets or lines without a beginning of their own: what begins
// inside such a file is a part of it, however whole it looks.
bool isFrameStream(const QString& type);

// True when the walker of the type would have known its format and did not: certainly no file of that type.
bool isCertainlyUnsound(const QString& type, const Extent& extent);

}  // namespace vantor

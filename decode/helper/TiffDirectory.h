// Walks the directories of a TIFF structure, as TIFF 6.0 section 2 lays them out, for the few tags we ask
// about.
#pragma once

#include <QByteArrayView>
#include <cstdint>
#include <functional>

namespace vantor::decode {

struct TiffEntry {
    std::uint16_t tag = 0;
    std::uint32_t count = 0;
    std::uint32_t value = 0;  // the first value when it is a whole number, else the offset of the values
};

// Calls `see` for every entry of the first directory and of those its SubIFDs tag names; ends early when
// `see` returns false. False when the bytes begin no TIFF structure. Looks at no more than a fixed number of
// directories and entries.
bool walkTiff(QByteArrayView bytes, const std::function<bool(const TiffEntry&)>& see);

}  // namespace vantor::decode

// PCX pictures as parts of others.
#pragma once

#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

// Walks the PCX picture that begins at `base`.
Extent walkPcxAt(ByteView& view, std::uint64_t base);

}  // namespace vantor

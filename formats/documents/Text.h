// Plain text, for formats that are text in one form and something else in another.
#pragma once

#include "formats/ByteView.h"

namespace vantor {

Extent walkText(ByteView& view);

}  // namespace vantor

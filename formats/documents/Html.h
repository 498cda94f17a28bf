// HTML, also for XML that turns out to be that.
#pragma once

#include "formats/ByteView.h"

namespace vantor {

Extent walkHtml(ByteView& view);

}  // namespace vantor

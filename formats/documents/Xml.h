// The walk over a document of XML, which other markup may turn out to be.
#pragma once

#include "formats/ByteView.h"

namespace vantor {

Extent walkXml(ByteView& view);

}  // namespace vantor

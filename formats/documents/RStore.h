// What R keeps of a package, object by object (RDB, beside an index of another file): the length of each as
// it unpacks, then a zlib stream. Source: "R Internals" of the R project, on lazy loading.
#pragma once

#include "formats/ByteView.h"

namespace vantor {

// Follows the objects from the first byte; Unknown where the first is none, or where one tells no length.
Extent walkRStore(ByteView& view);

}  // namespace vantor

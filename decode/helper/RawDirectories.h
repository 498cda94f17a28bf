// The directories in which a camera raw file built on TIFF says what it holds.
#pragma once

#include <cstddef>
#include <functional>

#include "formats/TiffDirectory.h"

namespace vantor::decode {

enum class DirectoryScope {
    FirstAndBelow,  // the first directory and those that it names as its own
    All,            // and the ones that are linked to each other
};

// Gets the directory's number, in the order of visiting, and one of its entries; false ends the visit.
using SeeEntry = std::function<bool(std::size_t directory, const TiffEntry& entry)>;

// Visits no more than a fixed number of directories, whatever the file says.
void visitDirectories(ByteView& view, const TiffHeader& header, DirectoryScope scope, const SeeEntry& see);

}  // namespace vantor::decode

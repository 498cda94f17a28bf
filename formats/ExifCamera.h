// Which camera took a picture, as the picture itself says. Source: Exif 2.32, TIFF 6.0 (Make, Model).
#pragma once

#include <string>

#include "formats/ByteSource.h"

namespace vantor {

// "Canon EOS R6": maker and model of a JPEG file, of a TIFF file and the raw formats built on it, and of RAF;
// the maker is left out where the model begins with it. Printable ASCII, at most 64 letters; "" where nothing
// tells it.
std::string cameraOf(ByteSource& source);

}  // namespace vantor

// The JPEG pictures that cameras put into their raw files for quick viewing.
#pragma once

#include <QImageIOHandler>
#include <cstdint>
#include <vector>

#include "formats/ByteView.h"

namespace vantor::decode {

struct RawPreviews {
    struct Place {
        std::uint64_t at = 0;
        std::uint64_t bytes = 0;  // as the file says; may reach beyond its end
    };
    // Longest first. Each begins as a JPEG does, the sensor's own data included where it is stored as one.
    std::vector<Place> places;
    // How the camera was held, for previews that do not say it themselves.
    QImageIOHandler::Transformations turn = QImageIOHandler::TransformationNone;
};

// Those of raw files built on TIFF (TIFF 6.0 section 22, TIFF/EP, DNG) and of Canon's CR3, whose preview
// stands in a box of its own. A fixed number of places at most.
RawPreviews rawPreviews(ByteView& view);

}  // namespace vantor::decode

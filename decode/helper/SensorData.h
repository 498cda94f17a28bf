// Tells a camera's raw file from a finished picture where both are TIFF structures.
#pragma once

#include <QByteArrayView>

namespace vantor::decode {

// Whether a TIFF or BigTIFF structure holds sensor data: a colour-filter array, a raw compression or the DNG
// version tag in the first directory or those below it. Looks at no more than a fixed number of directories.
bool isTiffBasedRaw(QByteArrayView bytes);

}  // namespace vantor::decode

// The stored form of a thumbnail.
#pragma once

#include <QByteArray>
#include <QImage>

namespace vantor {

// JPEG of pixels already bounded; transparent parts become white. Empty for a null image. Any thread.
QByteArray encodeThumbnail(const QImage& image);

}  // namespace vantor

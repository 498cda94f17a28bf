// Encodes in the program itself, so that a helper can hand over nothing but pixels.
#include "decode/ThumbnailCodec.h"

#include <QBuffer>
#include <QPainter>

namespace vantor {

namespace {
constexpr int kJpegQuality = 85;
}

QByteArray encodeThumbnail(const QImage& image) {
    if (image.isNull()) {
        return {};
    }
    QImage opaque = image;
    if (image.hasAlphaChannel()) {
        opaque = QImage(image.size(), QImage::Format_RGB32);
        opaque.fill(Qt::white);
        QPainter(&opaque).drawImage(0, 0, image);
    }
    QByteArray encoded;
    QBuffer buffer(&encoded);
    if (!buffer.open(QIODevice::WriteOnly) || !opaque.save(&buffer, "JPEG", kJpegQuality)) {
        return {};
    }
    return encoded;
}

}  // namespace vantor

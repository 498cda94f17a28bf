// Reading by content, turned upright and scaled while it is read.
#include "results/PicturePreview.h"

#include <QImageReader>

namespace vantor {

namespace {

constexpr int kMostPictureMegabytes = 512;

}  // namespace

QImage readPicture(const QString& file, QSize largest) {
    QImageReader reader(file);
    QImageReader::setAllocationLimit(kMostPictureMegabytes);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isValid() && (size.width() > largest.width() || size.height() > largest.height())) {
        reader.setScaledSize(size.scaled(largest, Qt::KeepAspectRatio));
    }
    const QImage picture = reader.read();
    const bool tooLarge = picture.width() > largest.width() || picture.height() > largest.height();
    return tooLarge ? picture.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
}

}  // namespace vantor

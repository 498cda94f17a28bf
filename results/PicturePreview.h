// A bounded picture of a file, for the preview.
#pragma once

#include <QImage>
#include <QString>
#include <functional>

namespace vantor {

// A picture of the file no larger than the size; null when there is none. Any one thread.
using PicturePreviewer = std::function<QImage(const QString& file, QSize largest)>;

// Reads the still pictures that the toolkit knows, with a cap on the memory a picture may ask for.
QImage readPicture(const QString& file, QSize largest);

}  // namespace vantor

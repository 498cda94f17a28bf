// The sheet of paper on which a preview shows its picture.
#pragma once

#include <QImage>

namespace vantor {

// The picture with a margin and a shadow around it, no larger than `largest`.
QImage framedAsDocument(const QImage& picture, QSize largest);

}  // namespace vantor

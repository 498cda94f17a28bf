// Why pictures are missing where it is the system that keeps them back, not the file.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "decode/DecodePool.h"
#include "window/preview/DesktopThumbnailers.h"

namespace vantor {

// A sentence for the user about the file, or about pictures in general where no file is named; empty when
// nothing stands in the way. The interface thread.
using PreviewObstacle = std::function<QString(const QString& file)>;

PreviewObstacle makePreviewObstacle(std::shared_ptr<const DecodePool> pool,
                                    std::shared_ptr<const DesktopThumbnailers> desktop);

}  // namespace vantor

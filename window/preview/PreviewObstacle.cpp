// What the decoders report, in words.
#include "window/preview/PreviewObstacle.h"

#include <QObject>
#include <utility>

namespace vantor {

PreviewObstacle makePreviewObstacle(std::shared_ptr<const DecodePool> pool,
                                    std::shared_ptr<const DesktopThumbnailers> desktop) {
    return [pool = std::move(pool), desktop = std::move(desktop)](const QString& file) {
        switch (pool->obstacle()) {
            case DecodeObstacle::NoCage:
                return QObject::tr(
                    "No pictures: this system cannot shut decoders in (it has no seccomp filters), and "
                    "nothing "
                    "from a medium is decoded outside.");
            case DecodeObstacle::NoHelper:
                return QObject::tr(
                    "No pictures: the program that decodes them does not start. Install the program again.");
            case DecodeObstacle::None:
                break;
        }
        return !file.isEmpty() && desktop->lacksCageFor(file)
                   ? QObject::tr(
                         "No picture: documents are drawn inside bubblewrap alone, which is not installed or "
                         "may "
                         "not run on this system.")
                   : QString();
    };
}

}  // namespace vantor

// The order in which a file's kinds are tried.
#include "window/preview/FilePreviewer.h"

#include <algorithm>
#include <utility>

#include "catalogue/FileKind.h"
#include "results/ResultRow.h"
#include "window/preview/TextPicture.h"

namespace vantor {

namespace {

QImage movingPicture(const QString& file, QSize largest, FileKind kind, const MovieReaderOptions& movies) {
    switch (kind) {
        case FileKind::Video: {
            const auto movie = MovieReader::open(file, largest, movies);
            return movie ? movie->poster().image : QImage();
        }
        case FileKind::Sound:
            return MovieReader::cover(file, largest, movies);
        default:
            return {};
    }
}

}  // namespace

PicturePreviewer makeFilePreviewer(std::shared_ptr<DecodePool> pool,
                                   std::shared_ptr<const DesktopThumbnailers> desktop,
                                   MovieReaderOptions movies) {
    return
        [pool = std::move(pool), desktop = std::move(desktop), movies](const QString& file, QSize largest) {
            QImage picture = pool->picture(file, largest).image;
            if (!picture.isNull()) {
                return picture;
            }
            const FileKind kind = kindOfExtension(pathExtension(file));
            picture = movingPicture(file, largest, kind, movies);
            if (!picture.isNull()) {
                return picture;
            }
            const int side = std::min(largest.width(), largest.height());
            picture = pool->picture(desktop->thumbnail(file, side), largest).image;
            // Only where somebody says that it is text: half of all junk begins with some letters.
            return picture.isNull() && isTextExtension(pathExtension(file)) ? textPicture(file, largest)
                                                                            : picture;
        };
}

}  // namespace vantor

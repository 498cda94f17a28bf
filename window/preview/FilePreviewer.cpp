// The order in which a file's kinds are tried.
#include "window/preview/FilePreviewer.h"

#include <algorithm>
#include <utility>

#include "catalogue/FileKind.h"
#include "decode/SoundReader.h"
#include "results/ResultRow.h"
#include "window/preview/TextPicture.h"

namespace vantor {

namespace {

FileLook movingLook(const QString& file, QSize largest, FileKind kind, const MovieReaderOptions& movies) {
    switch (kind) {
        case FileKind::Video: {
            const auto movie = MovieReader::open(file, largest, movies);
            return movie ? FileLook{movie->poster().image, movie->durationMs()} : FileLook();
        }
        case FileKind::Sound:
            return {MovieReader::cover(file, largest, movies), 0};
        default:
            return {};
    }
}

FileLook lookAtFile(DecodePool& pool, const DesktopThumbnailers& desktop, const MovieReaderOptions& movies,
                    const QString& file, QSize largest) {
    if (const QImage picture = pool.picture(file, largest).image; !picture.isNull()) {
        return {picture, 0};
    }
    FileLook look = movingLook(file, largest, kindOfExtension(pathExtension(file)), movies);
    if (!look.picture.isNull()) {
        return look;
    }
    const int side = std::min(largest.width(), largest.height());
    look.picture = pool.picture(desktop.thumbnail(file, side), largest).image;
    // Only where somebody says that it is text: half of all junk begins with some letters.
    if (look.picture.isNull() && isTextExtension(pathExtension(file))) {
        look.picture = textPicture(file, largest);
    }
    return look;
}

}  // namespace

PicturePreviewer makeFilePreviewer(std::shared_ptr<DecodePool> pool,
                                   std::shared_ptr<const DesktopThumbnailers> desktop,
                                   MovieReaderOptions movies) {
    return
        [pool = std::move(pool), desktop = std::move(desktop), movies](const QString& file, QSize largest) {
            return lookAtFile(*pool, *desktop, movies, file, largest).picture;
        };
}

FileLooker makeFileLooker(std::shared_ptr<DecodePool> pool,
                          std::shared_ptr<const DesktopThumbnailers> desktop, MovieReaderOptions movies) {
    return
        [pool = std::move(pool), desktop = std::move(desktop), movies](const QString& file, QSize largest) {
            FileLook look = lookAtFile(*pool, *desktop, movies, file, largest);
            if (look.durationMs == 0 && kindOfExtension(pathExtension(file)) == FileKind::Sound) {
                const auto sound = SoundReader::open(file, movies);
                look.durationMs = sound ? sound->durationMs() : 0;
            }
            return look;
        };
}

}  // namespace vantor

// One picture of any file: each kind by the road that suits it, and never by decoding carved bytes in this
// process.
#pragma once

#include <QImage>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

#include "decode/DecodePool.h"
#include "decode/MovieReader.h"
#include "window/preview/DesktopThumbnailers.h"

namespace vantor {

// A picture of the file no larger than the size; null when there is none. Any one thread.
using PicturePreviewer = std::function<QImage(const QString& file, QSize largest)>;

// Pictures as they are, movies by their first frame, sound by its cover, documents and archives as the
// desktop's thumbnail programs show them, text as a page of its first lines. Any thread.
PicturePreviewer makeFilePreviewer(std::shared_ptr<DecodePool> pool,
                                   std::shared_ptr<const DesktopThumbnailers> desktop,
                                   MovieReaderOptions movies = {});

// What one look at a file tells.
struct FileLook {
    QImage picture;               // null: none
    std::int64_t durationMs = 0;  // of a movie or sound; 0: not known
};

// The same picture, and how long a movie or sound is. Any one thread.
using FileLooker = std::function<FileLook(const QString& file, QSize largest)>;
FileLooker makeFileLooker(std::shared_ptr<DecodePool> pool,
                          std::shared_ptr<const DesktopThumbnailers> desktop, MovieReaderOptions movies = {});

}  // namespace vantor

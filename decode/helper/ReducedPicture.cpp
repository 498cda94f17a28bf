// One rule a kind of file.
#include "decode/helper/ReducedPicture.h"

#include <algorithm>
#include <utility>

#include "decode/helper/ByteSpan.h"
#include "decode/helper/LowpassPicture.h"
#include "decode/helper/RawPreviews.h"
#include "decode/helper/SensorData.h"
#include "decode/helper/SummaryThumbnail.h"

namespace vantor::decode {

namespace {

QByteArray borrowed(QByteArrayView bytes, std::uint64_t at, std::uint64_t length) {
    const std::uint64_t left = static_cast<std::uint64_t>(bytes.size()) - at;
    return QByteArray::fromRawData(bytes.data() + at, static_cast<qsizetype>(std::min(length, left)));
}

}  // namespace

QList<ReducedPicture> reducedPicturesIn(QByteArrayView bytes) {
    SpanSource source(spanOf(bytes));
    ByteView view(source);
    QList<ReducedPicture> pictures;
    const RawPreviews previews = rawPreviews(view);
    for (const auto& [at, length] : previews.places) {
        pictures.append({borrowed(bytes, at, length), "jpeg", previews.turn});
    }
    if (QByteArray picture = lowpassPicture(view); !picture.isEmpty()) {
        pictures.append({std::move(picture), "ppm", previews.turn});
    }
    if (isTiffBasedRaw(bytes)) {
        pictures.append({borrowed(bytes, 0, view.size()), "tiff"});
    }
    if (QByteArray bitmap = summaryThumbnail(view); !bitmap.isEmpty()) {
        pictures.append({std::move(bitmap), "bmp"});
    }
    return pictures;
}

}  // namespace vantor::decode

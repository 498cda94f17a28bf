// One rule a kind of file.
#include "decode/helper/ReducedPicture.h"

#include <utility>

#include "decode/helper/ByteSpan.h"
#include "decode/helper/LowpassPicture.h"
#include "decode/helper/RawPreviews.h"
#include "decode/helper/SensorData.h"
#include "decode/helper/SummaryThumbnail.h"

namespace vantor::decode {

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

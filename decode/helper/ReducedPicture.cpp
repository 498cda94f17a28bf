// One rule a kind of file.
#include "decode/helper/ReducedPicture.h"

#include "decode/helper/ByteSpan.h"
#include "decode/helper/SensorData.h"
#include "decode/helper/SummaryThumbnail.h"

namespace vantor::decode {

ReducedPicture reducedPictureIn(QByteArrayView bytes) {
    if (isTiffBasedRaw(bytes)) {
        return {QByteArray::fromRawData(bytes.data(), bytes.size()), "tiff"};
    }
    SpanSource source(spanOf(bytes));
    ByteView view(source);
    return {summaryThumbnail(view), "bmp"};
}

}  // namespace vantor::decode

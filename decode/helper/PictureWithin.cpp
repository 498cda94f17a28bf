// One rule a kind of file.
#include "decode/helper/PictureWithin.h"

#include <cstdint>

#include "decode/helper/ByteSpan.h"
#include "formats/Registry.h"

namespace vantor::decode {

namespace {

QByteArray screenPicture(QByteArrayView bytes, ByteView& view) {
    constexpr std::uint64_t kTiffAt = 20, kTiffLength = 24;
    return borrowed(bytes, view.le32(kTiffAt).value_or(0), view.le32(kTiffLength).value_or(0));
}

// Whatever the carving took along behind the last box would make the HEIF library refuse it all.
QByteArray withoutForeignTail(QByteArrayView bytes, ByteView& view) {
    const Extent extent = kIsoMedia.walk(view);
    return borrowed(bytes, 0, extent.verdict == Verdict::Unknown ? view.size() : extent.end);
}

}  // namespace

QByteArray pictureWithin(QByteArrayView bytes) {
    SpanSource source(spanOf(bytes));
    ByteView view(source);
    if (view.matches(0, "\xc5\xd0\xd3\xc6")) {
        return screenPicture(bytes, view);
    }
    if (view.matches(4, "ftyp")) {
        return withoutForeignTail(bytes, view);
    }
    return borrowed(bytes, 0, view.size());
}

}  // namespace vantor::decode

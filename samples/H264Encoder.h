// A video encoder just large enough to make real H.264: what changes is sent as plain samples, the rest is
// skipped.
#pragma once

#include <QByteArray>
#include <vector>

#include "samples/Canvas.h"

namespace vantor::samples {

// A constrained-baseline H.264 stream (ITU-T H.264) as its parts; no part has a start code or length.
struct H264Video {
    int width = 0;  // multiples of 16
    int height = 0;
    QByteArray sequenceParameters;
    QByteArray pictureParameters;
    std::vector<QByteArray> frames;  // one slice each; the first is a key frame, the others follow from it
};

H264Video encodeH264(const std::vector<Picture>& frames);

// What stands before each part in a bare stream (ITU-T H.264 annex B).
inline const QByteArray kStartCode("\0\0\0\1", 4);

// The avcC record (ISO/IEC 14496-15) with four-byte lengths.
QByteArray avcConfiguration(const H264Video& video);
// A frame with its length before it, as MP4, Matroska and FLV store it.
QByteArray lengthPrefixed(const QByteArray& part);

}  // namespace vantor::samples

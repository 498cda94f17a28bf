// A baseline JPEG encoder in whole numbers, so that the card's photos are the same on every machine.
#pragma once

#include <QByteArray>

#include "samples/Canvas.h"

namespace vantor::samples {

enum class ChromaSampling { Full, Halved };
enum class JfifHeader { Written, Omitted };

struct JpegOptions {
    int quality = 88;  // 1..100
    ChromaSampling sampling = ChromaSampling::Halved;
    JfifHeader jfif = JfifHeader::Written;
    QByteArray segments;      // whole marker segments put after the JFIF header
    int restartInterval = 0;  // in blocks of one step of the scan, 0 for none
};

// A whole JPEG file (ISO/IEC 10918-1, baseline, the standard Huffman tables of its Annex K).
QByteArray encodeJpeg(const Picture& picture, const JpegOptions& options);

// A marker segment with its length.
QByteArray jpegSegment(int marker, const QByteArray& content);

}  // namespace vantor::samples

// The small picture that a compound file (FlashPix pictures, older office documents) keeps in its summary.
#pragma once

#include <QByteArray>

#include "formats/ByteView.h"

namespace vantor::decode {

// That picture as a BMP file; empty where the bytes are no compound file or bring no bitmap. Reads no more
// than a fixed number of directory entries and a fixed length of summary. Sources: MS-CFB, and the property
// set "SummaryInformation" of MS-OLEPS.
QByteArray summaryThumbnail(ByteView& view);

}  // namespace vantor::decode

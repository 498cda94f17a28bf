// Encoded bytes in, bounded upright pixels out. Runs in the helper only.
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <optional>

#include "decode/helper/Channel.h"

namespace vantor::decode {

struct PictureResult {
    QImage image;    // RGB32 or ARGB32_Premultiplied, sRGB, upright, within the bound
    QSize fullSize;  // upright, before scaling; empty when not known
    bool partial = false;
};

// Decodes the first picture by the handlers that its bytes call for; nullopt when none shows anything.
std::optional<PictureResult> decodePicture(QByteArrayView bytes, QByteArrayView extension, QSize bound);

// The small picture that the file may bring along, for where nothing can be made of the full one.
std::optional<PictureResult> decodeReduced(QByteArrayView bytes, QSize bound);

// Loads every handler's library and sets the decoders' limits; once, before the first picture.
void preparePictureDecoders();

class PictureJobDecoder : public JobDecoder {
  public:
    Answer decode(const Job& job) override;
};

}  // namespace vantor::decode

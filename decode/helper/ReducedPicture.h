// What can be shown of a file whose full picture nobody here can decode.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace vantor::decode {

struct ReducedPicture {
    QByteArray bytes;    // borrows those of the file where it can; empty where the file brings none
    QByteArray handler;  // that reads them
};

// The reduced picture that some files bring along:
// - camera raw files built on TIFF: the picture of the first directory (TIFF/EP, DNG);
// - compound files: the bitmap in their summary.
ReducedPicture reducedPictureIn(QByteArrayView bytes);

}  // namespace vantor::decode

// What can be shown of a file whose full picture nobody here can decode.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QImageIOHandler>
#include <QList>

namespace vantor::decode {

struct ReducedPicture {
    QByteArray bytes;    // borrows those of the file where it can
    QByteArray handler;  // that reads them
    // To turn it upright, where its own bytes do not say how it was held.
    QImageIOHandler::Transformations turn = QImageIOHandler::TransformationNone;
};

// The smaller pictures that some files bring along, to be tried in this order; empty where there is none:
// - camera raw files, and TIFF files as they are when cut short: the JPEG pictures for quick viewing;
// - raw files in the VC-5 compression: its coarsest band;
// - those with sensor data: the picture of the first directory (TIFF/EP, DNG);
// - compound files: the bitmap in their summary.
QList<ReducedPicture> reducedPicturesIn(QByteArrayView bytes);

}  // namespace vantor::decode

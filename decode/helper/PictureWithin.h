// Files that are no picture of their own but bring one along.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace vantor::decode {

// What a decoder is to see of some bytes; borrows them where it can, so they must outlive it.
// - PostScript with a picture for the screen behind it: that picture, as Adobe's Encapsulated PostScript
//   specification (5002) places it; empty where it has none.
// - ISO base media (HEIF and its like): without what lies behind the file's last box.
// - All else: the bytes themselves.
QByteArray pictureWithin(QByteArrayView bytes);

}  // namespace vantor::decode

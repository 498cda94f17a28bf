// A JPEG whose segments are so many that reading them is the attack.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace vantor::decode {

// Segments of a JPEG that its library keeps: comments and descriptions. Each is put at the end of a list that
// is walked from its beginning, so that their number counts squared.
constexpr int kMostKeptSegments = 1024;

// The same picture with all kept segments beyond that number turned into ones that are passed over; a
// borrowed view of the bytes where there are no more. Bytes that are no JPEG stay as they are.
QByteArray withoutCrowd(QByteArrayView jpeg);

}  // namespace vantor::decode

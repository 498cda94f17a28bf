// Which image handlers may try some bytes, told from the bytes themselves.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

namespace vantor::decode {

// Drawings follow references to other files; a helper can open none.
inline constexpr char kDrawingFormat[] = "svg";

// The handlers to try, the likeliest first; empty when the bytes are no picture of a kind we read.
// `extension` (lower case) decides only for kinds without a mark of their own.
QList<QByteArray> handlersFor(QByteArrayView bytes, QByteArrayView extension);

// All handlers that handlersFor() may name.
QList<QByteArray> allHandlers();

}  // namespace vantor::decode

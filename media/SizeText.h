// The display text of a size.
#pragma once

#include <QString>

namespace vantor {

// A decimal byte count as text such as "1.88  GB " (doubled and trailing blanks wanted). The value passes
// through a single-precision float; units step by 1024 and are taken only when the value is strictly greater.
QString getMPSize(const QString& byteCount);

}  // namespace vantor

// Documents and data files of many kinds, each small but whole.
#pragma once

#include <QByteArray>

#include "samples/Canvas.h"

namespace vantor::samples {

QByteArray pdfFile(const Picture& photo);  // ISO 32000, one page

}  // namespace vantor::samples

// The folder of real files for tests that use the toolkit's strings.
#pragma once

#include <QString>

#include "tests/formats/Corpus.h"

namespace vantor::test {

// Empty where there is none.
inline QString corpusFolder() {
    return QString::fromStdString(corpusRoot().lexically_normal().string());
}

}  // namespace vantor::test

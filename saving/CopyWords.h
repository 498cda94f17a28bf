// How the copy of a medium stands, for people.
#pragma once

#include <QString>

#include "media/MediumCopy.h"

namespace vantor {

// "34 % copied", and what is bad: "34 % copied, 12 bad sectors".
QString copyWords(const CopyProgress& copy);

// What became of it: "64.0 GB copied, 12 sectors bad, 300 not read".
QString copyEndWords(const CopyProgress& copy);

}  // namespace vantor

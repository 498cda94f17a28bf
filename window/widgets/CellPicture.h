// What the cell of a found item shows in place of its type's icon.
#pragma once

#include <QByteArray>
#include <cstdint>

namespace vantor {

struct CellPicture {
    QByteArray encoded;           // a picture that this program encoded; empty: there is none
    std::int64_t durationMs = 0;  // of a movie or sound; 0: not known
};

}  // namespace vantor

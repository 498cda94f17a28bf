// What was made of a broken item after the search: put together from pieces, or made playable. The item
// itself stays as it was found.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>

#include "formats/IsoSamples.h"
#include "results/Assembly.h"

namespace vantor {

struct ItemSource;

// A file that is `head`, bytes of the medium that belong to the item, and `index`.
struct Twin {
    QByteArray head;
    DataPlace data;  // counted from the first byte of where they lie
    QByteArray index;

    std::uint64_t bytes() const {
        return static_cast<std::uint64_t>(head.size() + index.size()) + (data.to - data.from);
    }
};

enum class MendKind {
    Completed,    // all of it was found, and that is proved
    PutTogether,  // everything fits, but another piece might fit as well: the user has to look
    Repaired,     // what is there of a movie, with an index of our own
};

struct Mend {
    MendKind kind = MendKind::PutTogether;
    Assembly assembly;  // where the data lies; without runs: where the item was carved, and behind it
    Twin twin;

    // Of a repaired movie.
    std::size_t pictures = 0;
    double pictureSeconds = 0;
    double soundSeconds = 0;
    QString like;  // the whole movie that told how its camera writes
};

// Where the data of the mend is read from, as the item is read from `item`.
ItemSource sourceOf(const Mend& mend, const ItemSource& item);

// "complete", "put together" or "repaired": what a file's name gets.
QString markOf(MendKind kind);

// "complete, put together from 3 pieces", for the user.
QString describe(const Mend& mend);

}  // namespace vantor

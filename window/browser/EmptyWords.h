// What an empty list of found items says: what is the case, and what may help.
#pragma once

#include <QString>
#include <cstddef>

#include "scan/SearchEnd.h"

namespace vantor {

struct EmptyWords {
    QString title;
    QString advice;
};

// What was searched for, and where.
struct SearchWish {
    bool photo = true;
    bool entireDisk = true;
    bool allTypes = true;  // of the mode; photo mode knows no others
    bool thorough = true;  // as well as the general search
};

// Nothing was found until now.
EmptyWords nothingYet(bool photo);
// Nothing was found by the search that has ended; never advises what was just done.
EmptyWords nothingFound(const SearchWish& wish, const SearchEnd& end);
// What the user chose to see of what was found.
struct ShownChoice {
    bool someKind = false;  // something else than all items in the box above the list
    bool oneType = false;   // in the table of types
    bool picked = false;    // a type, a day or the like, or a name, in the pane beside the list
};
// There are items, but none is of the kind that was chosen to be shown.
EmptyWords nothingShown(std::size_t found, const ShownChoice& choice);

}  // namespace vantor

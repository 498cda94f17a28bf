// Writes what was made of a broken item, beside what is saved of the item itself.
#pragma once

#include <QString>
#include <functional>

#include "saving/ItemSaver.h"

namespace vantor {

struct TwinPlace {
    std::shared_ptr<Destination> destination;
    QString folder;  // below it
    QString name;    // as the item's, without a mark
};
// Beside the item where that was saved, else in its type's folder.
TwinPlace placeOfTwin(const std::shared_ptr<Destination>& destination, const FoundItem& item,
                      const SaveOutcome& saved);

// "MP400002 repaired.MP4" for "MP400002.MP4" and the mark "repaired".
QString twinNameOf(const QString& name, const QString& mark);

// Under the item's name with the mark of its kind, whole or not at all. What cannot be read is written as
// zeros. Asked between pieces, `unwanted`, when given, ends it. `checksum`: whether its sum is wanted.
SaveOutcome writeTwin(const TwinPlace& place, std::shared_ptr<const Mend> mend, const ItemSource& item,
                      const std::function<bool()>& unwanted, bool checksum = false);

}  // namespace vantor

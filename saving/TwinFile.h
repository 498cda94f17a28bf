// Writes the twin of a broken movie, made playable or put together, beside what is saved of the movie itself.
#pragma once

#include <QString>
#include <atomic>

#include "repair/MovieRepair.h"
#include "results/MediumBytes.h"

namespace vantor {

struct WrittenTwin {
    QString path;   // empty when it was not written
    QString error;  // a sentence for the user then
};

// "MP400002 repaired.MP4" for "MP400002.MP4" and the mark "repaired".
QString twinNameOf(const QString& name, const QString& mark);

// Into `<destination>/<type>/`, under the name as it is given, whole or not at all. What of the movie cannot
// be read is written as zeros. `unwanted`, when not null, may be set by anybody to end it.
WrittenTwin writeTwin(const QString& destination, const QString& type, const QString& name,
                      const RepairedMovie& repaired, MediumBytes& movie, const std::atomic<int>* unwanted);

}  // namespace vantor

// The order in which media are listed.
#pragma once

#include <QList>

#include "media/MediaBackend.h"

namespace vantor {

// By device node, numbers by value: sdb, sdb1, sdb2, sdb10, sdc. A disk comes before its volumes.
void sortByDevice(QList<MediumRecord>& media);

}  // namespace vantor

// Looking at what a run of the command left in its destination.
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

#include "saving/Sha256.h"
#include "tests/support/Files.h"

namespace vantor {

// Checksums, in hexadecimal.
inline QSet<QByteArray> checksumsUnder(const QString& folder) {
    QSet<QByteArray> sums;
    for (const QString& file : filesUnder(folder)) {
        sums.insert(Sha256::of(contentsOf(folder + u'/' + file)).toHex());
    }
    return sums;
}

}  // namespace vantor

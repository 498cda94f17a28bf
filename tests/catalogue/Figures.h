// What the tests count in catalogue records.
#pragma once

#include <QString>
#include <QStringList>
#include <cmath>
#include <set>

#include "catalogue/SignatureRecord.h"

namespace vantor {

// The different values of one field of all records.
inline std::set<QString> valuesIn(const QStringList& records, RecordField field) {
    std::set<QString> values;
    for (qsizetype n = 0; n < recordCount(records); ++n) {
        values.insert(recordField(records, n, field));
    }
    return values;
}

// Items expected in 64 GiB of random bytes: each sector matches a header of n bytes with probability 256^-n.
inline double falseItemsIn64GiB(const QStringList& records) {
    constexpr double kSectors = 64.0 * 1024 * 1024 * 1024 / 512;
    double sum = 0;
    for (qsizetype n = 0; n < recordCount(records); ++n) {
        const auto digits = static_cast<double>(recordField(records, n, Header_Hex).size());
        sum += kSectors * std::pow(16.0, -digits);
    }
    return sum;
}

}  // namespace vantor

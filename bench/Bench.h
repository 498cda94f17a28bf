// What the benches share: the middle of several runs, and records of made-up signatures.
#pragma once

#include <QStringList>
#include <algorithm>
#include <random>
#include <vector>

namespace vantor::bench {

// The upper middle one of at least one value.
inline double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The first `count` of a fixed row of records, each with a signature of six bytes at a sector's start.
inline QStringList madeUpRecords(int count) {
    std::mt19937 random(2);
    QStringList array;
    for (int n = 0; n < count; ++n) {
        QString hex;
        for (int byte = 0; byte < 6; ++byte)
            hex += QStringLiteral("%1").arg(random() % 256, 2, 16, QLatin1Char('0'));
        array << QStringLiteral("X%1").arg(n) << QStringLiteral("1000000") << hex << QStringLiteral("1")
              << QString() << QString() << QString::number(hex.left(2).toInt(nullptr, 16));
    }
    return array;
}

}  // namespace vantor::bench

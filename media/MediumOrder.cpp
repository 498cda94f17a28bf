// Comparing device names as people number them.
#include "media/MediumOrder.h"

#include <algorithm>

namespace vantor {

namespace {

qsizetype digitsAt(QStringView text, qsizetype at) {
    qsizetype end = at;
    while (end < text.size() && text[end] >= u'0' && text[end] <= u'9') {
        ++end;
    }
    return end - at;
}

bool comesBefore(QStringView a, QStringView b) {
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        const qsizetype digitsOfA = digitsAt(a, i);
        const qsizetype digitsOfB = digitsAt(b, j);
        if (digitsOfA == 0 || digitsOfB == 0) {
            if (a[i] != b[j]) {
                return a[i] < b[j];
            }
            ++i;
            ++j;
            continue;
        }
        const auto numberOfA = a.sliced(i, digitsOfA).toULongLong();
        const auto numberOfB = b.sliced(j, digitsOfB).toULongLong();
        if (numberOfA != numberOfB) {
            return numberOfA < numberOfB;
        }
        i += digitsOfA;
        j += digitsOfB;
    }
    return a.size() - i < b.size() - j;
}

}  // namespace

void sortByDevice(QList<MediumRecord>& media) {
    std::stable_sort(media.begin(), media.end(), [](const MediumRecord& a, const MediumRecord& b) {
        return comesBefore(a.target.path, b.target.path);
    });
}

}  // namespace vantor

// Percentage and text of the sector counter.
#include "scan/ProgressText.h"

#include <QObject>

namespace vantor {

std::uint64_t percentDone(std::uint64_t index, std::uint64_t start, std::uint64_t total) {
    return total == 0 ? 0 : (index - start) * 100 / total;
}

QString progressText(std::uint64_t index, std::uint64_t start, std::uint64_t end, std::uint64_t total) {
    return QObject::tr("Sectors %1 of %2   ( Completed %3% )")
        .arg(index)
        .arg(end)
        .arg(percentDone(index, start, total));
}

}  // namespace vantor

// Size text in single-precision arithmetic, which decides the second decimal of large media.
#include "media/SizeText.h"

#include "catalogue/NumberText.h"

namespace vantor {

QString getMPSize(const QString& byteCount) {
    static constexpr const char* kUnits[] = {"bytes", " KB", " MB", " GB", " TB"};
    constexpr float kStep = 1024.0F;
    constexpr int kLargestUnit = 4;
    auto value = static_cast<float>(textToDouble(byteCount));
    int unit = 0;
    while (unit < kLargestUnit && value > kStep) {
        value /= kStep;
        ++unit;
    }
    return QString::asprintf("%.2f %s ", static_cast<double>(value), kUnits[unit]);
}

}  // namespace vantor

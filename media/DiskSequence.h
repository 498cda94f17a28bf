// The kernel's number for what is in a slot.
#pragma once

#include <QFile>
#include <QString>
#include <cstdint>

namespace vantor {

// Of the disk that `identifier` is or belongs to; 0 where the kernel keeps none (before Linux 5.15). `root`
// is "" but in tests.
inline std::uint64_t diskSequenceOf(const QString& identifier, const QString& root = {}) {
    for (const char* place : {"/diskseq", "/../diskseq"}) {
        QFile file(root + QStringLiteral("/sys/class/block/") + identifier + QLatin1String(place));
        if (file.open(QIODevice::ReadOnly)) {
            return file.readLine(64).trimmed().toULongLong();
        }
    }
    return 0;
}

}  // namespace vantor

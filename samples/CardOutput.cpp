// Sparse writing, and clearing up after a write that failed.
#include "samples/CardOutput.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace vantor::samples {

namespace {

constexpr qsizetype kPieceBytes = 4096;

bool isZero(const char* bytes, qsizetype count) {
    return std::all_of(bytes, bytes + count, [](char c) { return c == 0; });
}

bool writePieces(QFile& file, const QByteArray& bytes) {
    for (qsizetype at = 0; at < bytes.size(); at += kPieceBytes) {
        const qsizetype count = std::min(kPieceBytes, bytes.size() - at);
        if (isZero(bytes.constData() + at, count))
            continue;
        if (!file.seek(at) || file.write(bytes.constData() + at, count) != count)
            return false;
    }
    // The end of the file may lie in zeros that were skipped.
    return file.flush() && file.resize(bytes.size());
}

}  // namespace

QString writeWhole(const QString& path, const QByteArray& bytes, Writing writing) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    const bool done = writing == Writing::Sparse ? writePieces(file, bytes)
                                                 : file.write(bytes) == bytes.size() && file.flush();
    if (done)
        return {};
    const QString why = QStringLiteral("%1: %2").arg(path, file.errorString());
    file.close();
    if (QFileInfo(path).isFile())  // a device stays where it is
        file.remove();
    return why;
}

}  // namespace vantor::samples

// Looking at what a run of the command left in its destination.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <QString>
#include <QStringList>

#include "results/Sha256.h"

namespace vantor {

inline QByteArray bytesAt(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

inline QStringList filesUnder(const QString& folder) {
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(QDir(folder).relativeFilePath(it.next()));
    }
    files.sort();
    return files;
}

// Checksums, in hexadecimal.
inline QSet<QByteArray> checksumsUnder(const QString& folder) {
    QSet<QByteArray> sums;
    for (const QString& file : filesUnder(folder)) {
        sums.insert(Sha256::of(bytesAt(folder + u'/' + file)).toHex());
    }
    return sums;
}

}  // namespace vantor

// Looking at what a test wrote.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QString>
#include <QStringList>

namespace vantor {

// No file of a test holds the words that stand for one that cannot be read.
inline QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

// All files below the folder, hidden ones included, as paths from there, sorted.
inline QStringList filesUnder(const QString& folder) {
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        files.append(QDir(folder).relativeFilePath(it.next()));
    }
    files.sort();
    return files;
}

}  // namespace vantor

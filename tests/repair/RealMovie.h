// A movie of the corpus, whole or with a cluster that is another file's.
#pragma once

#include <QByteArray>
#include <QFile>

#include "tests/formats/Corpus.h"

namespace vantor::test {

// Empty without the corpus. `path` is below its movies.
inline QByteArray realMovie(
    const char* path = "mov/media__libraries__test_data__src__test__assets__media__mp4__bt601.mov") {
    QFile file(QStringLiteral("%1/videos/%2")
                   .arg(QString::fromStdString(corpusRoot().string()), QLatin1String(path)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Of the movie that realMovie() gives: within its first picture, H.264 of 25 KB.
inline QByteArray withForeignCluster(QByteArray movie) {
    constexpr qsizetype kAt = 12288;
    for (qsizetype i = 0; i < 4096; ++i) {
        movie[kAt + i] = static_cast<char>(i * i * 31 % 251 + 3);
    }
    return movie;
}

}  // namespace vantor::test

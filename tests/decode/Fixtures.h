// What the decode tests share: the helper, the corpus, and pictures made on the spot.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <algorithm>

#include "decode/DecodePool.h"

namespace vantor::test {

inline DecodePoolOptions poolOptions(int helpers = 2) {
    DecodePoolOptions options;
    options.helper = QStringLiteral(VANTOR_DECODE_HELPER);
    options.helpers = helpers;
    return options;
}

// The folder of real files; empty when it is not here.
inline QString corpusFolder() {
    QString folder = qEnvironmentVariable("VANTOR_CORPUS");
    if (folder.isEmpty()) {
        folder = QStringLiteral(VANTOR_SOURCE_DIR "/../shared/corpus");
    }
    return QDir(folder).exists() ? QDir::cleanPath(folder) : QString();
}

inline QStringList filesBelow(const QString& folder) {
    QStringList files;
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        files.append(walk.next());
    }
    files.sort();
    return files;
}

inline QByteArray bytesOfFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Left half red, right half blue.
inline QImage twoColours(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(size.width() / 2, 0, size.width(), size.height(), Qt::blue);
    return image;
}

inline QByteArray encoded(
    const QImage& image, const char* format,
    QImageIOHandler::Transformations transformation = QImageIOHandler::TransformationNone) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setTransformation(transformation);
    return writer.write(image) ? bytes : QByteArray();
}

inline bool isNear(QRgb pixel, QColor colour) {
    const QColor found(pixel);
    return std::abs(found.red() - colour.red()) < 40 && std::abs(found.green() - colour.green()) < 40 &&
           std::abs(found.blue() - colour.blue()) < 40;
}

}  // namespace vantor::test

// What the decode tests share: the helper, the corpus, and pictures made on the spot.
#pragma once

#include <signal.h>

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <chrono>
#include <random>
#include <thread>

#include "decode/DecodePool.h"
#include "tests/support/CorpusFolder.h"

namespace vantor::test {

// Beyond which a test fails rather than waits: longer than anything takes on the busiest machine.
constexpr std::chrono::minutes kPatience{1};

inline DecodePoolOptions poolOptions(int helpers = 2) {
    DecodePoolOptions options;
    options.helper = QStringLiteral(VANTOR_DECODE_HELPER);
    options.helpers = helpers;
    options.thumbnailDeadline = options.pictureDeadline = options.startDeadline = kPatience;
    return options;
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

// The fields of each line of a table below tests/; lines that begin with # are comments.
inline QList<QList<QByteArray>> tableRows(const char* table) {
    QList<QList<QByteArray>> rows;
    const QByteArray text = bytesOfFile(QStringLiteral(VANTOR_SOURCE_DIR "/tests/") + QLatin1String(table));
    for (const QByteArray& line : text.split('\n')) {
        if (!line.isEmpty() && !line.startsWith('#')) {
            rows.append(line.split('\t'));
        }
    }
    return rows;
}

// Left half red, right half blue.
inline QImage twoColours(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(size.width() / 2, 0, size.width(), size.height(), Qt::blue);
    return image;
}

inline QByteArray encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, format) ? bytes : QByteArray();
}

// A JPEG stored as it is, with an Exif segment that says how to hold it: 3 half a turn, 6 a quarter to the
// right.
inline QByteArray jpegHeldBy(const QImage& image, char orientation) {
    const QByteArray tiff =
        QByteArray("II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0", 18) + orientation + QByteArray(7, '\0');
    const QByteArray exif = QByteArray("Exif\0\0", 6) + tiff;
    const auto length = static_cast<char>(exif.size() + 2);
    return encoded(image, "jpeg").insert(2, QByteArray("\xff\xe1\0", 3) + length + exif);
}

// A few bytes changed, a stretch zeroed, or the end cut off.
inline QByteArray mutated(QByteArray bytes, std::mt19937& random) {
    const auto somewhere = [&] {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(bytes.size()));
    };
    switch (random() % 4) {
        case 0:
            return bytes.left(somewhere());
        case 1: {
            const qsizetype from = somewhere();
            bytes.replace(from, std::min<qsizetype>(512, bytes.size() - from), QByteArray(512, '\0'));
            return bytes;
        }
        default:
            for (std::uint32_t n = 1 + random() % 16; n > 0; --n) {
                // The first bytes steer a decoder most.
                const qsizetype at =
                    random() % 2 ? somewhere() : somewhere() % std::min<qsizetype>(bytes.size(), 1024);
                bytes[at] = static_cast<char>(random());
            }
            return bytes;
    }
}

// Stops a process and waits until it truly stands still.
inline void stopProcess(pid_t pid) {
    kill(pid, SIGSTOP);
    while (!bytesOfFile(QStringLiteral("/proc/%1/stat").arg(pid)).contains(") T ")) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

inline bool isNear(QRgb pixel, QColor colour) {
    const QColor found(pixel);
    return std::abs(found.red() - colour.red()) < 40 && std::abs(found.green() - colour.green()) < 40 &&
           std::abs(found.blue() - colour.blue()) < 40;
}

}  // namespace vantor::test

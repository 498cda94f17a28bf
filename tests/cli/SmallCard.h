// A card and catalogues that a test of the command writes down.
#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace vantor {

// A small image with two photos and a PDF in between, data sectors elsewhere.
inline QString writeImage(const QTemporaryDir& folder, const QString& name = QStringLiteral("card.img"),
                          int sectors = 64) {
    QByteArray bytes(sectors * 512, 'z');
    bytes.replace(4 * 512, 11, QByteArray("\xFF\xD8\xFF\xE0\x00\x10JFIF\0", 11));
    bytes.replace(20 * 512, 8, "%PDF-1.4");
    bytes.replace(40 * 512, 11, QByteArray("\xFF\xD8\xFF\xE0\x00\x10JFIF\0", 11));
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
}

// Photo catalogues alike for both passes, and that of raw files, in a folder of their own: its path.
inline QString writeCatalogues(const QTemporaryDir& folder, const QByteArray& photo,
                               const QByteArray& raw = {}) {
    const QDir dir(folder.path());
    dir.mkpath("catalogue");
    const auto write = [&](const char* name, const QByteArray& text) {
        QFile file(dir.filePath("catalogue/") + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    write("ZelExt2.dll", photo);
    write("ZelExt2Adv.dll", photo);
    write("ZelRaw.dll", raw);
    return dir.filePath("catalogue");
}

inline QByteArray record(const QByteArray& extension, const QByteArray& header) {
    return "E: " + extension + "\nS: 1000000\nHeader : " + header + "\nO: 1\nR: 0\nD: x\n";
}

}  // namespace vantor

// Each kind of file on the card holds what its format asks for.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QtEndian>

#include "samples/Scenes.h"
#include "tests/samples/CardFixture.h"

namespace vantor::samples {
namespace {

// The mean difference of the channels of two pictures of one size, in 1/100 of a level.
qint64 meanDifference(const QImage& image, const QImage& picture) {
    if (image.size() != picture.size())
        return 255 * 100;
    qint64 sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb seen = image.pixel(x, y);
            const QRgb meant = picture.pixel(x, y);
            sum += qAbs(qRed(seen) - qRed(meant)) + qAbs(qGreen(seen) - qGreen(meant)) +
                   qAbs(qBlue(seen) - qBlue(meant));
        }
    }
    return sum * 100 / (qint64{picture.width()} * picture.height() * 3);
}

TEST(CardPhotos, EveryPhotoInOnePiece_DecodesToALargePicture) {
    int photos = 0;
    for (const ListedFile& file : listedFiles()) {
        if (file.type != QLatin1String("JPG"))
            continue;
        ++photos;
        if (!file.inOnePiece())
            continue;
        const QImage image = decoded(bytesOf(file));
        EXPECT_GE(image.width() * image.height(), 1024 * 768) << qPrintable(file.name);
        EXPECT_TRUE(bytesOf(file).endsWith("\xFF\xD9")) << qPrintable(file.name);
    }
    EXPECT_EQ(photos, 28);
}

TEST(CardPhotos, FirstPhoto_LooksLikeItsMotif) {
    const QImage image = decoded(bytesOf("IMG_0001.JPG"));
    ASSERT_EQ(image.size(), QSize(2048, 1536));
    EXPECT_LT(meanDifference(image, painted(seaSunset, 2048, 1536)), 300);
}

TEST(CardPhotos, TurnedPhoto_ComesOutUpright) {
    const QImage image = decoded(bytesOf("IMG_0015.JPG"));
    ASSERT_EQ(image.size(), QSize(960, 1280));
    EXPECT_LT(meanDifference(image, painted(daisies, 960, 1280)), 300);
}

TEST(CardPhotos, ExifPhoto_HoldsItsDateAndASmallPicture) {
    const QByteArray photo = bytesOf("IMG_0001.JPG");
    EXPECT_EQ(photo.mid(6, 6), QByteArray("Exif\0\0", 6));
    EXPECT_EQ(photo.count("2024:06:01 11:07:00"), 3);  // of the file, of the shot, of the digitising
    const qsizetype small = photo.indexOf("\xFF\xD8", 2);
    ASSERT_GT(small, 0);
    const qsizetype end = photo.indexOf("\xFF\xD9", small) + 2;
    EXPECT_EQ(decoded(photo.mid(small, end - small)).size(), QSize(160, 120));
}

struct Expected {
    const char* name;
    QSize size;
};

TEST(CardPictures, KindsThatQtReads_DecodeToTheirSizes) {
    const Expected pictures[] = {
        {"TESTCARD.PNG", {800, 600}}, {"BALLOONS.PNG", {640, 480}}, {"LAVENDER.BMP", {640, 480}},
        {"MEADOW.BMP", {321, 240}},   {"SUNSET.GIF", {240, 180}},   {"COSMOS.GIF", {480, 360}},
        {"BAY.PPM", {400, 300}},      {"FOREST.PGM", {400, 300}},   {"FLOWER.ICO", {64, 64}},
        {"AUTUMN.XPM", {160, 120}},   {"SUNSET.APNG", {240, 180}},  {"CITY.MPO", {640, 480}},
    };
    for (const Expected& picture : pictures)
        EXPECT_EQ(decoded(bytesOf(picture.name)).size(), picture.size) << picture.name;
}

TEST(CardPictures, KindsThatQtReadsWithPlugins_DecodeToTheirSizes) {
    const QHash<QByteArray, std::vector<Expected>> byFormat = {
        {"tiff", {{"LAKE.TIF", {640, 480}}, {"AURORA.TIFF", {480, 360}}}},
        {"tga", {{"DAISIES.TGA", {320, 240}}}},
        {"webp", {{"SAIL.WEBP", {400, 300}}}},
        {"icns", {{"NIGHT.ICNS", {256, 256}}}}};
    int tried = 0;
    for (auto it = byFormat.begin(); it != byFormat.end(); ++it) {
        if (!QImageReader::supportedImageFormats().contains(it.key()))
            continue;
        for (const Expected& picture : it.value()) {
            QByteArray bytes = bytesOf(picture.name);
            QBuffer buffer(&bytes);
            EXPECT_EQ(QImageReader(&buffer, it.key()).read().size(), picture.size) << picture.name;
            ++tried;
        }
    }
    if (tried == 0)
        GTEST_SKIP() << "no picture plugins installed";
}

TEST(CardPictures, LosslessPictures_AreExactlyWhatWasPainted) {
    EXPECT_EQ(meanDifference(decoded(bytesOf("BALLOONS.PNG")), painted(balloons, 640, 480)), 0);
    EXPECT_EQ(meanDifference(decoded(bytesOf("MEADOW.BMP")), painted(meadow, 321, 240)), 0);
    EXPECT_EQ(meanDifference(decoded(bytesOf("BAY.PPM")), painted(lilacBay, 400, 300)), 0);
}

TEST(CardPictures, AnimatedGif_HasAllItsFrames) {
    QByteArray bytes = bytesOf("SUNSET.GIF");
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    int frames = 0;
    while (!reader.read().isNull())
        ++frames;
    EXPECT_EQ(frames, 12);
}

// The types and sizes of the boxes of a QuickTime or MP4 file must add up to the file.
QHash<QByteArray, qsizetype> topBoxes(const QByteArray& file) {
    QHash<QByteArray, qsizetype> boxes;
    qsizetype at = 0;
    while (at + 8 <= file.size() && be32(file, at) >= 8) {
        boxes[file.mid(at + 4, 4)] = at;
        at += be32(file, at);
    }
    return at == file.size() ? boxes : QHash<QByteArray, qsizetype>();
}

TEST(CardMovies, BoxesOfQuickTimeAndMp4_AddUp) {
    for (const char* name : {"MOV_0001.MOV", "MOV_0003.MP4", "MOV_0004.3GP", "MOV_0005.M4V"}) {
        const auto boxes = topBoxes(bytesOf(name));
        EXPECT_LE(boxes.size(), 4) << name;  // with one that is free
        EXPECT_EQ(boxes.value("ftyp", -1), 0) << name;
        EXPECT_TRUE(boxes.contains("moov") && boxes.contains("mdat")) << name;
    }
}

TEST(CardMovies, QuickTimeFrames_StandWhereTheIndexSays) {
    const QByteArray movie = bytesOf("MOV_0001.MOV");
    const qsizetype offsets = movie.indexOf("stco");
    const qsizetype sizes = movie.indexOf("stsz");
    ASSERT_GT(offsets, 0);
    ASSERT_EQ(be32(movie, offsets + 8), 50);
    for (int i = 0; i < 50; ++i) {
        const QByteArray frame =
            movie.mid(be32(movie, offsets + 12 + i * 4), be32(movie, sizes + 16 + i * 4));
        EXPECT_TRUE(frame.startsWith("\xFF\xD8\xFF") && frame.endsWith("\xFF\xD9")) << i;
        EXPECT_EQ(decoded(frame).size(), QSize(480, 320)) << i;
    }
}

TEST(CardMovies, Mp4Samples_AreUnitsWhoseLengthsAddUp) {
    const QByteArray movie = bytesOf("MOV_0003.MP4");
    const qsizetype sizes = movie.indexOf("stsz");
    qsizetype at = be32(movie, movie.indexOf("stco") + 12);
    ASSERT_EQ(be32(movie, sizes + 12), 30);
    for (int i = 0; i < 30; ++i) {
        const qsizetype end = at + be32(movie, sizes + 16 + i * 4);
        while (at < end)
            at += 4 + be32(movie, at);
        EXPECT_EQ(at, end) << i;
    }
    EXPECT_EQ(movie.mid(at + 4, 4), "moov");
}

TEST(CardMovies, AviIndex_PointsAtTheFrames) {
    const QByteArray movie = bytesOf("MOV_0002.AVI");
    EXPECT_EQ(le32(movie, 4) + 8, movie.size());
    const qsizetype movi = movie.indexOf("movi");
    const qsizetype index = movie.lastIndexOf("idx1");
    ASSERT_GE(le32(movie, index + 4), 100 * 16);
    for (int i = 0; i < le32(movie, index + 4) / 16; ++i) {
        const qsizetype entry = index + 8 + i * 16;
        EXPECT_EQ(movie.mid(movi + le32(movie, entry + 8), 4), movie.mid(entry, 4)) << i;
    }
}

TEST(CardMovies, TransportPackets_EachBeginWithTheSyncByte) {
    const QByteArray plain = bytesOf("MOV_0007.TS");
    const QByteArray timed = bytesOf("MOV_0006.MTS");
    ASSERT_EQ(plain.size() % 188, 0);
    ASSERT_EQ(timed.size() % 192, 0);
    for (qsizetype i = 0; i < plain.size() / 188; ++i)
        ASSERT_EQ(plain[i * 188], 'G') << i;
    for (qsizetype i = 0; i < timed.size() / 192; ++i)
        ASSERT_EQ(timed[i * 192 + 4], 'G') << i;
}

TEST(CardSounds, WaveAndItsKin_SayTheirOwnSizes) {
    const QByteArray wave = bytesOf("TUNE.WAV");
    EXPECT_EQ(le32(wave, 4) + 8, wave.size());
    const qsizetype data = wave.indexOf("data");
    EXPECT_EQ(data + 8 + le32(wave, data + 4), wave.size());
    const QByteArray aiff = bytesOf("TUNE.AIFF");
    EXPECT_EQ(be32(aiff, 4) + 8, aiff.size());
    const QByteArray au = bytesOf("TUNE.AU");
    EXPECT_EQ(be32(au, 4) + be32(au, 8), au.size());
    const QByteArray midi = bytesOf("TUNE.MID");
    EXPECT_EQ(be32(midi, 18) + 22, midi.size());
}

// Members of a ZIP file by its directory; of stored ones also the content is checked.
QList<QByteArray> zipMembers(const QByteArray& zip) {
    const qsizetype end = zip.lastIndexOf("PK\5\6");
    if (end < 0 || end + 22 != zip.size())
        return {};
    QList<QByteArray> names;
    qsizetype at = le32(zip, end + 16);
    for (int i = 0; i < le16(zip, end + 10) && zip.mid(at, 4) == "PK\1\2"; ++i) {
        const qsizetype local = le32(zip, at + 42);
        const int nameLength = le16(zip, at + 28);
        const QByteArray name = zip.mid(at + 46, nameLength);
        const QByteArray data = zip.mid(local + 30 + nameLength, le32(zip, at + 20));
        const bool stored = le16(zip, at + 10) == 0;
        if (zip.mid(local, 4) == "PK\3\4" && zip.mid(local + 30, nameLength) == name &&
            (!stored || checksum(data) == le32(zip, at + 16)))
            names << name;
        at += 46 + nameLength;
    }
    return at == end ? names : QList<QByteArray>();
}

TEST(CardDocuments, OfficeDocuments_AreArchivesOfTheRightMembers) {
    EXPECT_EQ(zipMembers(bytesOf("NOTES.ZIP")), QList<QByteArray>({"notes.txt", "places.csv", "track.gpx"}));
    EXPECT_TRUE(zipMembers(bytesOf("NOTES.DOCX")).contains("word/document.xml"));
    EXPECT_TRUE(zipMembers(bytesOf("SQUARES.XLSX")).contains("xl/worksheets/sheet1.xml"));
    EXPECT_TRUE(zipMembers(bytesOf("TALK.PPTX")).contains("ppt/slides/slide1.xml"));
    for (const char* name : {"NOTES.ODT", "SQUARES.ODS", "TALK.ODP", "BOOK.EPUB"}) {
        EXPECT_EQ(zipMembers(bytesOf(name)).value(0), "mimetype") << name;
        EXPECT_EQ(bytesOf(name).mid(30, 19), "mimetypeapplication") << name;
    }
}

TEST(CardDocuments, PdfTable_PointsAtItsObjects) {
    const QByteArray pdf = bytesOf("ALBUM.PDF");
    EXPECT_TRUE(pdf.startsWith("%PDF-1.4\n") && pdf.endsWith("%%EOF\n"));
    const qsizetype start = pdf.lastIndexOf("startxref\n") + 10;
    const qsizetype table = pdf.mid(start, pdf.indexOf('\n', start) - start).toLongLong();
    ASSERT_EQ(pdf.mid(table, 7), "xref\n0 ");
    const qsizetype first = pdf.indexOf('\n', table + 5) + 1;
    const int objects = pdf.mid(table + 7, first - table - 8).toInt();
    EXPECT_GT(objects, 6);
    for (int i = 1; i < objects; ++i) {
        const qsizetype at = pdf.mid(first + i * 20, 10).toLongLong();
        EXPECT_TRUE(pdf.mid(at).startsWith(QByteArray::number(i) + " 0 obj")) << i;
    }
}

TEST(CardDocuments, XmlDocuments_AreWellFormed) {
    for (const char* name : {"PLACES.XML", "DRAWING.SVG", "TRACK.GPX", "PLACES.KML"}) {
        QXmlStreamReader reader(bytesOf(name));
        int elements = 0;
        while (!reader.atEnd())
            elements += reader.readNext() == QXmlStreamReader::StartElement;
        EXPECT_FALSE(reader.hasError()) << name << qPrintable(reader.errorString());
        EXPECT_GT(elements, 5) << name;
    }
}

TEST(CardDocuments, Database_IsTwoPagesOfTheSizeItSays) {
    const QByteArray database = bytesOf("PLACES.SQLITE");
    EXPECT_EQ(database.left(16), QByteArray("SQLite format 3\0", 16));
    EXPECT_EQ(qFromBigEndian<quint16>(database.constData() + 16), 4096);
    EXPECT_EQ(be32(database, 28) * 4096, database.size());
    EXPECT_EQ(database[4096], 13);
}

TEST(CardArchives, TarHeaders_SumUp) {
    const QByteArray tar = bytesOf("NOTES.TAR");
    ASSERT_EQ(tar.size() % 512, 0);
    int members = 0;
    for (qsizetype at = 0; tar[at] != 0;) {
        QByteArray header = tar.mid(at, 512);
        const int told = header.mid(148, 6).toInt(nullptr, 8);
        header.replace(148, 8, "        ");
        int sum = 0;
        for (const char c : header)
            sum += static_cast<std::uint8_t>(c);
        EXPECT_EQ(sum, told);
        at += 512 + (header.mid(124, 11).toLongLong(nullptr, 8) + 511) / 512 * 512;
        ++members;
    }
    EXPECT_EQ(members, 3);
}

}  // namespace
}  // namespace vantor::samples

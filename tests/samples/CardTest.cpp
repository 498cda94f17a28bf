// The card as a whole: the same everywhere, listed truly, and written whole or not at all.
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <stdexcept>

#include "samples/Card.h"
#include "tests/samples/CardFixture.h"

namespace vantor::samples {
namespace {

QByteArray sha256(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

TEST(SampleCard, Image_HasTheSizeOfASmallCard) {
    EXPECT_EQ(cardImage().size(), 64 * 1024 * 1024);
}

TEST(SampleCard, FileLargerThanTheCard_IsRefused) {
    const auto tooLarge = [] { return QByteArray(65 * 1024 * 1024, 'x'); };
    EXPECT_THROW(buildSampleCard({{"A", "B.BIN", tooLarge}}), std::runtime_error);
}

TEST(SampleCard, ContentThatCannotBeMade_IsReported) {
    const auto failing = []() -> QByteArray { throw std::runtime_error("no encoder"); };
    EXPECT_THROW(buildSampleCard({{"A", "B.BIN", failing}}), std::runtime_error);
}

TEST(SampleCard, List_HasItsHeaderAndManyKinds) {
    EXPECT_TRUE(cardListText().startsWith("name\ttype\tfirst_sector\tbytes\tsha256\tlayout\n"));
    EXPECT_EQ(qsizetype(listedFiles().size()), cardListText().count('\n') - 1);
    QSet<QString> names;
    QSet<QString> types;
    for (const ListedFile& file : listedFiles()) {
        names.insert(file.name);
        types.insert(file.type);
        EXPECT_EQ(file.type, QFileInfo(file.name).suffix().toUpper()) << qPrintable(file.name);
    }
    EXPECT_EQ(std::size_t(names.size()), listedFiles().size());
    EXPECT_GE(types.size(), 150);
}

TEST(SampleCard, ListedFiles_HashToWhatTheListSays) {
    int pieces = 0;
    for (const ListedFile& file : listedFiles()) {
        if (!file.inOnePiece()) {
            ++pieces;
            continue;
        }
        EXPECT_EQ(sha256(bytesOf(file)), file.sha256) << qPrintable(file.name);
    }
    EXPECT_EQ(pieces, 1);
}

TEST(SampleCard, FragmentedFile_PutTogetherFromItsRuns_HashesToWhatTheListSays) {
    for (const ListedFile& file : listedFiles()) {
        if (file.inOnePiece())
            continue;
        ASSERT_TRUE(file.note.startsWith(QLatin1String("fragmented: sectors ")));
        const QStringList runs =
            file.note.mid(20).section(QLatin1Char(';'), 0, 0).split(QLatin1String(" and "));
        ASSERT_EQ(runs.size(), 2);
        QByteArray bytes;
        for (const QString& run : runs) {
            const qint64 first = run.section(QLatin1Char('-'), 0, 0).toLongLong();
            const qint64 last = run.section(QLatin1Char('-'), 1, 1).toLongLong();
            bytes += cardImage().mid(first * 512, (last - first + 1) * 512);
        }
        EXPECT_EQ(sha256(bytes.left(file.bytes)), file.sha256);
        EXPECT_NE(sha256(bytesOf(file)), file.sha256);
    }
}

TEST(SampleCard, Files_DoNotOverlapAndComeInOrder) {
    for (std::size_t i = 1; i < listedFiles().size(); ++i)
        EXPECT_LE(listedFiles()[i - 1].endSector(), listedFiles()[i].firstSector)
            << qPrintable(listedFiles()[i].name);
    EXPECT_GE(listedFiles().front().firstSector, 256);
    EXPECT_LE(listedFiles().back().endSector(), 131072);
}

TEST(SampleCard, Gaps_HoldWhatTheListSays) {
    int zeroGaps = 0;
    int noiseGaps = 0;
    for (const ListedFile& file : listedFiles()) {
        const bool zeros = file.note.contains(QLatin1String(" zero sectors"));
        const bool noise = file.note.contains(QLatin1String(" sectors of random bytes"));
        if (!zeros && !noise)
            continue;
        const qint64 sectors =
            file.note.section(QLatin1String("a gap of "), 1).section(QLatin1Char(' '), 0, 0).toLongLong();
        ASSERT_GT(sectors, 0);
        for (qint64 s = file.firstSector - sectors; s < file.firstSector; ++s) {
            const bool isZero = cardImage().mid(s * 512, 512).count('\0') == 512;
            EXPECT_EQ(isZero, zeros) << qPrintable(file.name) << s;
        }
        ++(zeros ? zeroGaps : noiseGaps);
    }
    EXPECT_GE(zeroGaps, 10);
    EXPECT_GE(noiseGaps, 8);
}

TEST(SampleCard, NoSectorInsideAFile_LooksLikeTheStartOfAnother) {
    const QByteArray starts[] = {
        "\xFF\xD8\xFF", "\x89PNG",  "RIFF",  "PK\3\4",           "GIF8",      "%PDF", "fLaC", "OggS", "MThd",
        "8BPS",         "SQLite f", "ID3\3", "\x1A\x45\xDF\xA3", "7z\xBC\xAF"};
    QSet<qint64> known;
    for (const ListedFile& file : listedFiles())
        known.insert(file.firstSector);
    int seen = 0;
    for (qint64 s = 0; s < cardImage().size() / 512; ++s) {
        for (const QByteArray& start : starts) {
            if (!cardImage().mid(s * 512, start.size()).startsWith(start))
                continue;
            ++seen;
            EXPECT_TRUE(known.contains(s)) << s << " " << start.toHex().constData();
        }
    }
    EXPECT_GT(seen, 50);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(SampleCardProgram, RunAgain_MakesTheSameCard) {
    QTemporaryDir folder;
    const QString image = folder.filePath(QStringLiteral("card.img"));
    const QString list = folder.filePath(QStringLiteral("card.tsv"));
    EXPECT_EQ(QProcess::execute(QStringLiteral(SAMPLE_CARD_PROGRAM), {image, QStringLiteral("--list"), list}),
              0);
    EXPECT_EQ(contentOf(list).toStdString(), cardListText().toStdString());
    EXPECT_TRUE(contentOf(image) == cardImage());
}

TEST(SampleCardProgram, OutputThatCannotBeWritten_ExitsWith1AndLeavesNothing) {
    QTemporaryDir folder;
    const QString image = folder.filePath(QStringLiteral("card.img"));
    QProcess program;
    program.start(QStringLiteral(SAMPLE_CARD_PROGRAM),
                  {image, QStringLiteral("--list"), folder.filePath(QStringLiteral("none/card.tsv"))});
    ASSERT_TRUE(program.waitForFinished(600000));
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.readAllStandardError().contains("card.tsv"));
    EXPECT_FALSE(QFile::exists(image));
}

TEST(SampleCardProgram, WrongUse_ExitsWith2) {
    QProcess program;
    program.start(QStringLiteral(SAMPLE_CARD_PROGRAM), {QStringLiteral("a"), QStringLiteral("b")});
    ASSERT_TRUE(program.waitForFinished(600000));
    EXPECT_EQ(program.exitCode(), 2);
    EXPECT_TRUE(program.readAllStandardError().contains("usage"));
}

}  // namespace
}  // namespace vantor::samples

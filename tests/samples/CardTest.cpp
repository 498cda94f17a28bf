// The card as a whole: the same everywhere, listed truly, and written whole or not at all.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <csignal>

#include "samples/CardOutput.h"
#include "samples/SampleCard.h"
#include "tests/samples/CardFixture.h"

namespace vantor::samples {
namespace {

QByteArray sha256(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

// A change of the card is a change of what every measurement on it means: update these knowingly.
constexpr char kImageSha256[] = "6bd2a263db01b83fdb002898d81e5c1028dcf8cec8637bb9f6becaccf40ac807";
constexpr char kListSha256[] = "7e650d1e20b3dc7c5b9a635434431aef8dd6d31477a648389d012bc2e378769b";

TEST(SampleCard, Image_IsTheOneThatWasAgreed) {
    ASSERT_EQ(cardImage().size(), 64 * 1024 * 1024);
    EXPECT_EQ(sha256(cardImage()).toStdString(), kImageSha256);
    EXPECT_EQ(sha256(cardListText()).toStdString(), kListSha256);
}

TEST(SampleCard, BuiltAnew_IsTheSame) {
    const auto card = buildSampleCard();
    ASSERT_TRUE(card.has_value());
    EXPECT_TRUE(card->image == cardImage());
    EXPECT_EQ(listText(card->entries), cardListText());
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

TEST(SampleCardProgram, OutputThatCannotBeWritten_ExitsWith1AndLeavesNothing) {
    QTemporaryDir folder;
    const QString image = folder.filePath(QStringLiteral("card.img"));
    QProcess program;
    program.start(QStringLiteral(SAMPLE_CARD_PROGRAM),
                  {image, QStringLiteral("--list"), folder.filePath(QStringLiteral("none/card.tsv"))});
    ASSERT_TRUE(program.waitForFinished(100000));
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.readAllStandardError().contains("card.tsv"));
    EXPECT_FALSE(QFile::exists(image));
}

TEST(SampleCardProgram, WrongUse_ExitsWith2) {
    QProcess program;
    program.start(QStringLiteral(SAMPLE_CARD_PROGRAM), {QStringLiteral("a"), QStringLiteral("b")});
    ASSERT_TRUE(program.waitForFinished(100000));
    EXPECT_EQ(program.exitCode(), 2);
    EXPECT_TRUE(program.readAllStandardError().contains("usage"));
}

// Lets files grow no further than 8 KiB while it lives.
class SmallFilesOnly {
  public:
    SmallFilesOnly() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{8192, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFilesOnly() { setrlimit(RLIMIT_FSIZE, &m_before); }

  private:
    rlimit m_before{};
};

TEST(CardOutput, FileThatCannotGrow_IsReportedAndRemoved) {
    QTemporaryDir folder;
    for (const Writing writing : {Writing::Plain, Writing::Sparse}) {
        const QString path = folder.filePath(QStringLiteral("card.img"));
        QString why;
        {
            const SmallFilesOnly limit;
            why = writeWhole(path, QByteArray(100000, 'x'), writing);
        }
        EXPECT_TRUE(why.startsWith(path));
        EXPECT_FALSE(QFile::exists(path));
    }
}

TEST(CardOutput, Sparse_KeepsZerosAtTheEnd) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sparse"));
    const QByteArray bytes = QByteArray(5000, '\0') + "middle" + QByteArray(20000, '\0');
    EXPECT_EQ(writeWhole(path, bytes, Writing::Sparse), QString());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll() == bytes);
}

}  // namespace
}  // namespace vantor::samples

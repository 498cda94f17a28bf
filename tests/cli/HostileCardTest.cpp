// Cards that somebody wrote to do harm: what they claim takes neither room nor ground from the files on them.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <random>
#include <set>

#include "media/SectorReader.h"
#include "tests/cli/CommandRun.h"
#include "tests/cli/Saved.h"
#include "tests/formats/Corpus.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

QByteArray inWholeSectors(QByteArray bytes) {
    const qsizetype over = bytes.size() % static_cast<qsizetype>(kSectorBytes);
    return over == 0 ? bytes : bytes.append(static_cast<qsizetype>(kSectorBytes) - over, '\0');
}

QByteArray box(const char* name, const QByteArray& body) {
    QByteArray size(4, '\0');
    qToBigEndian<quint32>(static_cast<quint32>(body.size() + 8), size.data());
    return size + name + body;
}

// Nothing but the boxes that make it whole.
QByteArray movie(qsizetype bytes) {
    return box("ftyp", "isom" + QByteArray(8, '\0')) + box("moov", box("mvhd", QByteArray(100, '\0'))) +
           box("mdat", noise(bytes, 5));
}

class HostileCard : public testing::Test {
  protected:
    // Saves all that the mode finds on the card.
    void recover(const QByteArray& card, const char* mode) {
        const QString image = m_folder.filePath("card.img");
        QFile file(image);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(card) == card.size());
        file.close();
        const CommandRun run = runCommand({"--mode", mode, "--save", out(), image});
        EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    }
    QString out() const { return m_folder.filePath("out"); }
    // What the output takes on the disk; second names take nothing.
    std::uint64_t bytesWritten() const {
        std::set<ino_t> counted;
        std::uint64_t sum = 0;
        for (const QString& name : filesUnder(out())) {
            struct stat info {};
            ::stat(QFile::encodeName(out() + u'/' + name).constData(), &info);
            sum += counted.insert(info.st_ino).second ? static_cast<std::uint64_t>(info.st_size) : 0;
        }
        return sum;
    }

  private:
    const QTemporaryDir m_folder;
};

// The table that they name lies at the end of the card, and says of every sector that it is the table's own.
QByteArray compoundHeader(quint32 number, quint32 tables, quint32 firstTable) {
    QByteArray header("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    header += littleEndian(number) + QByteArray(12, '\0') + littleEndian(quint16{0x3E}) +
              littleEndian(quint16{3}) + littleEndian(quint16{0xFFFE}) + littleEndian(quint16{9}) +
              littleEndian(quint16{6}) + QByteArray(10, '\0') + littleEndian(tables) + QByteArray(20, '\0') +
              littleEndian(quint32{0xFFFFFFFE}) + littleEndian(quint32{0});
    for (quint32 i = 0; i < 109; ++i) {
        header += littleEndian(i < tables ? firstTable : 0xFFFFFFFF);
    }
    return header;
}

}  // namespace

TEST_F(HostileCard, DocumentsThatClaimTheCard_LeaveRoomForTheOthers) {
    constexpr qsizetype kCard = 24 * 1024 * 1024, kHeaders = 643'000 / 512;
    QByteArray card;
    for (qsizetype i = 0; i < kHeaders; ++i) {
        card += compoundHeader(static_cast<quint32>(i), 1, static_cast<quint32>(kCard / 512 - 600));
    }
    QList<QByteArray> good;
    for (unsigned i = 0; i < 40; ++i) {
        good.append(wavFile(30'000, i + 1));
        card += inWholeSectors(good.last());
    }
    card.resize(kCard - 1024 * 1024, '\0');
    card.append(QByteArray("\xFD\xFF\xFF\xFF", 4).repeated((kCard - card.size()) / 4));
    recover(card, "rawfile");
    const QSet<QByteArray> sums = checksumsUnder(out());
    for (const QByteArray& file : good) {
        EXPECT_TRUE(sums.contains(Sha256::of(file).toHex()));
    }
    EXPECT_LT(bytesWritten(), 3 * static_cast<std::uint64_t>(kCard));
    EXPECT_GT(filesUnder(out()).size(), kHeaders) << "and each of them is there";
}

TEST_F(HostileCard, FillersInFrontOfAMovie_DoNotCutIt) {
    const QByteArray good = movie(20'000'000);
    QByteArray card;
    for (int i = 0; i < 6500; ++i) {
        card += box("free", QByteArray(504, '\0'));
    }
    recover(card + inWholeSectors(good) + noise(1'000'000, 3), "video");
    EXPECT_TRUE(checksumsUnder(out()).contains(Sha256::of(good).toHex()));
}

TEST_F(HostileCard, MutatedFiles_TakeNotMuchMoreThanTheCard) {
    const auto root = test::corpusRoot();
    if (root.empty()) {
        GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
    }
    std::mt19937 random(17);
    QByteArray card;
    for (int turn = 0; turn < 2; ++turn) {
        for (const test::CorpusFile& file : test::corpusFiles(root)) {
            test::Bytes bytes = test::readFile(root / file.path);
            if (bytes.size() > 150'000 || bytes.empty()) {
                continue;
            }
            // Mostly in the headers, where lengths stand.
            for (int i = 0; i < 6; ++i) {
                const std::size_t range = i < 4 ? std::min<std::size_t>(bytes.size(), 200) : bytes.size();
                const std::size_t at = 8 + random() % range;
                bytes[std::min(at, bytes.size() - 1)] = static_cast<std::uint8_t>(random() >> 24);
            }
            card += inWholeSectors(
                {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())});
        }
    }
    for (const char* mode : {"photo", "video", "rawfile"}) {
        SCOPED_TRACE(mode);
        recover(card, mode);
        std::printf("%s: a card of %lld bytes, %llu bytes of output\n", mode,
                    static_cast<long long>(card.size()), static_cast<unsigned long long>(bytesWritten()));
        EXPECT_LT(bytesWritten(), 2 * static_cast<std::uint64_t>(card.size()));
        QDir(out()).removeRecursively();
    }
}

}  // namespace vantor

// Evidence images unpacked in a helper: the medium inside, or a refusal, and never anything else.
#include <gtest/gtest.h>
#include <signal.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "decode/EvidenceHelper.h"
#include "media/EvidenceImage.h"
#include "media/ImageFile.h"
#include "media/ImageParts.h"
#include "media/RawDevice.h"
#include "tests/support/EvidenceFiles.h"
#include "tests/support/Files.h"

namespace vantor {
namespace {

constexpr std::uint64_t kWindowSectors = 512;

// Noise, zeros and text by turns, in chunks' lengths, and a last chunk that is short.
QByteArray someMedium(std::uint64_t sectors) {
    std::mt19937 random(11);
    QByteArray bytes(static_cast<qsizetype>(sectors * kSectorBytes), '\0');
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const qsizetype kind = i / (40 * 512) % 3;
        bytes[i] = kind == 0   ? static_cast<char>(random())
                   : kind == 1 ? '\0'
                               : static_cast<char>('a' + i / 700 % 20);
    }
    return bytes;
}

EvidenceHelperOptions options() {
    EvidenceHelperOptions made;
    made.helper = QStringLiteral(VANTOR_EVIDENCE_HELPER);
    return made;
}

class EvidenceHelper : public testing::Test {
  protected:
    void SetUp() override {
        setEvidenceOpener([](std::vector<FileDescriptor> segments, QString* sentence) {
            return openEvidenceInHelper(std::move(segments), sentence, options());
        });
    }
    void TearDown() override { setEvidenceOpener({}); }

    std::unique_ptr<BlockSource> open(const QStringList& paths,
                                      const EvidenceHelperOptions& how = options()) {
        HeldImage image;
        auto segments = image.open(paths) ? image.openApart() : std::nullopt;
        return segments ? openEvidenceInHelper(std::move(*segments), &why, how) : nullptr;
    }

    void overwrite(const QString& path, qint64 at, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.seek(at);
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    // The sectors that are refused, each asked for by itself and in windows; all others are as they should
    // be.
    std::vector<std::uint64_t> refusedOf(BlockSource& source) {
        std::vector<std::uint64_t> refused;
        std::vector<std::uint8_t> window(kWindowSectors * kSectorBytes);
        for (std::uint64_t at = 0; at < source.sectors();) {
            const std::int64_t got = source.readAt(at, window);
            if (got <= 0) {
                refused.push_back(at++);
                continue;
            }
            const QByteArray read(reinterpret_cast<const char*>(window.data()), got);
            EXPECT_EQ(got % 512, 0);
            EXPECT_TRUE(read == medium.mid(static_cast<qsizetype>(at * kSectorBytes), got)) << "from " << at;
            at += static_cast<std::uint64_t>(got) / kSectorBytes;
        }
        return refused;
    }

    static std::vector<std::uint64_t> sectorsOf(std::uint64_t first, std::uint64_t end) {
        std::vector<std::uint64_t> all;
        for (std::uint64_t sector = first; sector < end; ++sector) {
            all.push_back(sector);
        }
        return all;
    }

    // Of the helpers that this process started, the one there is.
    static pid_t helperOfOurs() {
        for (const QString& name : QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")})) {
            const QList<QByteArray> words = contentsOf(QStringLiteral("/proc/%1/stat").arg(name)).split(' ');
            if (words.size() > 3 && words[1].startsWith("(vantor-read-ev") && words[3].toInt() == getpid()) {
                return name.toInt();
            }
        }
        return 0;
    }

    const QTemporaryDir folder;
    const QByteArray medium = someMedium(7812);
    QString why;
};

TEST_F(EvidenceHelper, OneSegment_IsTheMedium) {
    for (const bool packed : {false, true}) {
        const auto paths = writeEvidence(folder.path(), packed ? "packed" : "plain", medium, {packed, 0, {}});
        ASSERT_EQ(paths.size(), 1);
        const auto source = open(paths);
        ASSERT_TRUE(source) << why.toStdString();
        EXPECT_EQ(source->sectors(), 7812U);
        EXPECT_EQ(source->blockSectors(), kEvidenceChunkSectors);
        EXPECT_TRUE(refusedOf(*source).empty());
        std::uint8_t one[kSectorBytes];
        EXPECT_EQ(source->readAt(7812, one), -1);
        EXPECT_EQ(source->readAt(UINT64_MAX / 512, one), -1);
        EXPECT_EQ(source->readAt(7811, one), 512);
        EXPECT_TRUE(source->usable());
    }
}

TEST_F(EvidenceHelper, SeveralSegments_AreOneMedium) {
    const auto paths = writeEvidence(folder.path(), "card", medium, {false, 1 << 20, {}});
    ASSERT_EQ(paths.size(), 4);
    const auto source = open(paths);
    ASSERT_TRUE(source) << why.toStdString();
    EXPECT_TRUE(refusedOf(*source).empty());
}

TEST_F(EvidenceHelper, AnySegment_OpensThemAllAsAnyImage) {
    const auto paths = writeEvidence(folder.path(), "card", medium, {true, 1 << 20, {}});
    ASSERT_GE(paths.size(), 2);
    for (const QString& path : paths) {
        EXPECT_EQ(imageParts(path), paths);
        EXPECT_EQ(missingPart(path), QString());
        const auto facts = probeMedium(path, &why);
        ASSERT_TRUE(facts) << why.toStdString();
        EXPECT_TRUE(facts->isImage);
        EXPECT_EQ(facts->sectors, 7812U);
        const auto reader = openMedium(path);
        ASSERT_TRUE(reader);
        QByteArray read;
        while (reader->read()) {
            read.append(reinterpret_cast<const char*>(reader->current()), kSectorBytes);
        }
        EXPECT_TRUE(read == medium);
    }
}

TEST_F(EvidenceHelper, MissingSegment_IsNamed) {
    const auto paths = writeEvidence(folder.path(), "card", medium, {false, 1 << 20, {}});
    ASSERT_EQ(paths.size(), 4);
    for (const QString& missing : paths) {
        const QString away = missing + QStringLiteral(".away");
        ASSERT_TRUE(QFile::rename(missing, away));
        for (const QString& path : paths) {
            if (path != missing) {
                EXPECT_EQ(missingPart(path), missing);
                why.clear();
                EXPECT_FALSE(probeMedium(path, &why));
                EXPECT_TRUE(why.contains(missing)) << why.toStdString();
                EXPECT_FALSE(openMedium(path));
            }
        }
        ASSERT_TRUE(QFile::rename(away, missing));
    }
}

TEST_F(EvidenceHelper, DamagedChunk_RefusesItsSectorsAndNoOthers) {
    for (const bool packed : {false, true}) {
        const auto paths = writeEvidence(folder.path(), packed ? "packed" : "plain", medium, {packed, 0, {}});
        ASSERT_EQ(paths.size(), 1);
        const qint64 at = QFile(paths[0]).size() / 3;
        overwrite(paths[0], at, "damage");
        const auto source = open(paths);
        ASSERT_TRUE(source) << why.toStdString();
        const auto refused = refusedOf(*source);
        ASSERT_EQ(refused.size(), kEvidenceChunkSectors) << packed;
        EXPECT_EQ(refused.front() % kEvidenceChunkSectors, 0U);
        EXPECT_EQ(refused, sectorsOf(refused.front(), refused.front() + kEvidenceChunkSectors));
    }
}

TEST_F(EvidenceHelper, SectorsThatCouldNotBeReadThen_AreRefused) {
    const auto paths = writeEvidence(folder.path(), "card", medium, {true, 0, {1000, 1003}});
    ASSERT_EQ(paths.size(), 1);
    const auto source = open(paths);
    ASSERT_TRUE(source) << why.toStdString();
    EXPECT_EQ(source->blockSectors(), 1U);
    EXPECT_EQ(refusedOf(*source), sectorsOf(1000, 1003));
}

TEST_F(EvidenceHelper, SegmentThatEndsEarly_CostsWhatIsNotThere) {
    const auto paths = writeEvidence(folder.path(), "card", medium, {false, 1 << 20, {}});
    ASSERT_EQ(paths.size(), 4);
    ASSERT_TRUE(QFile::resize(paths[3], QFile(paths[3]).size() / 2));
    const auto source = open(paths);
    ASSERT_TRUE(source) << why.toStdString();
    const auto refused = refusedOf(*source);
    ASSERT_FALSE(refused.empty());
    EXPECT_GT(refused.front(), 5000U);
    EXPECT_EQ(refused, sectorsOf(refused.front(), 7812));
}

TEST_F(EvidenceHelper, Garbage_IsRefusedOrReadRight) {
    const auto paths = writeEvidence(folder.path(), "card", medium.first(600 * 512), {true, 0, {}});
    ASSERT_EQ(paths.size(), 1);
    const QByteArray good = contentsOf(paths[0]);
    const QString bad = folder.filePath("bad.E01");
    std::mt19937 random(5);
    int opened = 0, refusals = 0;
    for (int round = 0; round < 60; ++round) {
        QByteArray bytes = good;
        // The sections' heads lie before and behind the chunks.
        for (int flips = 1 + round % 4; flips > 0; --flips) {
            const qsizetype far = static_cast<qsizetype>(random() % 2600);
            bytes[round % 2 == 0 ? 13 + far % 1800 : bytes.size() - 1 - far] ^=
                static_cast<char>(1 + random() % 255);
        }
        QFile file(bad);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        file.close();
        why.clear();
        const auto source = open({bad});
        if (!source) {
            EXPECT_FALSE(why.isEmpty());
            ++refusals;
            continue;
        }
        ++opened;
        if (source->sectors() < 10000) {
            refusedOf(*source);
        }
    }
    EXPECT_GT(opened, 5);
    EXPECT_GT(refusals, 5);
    // All of it, behind the mark.
    QByteArray noise = good.first(13);
    for (int i = 0; i < 100000; ++i) {
        noise.append(static_cast<char>(random()));
    }
    QFile file(bad);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(noise);
    file.close();
    EXPECT_FALSE(open({bad}));
    EXPECT_FALSE(probeMedium(bad, &why));
    EXPECT_TRUE(why.contains("damaged")) << why.toStdString();
}

TEST_F(EvidenceHelper, HelperThatDies_CostsARead_AndIsReplacedAFewTimes) {
    const auto paths = writeEvidence(folder.path(), "card", medium);
    const auto source = open(paths);
    ASSERT_TRUE(source) << why.toStdString();
    std::vector<std::uint8_t> window(4 * kSectorBytes);
    int deaths = 0;
    while (source->usable() && deaths < 100) {
        const pid_t helper = helperOfOurs();
        ASSERT_GT(helper, 0);
        ASSERT_EQ(kill(helper, SIGKILL), 0);
        ++deaths;
        EXPECT_EQ(source->readAt(100, window), -1);
        if (source->usable()) {
            EXPECT_EQ(source->readAt(100, window), 4 * 512);
        }
    }
    EXPECT_EQ(deaths, 7);
    EXPECT_EQ(source->readAt(100, window), -1);
    EXPECT_EQ(helperOfOurs(), 0);
}

TEST_F(EvidenceHelper, HelperThatHangs_IsReplaced_AndTheUnitIsNotAskedForAgain) {
    const auto paths = writeEvidence(folder.path(), "card", medium);
    EvidenceHelperOptions how = options();
    how.readDeadline = std::chrono::milliseconds(200);
    const auto source = open(paths, how);
    ASSERT_TRUE(source) << why.toStdString();
    const pid_t helper = helperOfOurs();
    ASSERT_EQ(kill(helper, SIGSTOP), 0);
    std::uint8_t one[kSectorBytes];
    EXPECT_EQ(source->readAt(130, one), -1);
    EXPECT_NE(helperOfOurs(), helper);
    EXPECT_EQ(source->readAt(130, one), -1);
    EXPECT_EQ(source->readAt(128, one), -1);
    EXPECT_EQ(source->readAt(127, one), 512);
    EXPECT_EQ(source->readAt(192, one), 512);
}

TEST_F(EvidenceHelper, NoHelper_IsSaid) {
    const auto paths = writeEvidence(folder.path(), "card", medium.first(51200));
    EvidenceHelperOptions how = options();
    how.helper = QStringLiteral("/bin/false");
    EXPECT_FALSE(open(paths, how));
    EXPECT_TRUE(why.contains("does not start")) << why.toStdString();
    setEvidenceOpener({});
    EXPECT_FALSE(probeMedium(paths[0], &why));
    EXPECT_TRUE(why.contains("cannot be read here")) << why.toStdString();
}

}  // namespace
}  // namespace vantor

// Real files on a card, recovered and saved by the command: each comes back to the byte, whatever follows it.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "tests/cli/CommandRun.h"
#include "tests/cli/Saved.h"
#include "tests/formats/Corpus.h"
#include "tests/formats/CorpusExceptions.h"

namespace vantor {
namespace {

constexpr std::size_t kSector = 512;
constexpr std::size_t kTailSectors = 200;

enum class Tail { Noise, Zeros, NextFile };

struct Placed {
    const test::CorpusFile* file;
    std::uint64_t sector;
    QByteArray sha256;  // hexadecimal
};

struct Tally {
    int tried = 0;       // that the scan listed
    int exact = 0;       // that were saved to the byte
    int unlisted = 0;    // no item begins there
    int wrongWhole = 0;  // saved otherwise and said to be complete
    int wrongBroken = 0;
};

class CorpusSaving : public testing::TestWithParam<Tail> {
  protected:
    void SetUp() override {
        m_corpus = test::corpusFolder();
        if (m_corpus.empty()) {
            GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
        }
        m_files = test::corpusFiles(m_corpus);
        ASSERT_GT(m_files.size(), 200U);
    }

    void pad(QFile& image, std::uint64_t& sector, std::size_t bytes, Tail tail) {
        QByteArray rest(static_cast<qsizetype>((kSector - bytes % kSector) % kSector), '\0');
        std::size_t sectors = (bytes + kSector - 1) / kSector;
        if (tail != Tail::NextFile) {
            const auto noise = test::noise(kTailSectors * kSector, static_cast<std::uint32_t>(sector));
            rest += tail == Tail::Noise ? QByteArray(reinterpret_cast<const char*>(noise.data()),
                                                     static_cast<qsizetype>(noise.size()))
                                        : QByteArray(kTailSectors * kSector, '\0');
            sectors += kTailSectors;
        }
        image.write(rest);
        sector += sectors;
    }

    void writeCard(const QString& path, Tail tail) {
        QFile image(path);
        ASSERT_TRUE(image.open(QIODevice::WriteOnly));
        image.write(QByteArray(kSector, '\0'));
        std::uint64_t sector = 1;
        for (const test::CorpusFile& file : m_files) {
            if (file.hostile) {
                continue;
            }
            const test::Bytes bytes = test::readFile(m_corpus / file.path);
            const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
            m_placed.push_back({&file, sector, Sha256::of(view).toHex()});
            image.write(view.data(), view.size());
            pad(image, sector, bytes.size(), tail);
        }
    }

    std::filesystem::path m_corpus;
    std::vector<test::CorpusFile> m_files;
    std::vector<Placed> m_placed;
};

// What the report says of the items that begin at a sector.
struct Listed {
    QByteArray sha256;
    QByteArray soundness;
};

std::multimap<std::uint64_t, Listed> readReport(const QString& path) {
    std::multimap<std::uint64_t, Listed> items;
    const QList<QByteArray> lines = bytesAt(path).split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        // No name here holds a comma or a quote.
        const QList<QByteArray> fields = lines[i].split(',');
        if (fields.size() > 8) {
            items.insert({fields[3].toULongLong(), {fields[6], fields[7]}});
        }
    }
    return items;
}

std::string nameOfTail(const testing::TestParamInfo<Tail>& tail) {
    static const char* const kNames[] = {"ByNoise", "ByZeros", "ByTheNextFile"};
    return kNames[static_cast<int>(tail.param)];
}

bool endIsMarked(const std::string& path) {
    return test::exceptionFor(path) == nullptr;
}

}  // namespace

TEST_P(CorpusSaving, ListedFilesComeBackToTheByte) {
    const QTemporaryDir folder;
    const QString image = folder.filePath("card.img");
    writeCard(image, GetParam());
    std::multimap<std::uint64_t, Listed> items;
    for (const char* mode : {"photo", "video", "rawfile"}) {
        const QString out = folder.filePath(mode);
        const CommandRun run = runCommand({"--mode", mode, "--save", out, "--report", image});
        ASSERT_EQ(run.exitCode, 0) << run.err.constData();
        items.merge(readReport(out + "/Recovery report.csv"));
    }
    ASSERT_GT(items.size(), 300U);

    std::map<std::string, Tally> tallies;
    for (const Placed& placed : m_placed) {
        Tally& tally = tallies[placed.file->extension];
        const auto [begin, end] = items.equal_range(placed.sector);
        if (begin == end) {
            ++tally.unlisted;
            continue;
        }
        ++tally.tried;
        bool exact = false, said = false;
        for (auto item = begin; item != end; ++item) {
            exact = exact || item->second.sha256 == placed.sha256;
            said = said || item->second.soundness == "complete";
        }
        tally.exact += exact ? 1 : 0;
        tally.wrongWhole += !exact && said ? 1 : 0;
        tally.wrongBroken += exact && !said ? 1 : 0;
        if (endIsMarked(placed.file->path)) {
            EXPECT_TRUE(exact) << placed.file->path << " at sector " << placed.sector;
        }
    }
    std::printf("%-9s %6s %6s %14s %13s %9s\n", "type", "tried", "exact", "wrong complete", "wrong broken",
                "unlisted");
    Tally all;
    for (const auto& [name, t] : tallies) {
        std::printf("%-9s %6d %6d %14d %13d %9d\n", name.c_str(), t.tried, t.exact, t.wrongWhole,
                    t.wrongBroken, t.unlisted);
        all.tried += t.tried;
        all.exact += t.exact;
        all.wrongWhole += t.wrongWhole;
        all.wrongBroken += t.wrongBroken;
        all.unlisted += t.unlisted;
    }
    std::printf("%-9s %6d %6d %14d %13d %9d\n", "all", all.tried, all.exact, all.wrongWhole, all.wrongBroken,
                all.unlisted);
    EXPECT_GT(all.tried, 200);
}

INSTANTIATE_TEST_SUITE_P(Followed, CorpusSaving, testing::Values(Tail::Noise, Tail::Zeros, Tail::NextFile),
                         nameOfTail);

}  // namespace vantor

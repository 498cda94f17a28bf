// Real files through the saver: at the medium's end, found by one sector only, and broken in many ways.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <random>
#include <vector>

#include "saving/ItemSaver.h"
#include "saving/Sha256.h"
#include "tests/formats/Corpus.h"
#include "tests/formats/CorpusExceptions.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

constexpr std::size_t kForeignSectors = 3000;
constexpr std::size_t kLargestMutated = 600'000;

class CorpusItems : public testing::Test {
  protected:
    void SetUp() override {
        m_corpus = test::corpusRoot();
        if (m_corpus.empty()) {
            GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
        }
        m_files = test::corpusFiles(m_corpus);
        ASSERT_GT(m_files.size(), 200U);
    }

    QByteArray read(const test::CorpusFile& file) const {
        const test::Bytes bytes = test::readFile(m_corpus / file.path);
        return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
    }

    std::filesystem::path m_corpus;
    std::vector<test::CorpusFile> m_files;
};

QString typeOf(const test::CorpusFile& file) {
    return QString::fromStdString(file.extension);
}

}  // namespace

TEST_F(CorpusItems, OneSectorIsEnoughToSaveTheWholeFile) {
    int tried = 0;
    for (const test::CorpusFile& file : m_files) {
        if (file.hostile || test::exceptionFor(file.path) != nullptr) {
            continue;
        }
        const QByteArray bytes = read(file);
        const auto sectors = static_cast<std::size_t>((bytes.size() + 511) / 512);
        for (const std::size_t behind : {std::size_t{0}, kForeignSectors}) {
            SCOPED_TRACE(file.path + (behind == 0 ? " at the medium's end" : " before foreign bytes"));
            ScriptedMedium medium = mediumWith(bytes, 2, 2 + sectors + behind);
            const auto last = 2 + sectors - 1;
            if (bytes.size() % 512 != 0) {
                std::fill(medium.bytes[last].begin() + bytes.size() % 512, medium.bytes[last].end(), 0);
            }
            ScriptedReader reader(medium);
            const QTemporaryDir folder;
            const SaveOutcome outcome =
                ItemSaver(folder.path()).saveRuns(typeOf(file), "x", {{{2, 3}}, false}, reader);
            ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
            EXPECT_EQ(outcome.sha256, Sha256::of(bytes)) << outcome.bytes << " of " << bytes.size();
            EXPECT_EQ(outcome.verdict, Verdict::Complete);
            EXPECT_EQ(outcome.sha256, Sha256::of(contentsOf(outcome.path)));
            ++tried;
        }
    }
    EXPECT_GT(tried, 400);
}

TEST_F(CorpusItems, BrokenFilesAndMediaAreSavedWithinTheMedium) {
    std::mt19937_64 random(77);
    int tried = 0;
    for (const test::CorpusFile& file : m_files) {
        QByteArray bytes = read(file);
        if (static_cast<std::size_t>(bytes.size()) > kLargestMutated || bytes.isEmpty()) {
            continue;
        }
        for (int turn = 0; turn < 4; ++turn) {
            SCOPED_TRACE(file.path + " turn " + std::to_string(turn));
            QByteArray mutated = bytes;
            for (std::uint64_t i = random() % 40; i > 0; --i) {
                const auto at = static_cast<qsizetype>(random() % (turn % 2 == 0 ? 512 : bytes.size()));
                if (at < mutated.size()) {
                    mutated[at] = static_cast<char>(random());
                }
            }
            const auto sectors = static_cast<std::size_t>((bytes.size() + 511) / 512) + 1 + random() % 300;
            ScriptedMedium medium = mediumWith(mutated, 1, sectors + 1);
            for (std::uint64_t bad = random() % 5; bad > 0; --bad) {
                medium.badForEver.insert(1 + random() % sectors);
            }
            ScriptedReader reader(medium);
            const std::uint64_t carved = 1 + random() % sectors;
            const QTemporaryDir folder;
            const SaveOutcome outcome =
                ItemSaver(folder.path()).saveRuns(typeOf(file), "x", {{{1, 1 + carved}}, false}, reader);
            if (medium.badForEver.contains(1) && carved == 1) {
                EXPECT_FALSE(outcome.saved) << "not one sector";
                continue;
            }
            ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
            ASSERT_LE(outcome.bytes, sectors * 512);
            ASSERT_EQ(contentsOf(outcome.path).size(), static_cast<qsizetype>(outcome.bytes));
            // Nothing of the file that was carved is given up; what lies behind its own end is none of it.
            if (outcome.verdict != Verdict::Complete && outcome.sectorsUnreadable == 0) {
                constexpr std::uint64_t kBehindTheEnd = 4;  // of files that do not stop at their end mark
                const auto own =
                    std::max<std::uint64_t>(static_cast<std::uint64_t>(bytes.size()), kBehindTheEnd);
                EXPECT_GE(outcome.bytes, std::min(carved * 512, own - kBehindTheEnd));
            }
            ++tried;
        }
    }
    EXPECT_GT(tried, 800);
}

}  // namespace vantor

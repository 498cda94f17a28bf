// Real files on a card, recovered and saved by the command: each comes back to the byte, whatever follows it.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/cli/CommandRun.h"
#include "tests/support/CorpusCard.h"

namespace vantor {
namespace {

using test::Tail;

class CorpusSaving : public testing::TestWithParam<Tail> {
  protected:
    static void SetUpTestSuite() { s_account = new test::CorpusAccount; }
    static void TearDownTestSuite() {
        if (s_account->listed() != 0) {
            s_account->print("type");
        }
        delete s_account;
    }
    void SetUp() override {
        if (m_cards.isEmpty()) {
            GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
        }
        ASSERT_GT(m_cards.files().size(), 200U);
    }

    // Saves what the mode finds on the card, into a folder of its own.
    void recover(const QString& image, const QString& mode, test::ReportedItems& items) {
        const QString out = image + u'.' + mode;
        const CommandRun run = runCommand({QStringLiteral("--mode"), mode, QStringLiteral("--save"), out,
                                           QStringLiteral("--report"), image});
        ASSERT_EQ(run.exitCode, 0) << run.err.constData();
        test::readReport(out + QStringLiteral("/Recovery report.csv"), items);
    }
    void recoverAll(Tail tail, std::size_t& placedFiles) {
        const QTemporaryDir folder;
        const QString image = folder.filePath(QStringLiteral("card.img"));
        QFile card(image);
        ASSERT_TRUE(card.open(QIODevice::WriteOnly));
        const auto placed = m_cards.writeAll(tail, [&](const QByteArray& sectors) { card.write(sectors); });
        card.close();
        placedFiles = placed.size();
        test::ReportedItems items;
        for (const char* mode : {"photo", "video", "rawfile"}) {
            ASSERT_NO_FATAL_FAILURE(recover(image, QString::fromLatin1(mode), items));
        }
        for (const test::Placed& file : placed) {
            s_account->count(file, items);
        }
    }
    // A card for every file; its folder in the corpus says which mode is to find it.
    void recoverEach() {
        for (const test::CorpusFile& file : m_cards.files()) {
            const QTemporaryDir folder;
            const QString image = folder.filePath(QStringLiteral("card.img"));
            QFile card(image);
            ASSERT_TRUE(card.open(QIODevice::WriteOnly));
            const auto placed =
                m_cards.writeAtEnd(file, [&](const QByteArray& sectors) { card.write(sectors); });
            card.close();
            const bool photo = file.path.starts_with("photos/"), video = file.path.starts_with("videos/");
            test::ReportedItems items;
            ASSERT_NO_FATAL_FAILURE(recover(image,
                                            photo   ? QStringLiteral("photo")
                                            : video ? QStringLiteral("video")
                                                    : QStringLiteral("rawfile"),
                                            items));
            s_account->count(placed, items);
        }
    }

    const test::CorpusCards m_cards;
    static test::CorpusAccount* s_account;  // over all cards
};

test::CorpusAccount* CorpusSaving::s_account = nullptr;

}  // namespace

TEST_P(CorpusSaving, ListedFilesComeBackToTheByte) {
    const int before = s_account->listed();
    std::size_t placed = m_cards.files().size();
    if (GetParam() == Tail::MediumEnd) {
        recoverEach();
    } else {
        recoverAll(GetParam(), placed);
    }
    constexpr int kUnlisted = 8;  // bare streams and files without a beginning of their own
    EXPECT_GE(s_account->listed() - before, static_cast<int>(placed) - kUnlisted);
}

INSTANTIATE_TEST_SUITE_P(FollowedBy, CorpusSaving,
                         testing::Values(Tail::Noise, Tail::Zeros, Tail::NextFile, Tail::MediumEnd),
                         [](const auto& tail) { return test::nameOf(tail.param); });

}  // namespace vantor

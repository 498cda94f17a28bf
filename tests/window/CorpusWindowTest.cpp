// Real files on a card, recovered and saved through the window: each comes back to the byte, whatever follows
// it.
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "results/RecoveryMode.h"
#include "tests/support/CorpusCard.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

using test::Tail;

class CorpusWindow : public WindowTest, public testing::WithParamInterface<Tail> {
  protected:
    void SetUp() override {
        if (m_cards.isEmpty()) {
            GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
        }
        card.bytes.clear();
        m_placed = m_cards.writeAll(GetParam(), [this](const QByteArray& sectors) {
            const auto count = static_cast<std::size_t>(sectors.size()) / kSectorBytes;
            const auto first = card.bytes.size();
            card.bytes.resize(first + count);
            std::copy(sectors.begin(), sectors.end(), reinterpret_cast<char*>(card.bytes.data() + first));
        });
        const QDir shipped(QStringLiteral(VANTOR_SOURCE_DIR "/resources"));
        for (const QString& name : shipped.entryList({QStringLiteral("*.dll")})) {
            ASSERT_TRUE(QFile::copy(shipped.filePath(name), folder.filePath(name)));
        }
        source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
    }

    // From the first screen: searches in the mode, saves all that is found, and reads the report.
    void recover(int mode, test::ReportedItems& items) {
        const QTemporaryDir destination;
        open();
        if (mode == kPhotoMode) {
            toRange(mode);
        } else {
            toFileTypes(mode);
        }
        answers.press(QStringLiteral("OK"));
        click(controller->nextButton);
        constexpr std::chrono::minutes kLongest{5};
        ASSERT_TRUE(scanEnds(kLongest));
        controller->_path->setText(destination.path());
        controller->_path_Sig->setText(destination.path());
        answers.press(QStringLiteral("OK"));
        click(mode == kPhotoMode ? controller->saveAllButton : controller->saveAllButton_Sig);
        ASSERT_TRUE(waitFor([this] { return answers.allGiven(); }, kLongest));
        EXPECT_FALSE(controller->hasUnsavedItems());
        test::readReport(destination.filePath(QStringLiteral("Recovery report.csv")), items);
        close();
    }

    const test::CorpusCards m_cards;
    std::vector<test::Placed> m_placed;
};

TEST_P(CorpusWindow, SaveAll_BringsListedFilesBackToTheByte) {
    test::ReportedItems items;
    for (const int mode : {kPhotoMode, kVideoMode, kRawFileMode}) {
        ASSERT_NO_FATAL_FAILURE(recover(mode, items));
    }
    test::CorpusAccount account;
    for (const test::Placed& file : m_placed) {
        account.count(file, items);
    }
    constexpr int kUnlisted = 8;  // bare streams and files without a beginning of their own
    EXPECT_GE(account.listed(), static_cast<int>(m_placed.size()) - kUnlisted);
    account.print(test::nameOf(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(FollowedBy, CorpusWindow, testing::Values(Tail::Noise, Tail::Zeros, Tail::NextFile),
                         [](const auto& tail) { return test::nameOf(tail.param); });

}  // namespace
}  // namespace vantor

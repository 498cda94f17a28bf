// The threads of a scan: a hundred starts leak nothing, and nobody waits for a device that hangs.
#include <QDir>

#include "results/RecoveryMode.h"
#include "tests/support/Gate.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

qsizetype entriesOf(const char* folder) {
    return QDir(QString::fromLatin1(folder))
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)
        .size();
}

using ScanThreads = WindowTest;

// Every other one is stopped half-way.
TEST_F(ScanThreads, AHundredScans_LeaveNoThreadAndNoDescriptor) {
    openWithCard();
    qsizetype threads = 0, descriptors = 0;
    constexpr int kScans = 100;
    for (int scan = 0; scan < kScans; ++scan) {
        toRange(kPhotoMode);
        const bool stopped = scan % 2 == 1;
        card.beforeRead = [this, stopped, first = card.reads](std::uint64_t read) {
            if (stopped && read == first + 32) {
                controller->stop_now = 1;
            }
        };
        scanToEnd();
        ASSERT_EQ(controller->lastOutcome(), stopped ? PassOutcome::Stopped : PassOutcome::Completed);
        ASSERT_GE(controller->itemCount(), 1u);
        answers.press(QStringLiteral("Go Back Without Saving"));
        click(controller->backButton);
        click(controller->backButton);
        if (scan == 0) {
            threads = entriesOf("/proc/self/task");
            descriptors = entriesOf("/proc/self/fd");
        }
    }
    EXPECT_EQ(opened, kScans / 2 * 3) << "a stopped scan makes no second pass";
    // Qt starts a few threads for painting when it sees fit, each with a descriptor; what stopped scans left
    // would be fifty.
    constexpr int kFew = kScans / 4;
    EXPECT_LT(entriesOf("/proc/self/task"), threads + kFew);
    EXPECT_LT(entriesOf("/proc/self/fd"), descriptors + kFew);
}

TEST_F(ScanThreads, TheWindowAnswersWhileTheMediumDoesNot) {
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    card.beforeRead = gate.atRead(30);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits(); }));
    controller->window->resize(controller->window->size() + QSize(40, 40));
    ASSERT_TRUE(waitFor([this] { return controller->imageBrowser->model()->rowCount() == 1; }));
    answers.press(QStringLiteral("Exit Without Saving"));
    answers.press(QStringLiteral("No"));
    click(controller->exitButton);
    EXPECT_EQ(terminations, 0);
    answers.press(QStringLiteral("OK"));
    gate.open();
    EXPECT_TRUE(scanEnds());
}

TEST_F(ScanThreads, ExitDuringAScan_IsNotHeldUpByAMediumThatHangs) {
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    card.beforeRead = gate.atEveryRead();
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits(); }));
    answers.press(QStringLiteral("Yes"));
    click(controller->exitButton);
    EXPECT_EQ(terminations, 1);
    EXPECT_FALSE(controller->shutDown(std::chrono::milliseconds(50)))
        << "the hanging thread is reported, not awaited";
    gate.open();
    EXPECT_TRUE(controller->shutDown(kPatience));
    EXPECT_FALSE(controller->scanRunning());
}

TEST_F(ScanThreads, ClosingDuringAnAlertOfTheScan_EndsTheProgram) {
    openWithCard();
    toRange(kPhotoMode);
    refuseOpen = true;
    answers.then([this](QDialog* alert) {
        answers.press(QStringLiteral("Yes"));
        controller->window->close();
        alert->reject();
    });
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([this] { return terminations == 1 && answers.allGiven(); }));
    EXPECT_TRUE(controller->shutDown(kPatience));
}

TEST_F(ScanThreads, TheEndScreenComesOnceWhoeverAsks) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    EXPECT_EQ(answers.seen().size(), 1u);
}

}  // namespace
}  // namespace vantor

// The scan screens while a scan runs, is stopped, fails and ends.
#include "results/RecoveryMode.h"
#include "tests/window/GatedWindow.h"
#include "window/ScanTimer.h"

namespace vantor {
namespace {

const QString kGeneral =
    QStringLiteral("( Currently performing Search based on: Vantor General Recovery Procedure )");
const QString kStopHelp = QStringLiteral(
    "\nTo stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.");
const QString kReadError = QStringLiteral("\nError in storage media reading.");

class ScanScreen : public GatedWindow {
  protected:
    bool held() {
        return waitFor([this] { return gate.someoneWaits() && controller->_Mode_label->text() == kGeneral; });
    }
};

TEST_F(ScanScreen, WhileAScanRuns_TheScreenSaysSoAndTheWizardStands) {
    openWithCard();
    toRange(kPhotoMode);
    card.beforeRead = gate.atRead(16);
    click(controller->nextButton);
    ASSERT_TRUE(held());
    EXPECT_TRUE(waitFor([this] { return controller->_help_info->text() == kStopHelp; }));
    EXPECT_FALSE(controller->nextButton->isEnabled());
    EXPECT_FALSE(controller->backButton->isEnabled());
    EXPECT_FALSE(controller->_Thro_Mode_Chk->isEnabled());
    EXPECT_FALSE(controller->_browse_path->isEnabled());
    EXPECT_TRUE(controller->_stop_scan->isVisible());
    EXPECT_TRUE(controller->_Progress_Horz->isVisible());
    EXPECT_TRUE(waitFor([this] {
        return controller->_sector_label->text() == QStringLiteral("Sectors 16 of 64   ( Completed 25% )");
    })) << controller->_sector_label->text().toStdString();
    EXPECT_EQ(controller->_Progress_Horz->value() * 4, controller->_Progress_Horz->maximum());
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 1) << "items are in view while the scan runs";

    answers.press(QStringLiteral("OK"));
    gate.open();
    EXPECT_TRUE(scanEnds());
}

// The search may end between two ticks.
TEST_F(ScanScreen, TheLastTickShowsThatAllWasSearched) {
    openWithCard();
    toRange(kPhotoMode);
    click(controller->_Thro_Mode_Chk);
    answers.then([this](QDialog* panel) {
        // On a slow machine a tick came after the end of the search.
        controller->mSetLabelTimer->invalidate();
        controller->_sector_label->setText(QStringLiteral("between two ticks"));
        controller->_Progress_Horz->setValue(1);
        pressButton(panel, QStringLiteral("OK"));
    });
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->_sector_label->text(), QStringLiteral("Sectors 64 of 64   ( Completed 100% )"));
    EXPECT_EQ(controller->_Progress_Horz->value(), controller->_Progress_Horz->maximum());
}

TEST_F(ScanScreen, WhileTheEndPanelStands_TheWordToStopDoes) {
    openWithCard();
    toFileTypes(kRawFileMode);
    int stop = -1;
    answers.then([&](QDialog* panel) {
        stop = controller->stop_now;
        pressButton(panel, QStringLiteral("OK"));
    });
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(stop, 1) << "whatever still runs ends";
    EXPECT_EQ(controller->stop_now, 0);
}

class StoppedScan : public ScanScreen, public ::testing::WithParamInterface<int> {};

TEST_P(StoppedScan, Stop_EndsItOnceWithWhatWasFound) {
    openWithCard();
    if (GetParam() == kPhotoMode) {
        toRange(GetParam());
    } else {
        toFileTypes(GetParam());
    }
    card.beforeRead = gate.atRead(48);
    click(controller->nextButton);
    ASSERT_TRUE(held());
    click(controller->_stop_scan);
    EXPECT_EQ(controller->stop_now, 1);
    answers.press(QStringLiteral("OK"));
    gate.open();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(answers.seen().size(), 1u) << "the end panel comes once";
    EXPECT_EQ(controller->lastOutcome(), PassOutcome::Stopped);
    EXPECT_EQ(opened, 1) << "no thorough pass";
    EXPECT_EQ(controller->stop_now, 0);
    EXPECT_EQ(controller->stop_screen_already_show, 1);
    EXPECT_EQ(controller->itemCount(), 2u);
    EXPECT_TRUE(controller->backButton->isEnabled());
    EXPECT_FALSE(controller->nextButton->isEnabled());
}

INSTANTIATE_TEST_SUITE_P(Modes, StoppedScan, ::testing::Values(kPhotoMode, kVideoMode, kRawFileMode));

TEST_F(ScanScreen, StopAtTheFirstSector_FindsNothing) {
    openWithCard();
    toRange(kPhotoMode);
    card.beforeRead = gate.atRead(0);
    click(controller->nextButton);
    ASSERT_TRUE(held());
    click(controller->_stop_scan);
    answers.press(QStringLiteral("OK"));
    gate.open();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->itemCount(), 0u);
    EXPECT_FALSE(controller->saveAllButton->isEnabled());
}

class UnreadableMedium : public ScanScreen, public ::testing::WithParamInterface<int> {};

TEST_P(UnreadableMedium, GoesBackToTheScreenBeforeWithTheAlert) {
    openWithCard();
    const bool photo = GetParam() == kPhotoMode;
    if (photo) {
        toRange(GetParam());
    } else {
        toFileTypes(GetParam());
    }
    refuseOpen = true;
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(answers.seen().size(), 1u) << "the alert, and no end panel";
    EXPECT_EQ(answers.seen().back().text, kReadError);
    EXPECT_EQ(answers.seen().back().informative, QString());
    EXPECT_EQ(answers.seen().back().buttons, QStringList{QStringLiteral("OK")});
    EXPECT_EQ(answers.seen().back().defaultButton, QStringLiteral("OK"));
    EXPECT_EQ(controller->screen_counter, photo ? 1 : 2);
    EXPECT_EQ(controller->stepTrail->current(), photo ? 1 : 2);
    EXPECT_TRUE(photo ? controller->_path->isVisible() : controller->idCheckTableView->isVisible());
    EXPECT_FALSE(controller->_stop_scan->isVisible());
    EXPECT_FALSE(controller->_open_folder->isVisible());
    EXPECT_TRUE(controller->nextButton->isEnabled());
    EXPECT_TRUE(controller->backButton->isEnabled());
    EXPECT_EQ(controller->stop_screen_already_show, 1);

    refuseOpen = false;  // the card is back in
    scanToEnd();
    EXPECT_GT(controller->itemCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Modes, UnreadableMedium, ::testing::Values(kPhotoMode, kRawFileMode));

TEST_F(ScanScreen, AFailedLastRead_IsReportedAndTheItemsStay) {
    openWithCard();
    card.badForEver = {63};
    toRange(kPhotoMode);
    answers.press(QStringLiteral("OK"));
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    ASSERT_EQ(answers.seen().size(), 2u);
    EXPECT_EQ(answers.seen()[0].text, kReadError);
    EXPECT_EQ(answers.seen()[1].name, QStringLiteral("window")) << "the end panel comes after the alert";
    EXPECT_EQ(controller->itemCount(), 2u);
}

TEST_F(ScanScreen, ThumbnailsAreListedInTheOrderOfCarving_BeforeTheEndScreen) {
    const QByteArray first("\xFF\xD8\xFF first");
    std::atomic<int> asked{0};
    parts.thumbnailer = [&asked, first, hold = gate.passage()](const QByteArray& bytes, const QString&) {
        if (bytes.startsWith(first)) {
            hold();  // takes longest, whichever is begun with
        }
        ++asked;
        return bytes.left(3);
    };
    openWithCard();
    card.put(4, first.toStdString());
    toRange(kPhotoMode);
    std::size_t listedAtTheEnd = 0;
    answers.then([&](QDialog* panel) {
        listedAtTheEnd = controller->itemCount();
        pressButton(panel, QStringLiteral("OK"));
    });
    click(controller->nextButton);
    // All that the search had to say is in view, down to the last sector of its second pass.
    ASSERT_TRUE(waitFor([&] {
        return gate.someoneWaits() && asked == 2 &&
               controller->_sector_label->text() == QStringLiteral("Sectors 64 of 64   ( Completed 100% )");
    }));
    EXPECT_TRUE(answers.seen().empty()) << "the end screen waits for the thumbnails";
    EXPECT_EQ(controller->itemCount(), 0u) << "nothing overtakes the first";
    gate.open();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(listedAtTheEnd, 3u);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(controller->itemAt(0)->imageTitle(), QStringLiteral("GND00001.JPG"));
    EXPECT_EQ(controller->itemAt(2)->imageData(), QByteArray("GIF"));
}

TEST_F(ScanScreen, Stop_WaitsForNoThumbnail_AndThePicturesFollow) {
    parts.thumbnailer = [hold = gate.passage()](const QByteArray& bytes, const QString&) {
        hold();
        return bytes.left(3);
    };
    openWithCard();
    Gate medium;
    toRange(kPhotoMode);
    card.beforeRead = medium.atRead(48);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits() && medium.someoneWaits(); }));
    EXPECT_EQ(controller->itemCount(), 0u) << "both wait for their thumbnails";
    EXPECT_FALSE(controller->clearingLabel->isVisible());
    click(controller->_stop_scan);
    EXPECT_TRUE(controller->clearingLabel->isVisible());
    answers.press(QStringLiteral("OK"));
    medium.open();
    ASSERT_TRUE(scanEnds()) << "while every thumbnail is held up";
    EXPECT_FALSE(controller->clearingLabel->isVisible());
    ASSERT_EQ(controller->itemCount(), 2u);
    EXPECT_EQ(controller->itemAt(0)->imageTitle(), QStringLiteral("GND00001.JPG"));
    EXPECT_EQ(controller->itemAt(1)->imageTitle(), QStringLiteral("GND00002.JPG"));
    EXPECT_EQ(controller->itemAt(0)->imageData(), controller->Null_Image_Data);
    EXPECT_FALSE(controller->itemAt(0)->carved().runs.empty());
    gate.open();
    EXPECT_TRUE(waitFor([this] {
        return controller->itemAt(0)->imageData() == QByteArray("\xFF\xD8\xFF") &&
               controller->itemAt(1)->imageData() == QByteArray("\xFF\xD8\xFF");
    }));
}

TEST_F(ScanScreen, ThoroughBoxOff_RunsOnePassInPhotoMode) {
    openWithCard();
    toRange(kPhotoMode);
    click(controller->_Thro_Mode_Chk);
    scanToEnd();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(controller->itemCount(), 2u);
}

TEST_F(ScanScreen, ACounterBeyondTheEnd_LeavesLabelAndBar) {
    openWithCard();
    controller->_sector_label->setText(QStringLiteral("as it was"));
    controller->for_index = 11;
    controller->end_sector = 10;
    controller->total_sector = 10;
    controller->timerTickSetLabel();
    EXPECT_EQ(controller->_sector_label->text(), QStringLiteral("as it was"));
    controller->for_index = 5;
    controller->timerTickSetLabel();
    EXPECT_EQ(controller->_sector_label->text(), QStringLiteral("Sectors 5 of 10   ( Completed 50% )"));
    controller->total_sector = 0;
    controller->timerTickSetLabel();
    EXPECT_EQ(controller->_sector_label->text(), QStringLiteral("Sectors 5 of 10   ( Completed 0% )"));
}

TEST_F(ScanScreen, AWholeFileTypeScan_SaysWhatCountsAndKeepsThePaneEmpty) {
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    EXPECT_EQ(controller->_QuickLook_View_Box->title(), QStringLiteral("No file is selected to preview"));
    EXPECT_EQ(controller->rawCountLabel->text(), QStringLiteral("4 items"));
    EXPECT_TRUE(controller->saveAllButton_Sig->isEnabled());
    EXPECT_FALSE(controller->saveSelectedButton_Sig->isEnabled());
}

}  // namespace
}  // namespace vantor

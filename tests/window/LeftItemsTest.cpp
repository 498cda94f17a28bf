// A medium that goes between the passes: what the first one found is neither lost nor out of reach.
#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

class LeftItems : public WindowTest, public ::testing::WithParamInterface<int> {
  protected:
    bool photo() const { return GetParam() == kPhotoMode; }
    int screenBefore() const { return photo() ? 1 : 2; }
    QTableView* types() const { return controller->idCheckTableView; }
    ImageBrowserView* browser() const {
        return photo() ? controller->imageBrowser : controller->imageBrowser_2;
    }

    // The general pass has ended with two items or more, and the thorough one cannot open the medium.
    void scanThatFallsBack() {
        openWithCard();
        photo() ? toRange(GetParam()) : toFileTypes(GetParam());
        card.beforeRead = [this](std::uint64_t) { refuseOpen = true; };
        answers.press(QStringLiteral("OK"));
        click(controller->nextButton);
        ASSERT_TRUE(scanEnds());
        ASSERT_EQ(answers.seen().back().text, QStringLiteral("\nError in storage media reading."));
        ASSERT_EQ(controller->screen_counter, screenBefore());
        found = controller->itemCount();
        ASSERT_GE(found, 2u);
        card.beforeRead = nullptr;
        refuseOpen = false;
    }

    QString unsaved() const {
        return QStringLiteral("\nNone of the %1 found items has been saved.").arg(found);
    }

    std::size_t found = 0;
};

TEST_P(LeftItems, TheScreenTellsOfThemAndLeadsToThem) {
    scanThatFallsBack();
    EXPECT_TRUE(controller->leftItemsBar->isVisible());
    EXPECT_TRUE(controller->leftItemsLabel->text().startsWith(
        QStringLiteral("%1 items were found before the medium").arg(found)))
        << controller->leftItemsLabel->text().toStdString();
    EXPECT_FALSE(controller->_help_info->text().startsWith(QStringLiteral("\nTo stop recovery")));
    EXPECT_EQ(controller->window->focusWidget(), controller->showItemsButton);

    click(controller->showItemsButton);
    EXPECT_EQ(controller->screen_counter, screenBefore() + 1);
    EXPECT_FALSE(controller->leftItemsBar->isVisible());
    EXPECT_TRUE(browser()->isVisible());
    EXPECT_EQ(browser()->model()->rowCount(), static_cast<int>(found));
    EXPECT_FALSE(controller->_stop_scan->isVisible());
    EXPECT_TRUE(controller->backButton->isEnabled());
    EXPECT_FALSE(controller->nextButton->isEnabled());
    EXPECT_EQ(controller->_help_info->text(), ScanSession::endHelp());

    QTemporaryDir destination;
    (photo() ? controller->_path : controller->_path_Sig)->setText(destination.path());
    answers.press(QStringLiteral("OK"));
    click(photo() ? controller->saveAllButton : controller->saveAllButton_Sig);
    EXPECT_FALSE(controller->hasUnsavedItems());
    click(controller->backButton);  // asks nothing
    EXPECT_EQ(controller->screen_counter, screenBefore());
    EXPECT_EQ(controller->itemCount(), 0u);
    EXPECT_FALSE(controller->leftItemsBar->isVisible());
}

// The alert is gone, and the scan's threads are still on their way to their end.
TEST_P(LeftItems, WhoGoesToThemAtOnce_FindsTheTypesCounted) {
    openWithCard();
    photo() ? toRange(GetParam()) : toFileTypes(GetParam());
    card.beforeRead = [this](std::uint64_t) { refuseOpen = true; };
    answers.then([this](QDialog* alert) {
        alert->reject();
        click(controller->showItemsButton);
    });
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->screen_counter, screenBefore() + 1);
    EXPECT_EQ(browser()->model()->rowCount(), static_cast<int>(controller->itemCount()));
    std::uint64_t counted = 0;
    for (const ResultRow& row : controller->resultRows()) {
        counted += countOf(row);
    }
    EXPECT_EQ(counted, photo() ? 0 : controller->itemCount());
    EXPECT_EQ(controller->_help_info->text(), ScanSession::endHelp());
}

TEST_P(LeftItems, AnotherScan_AsksBeforeItTakesTheirPlace_Once) {
    scanThatFallsBack();
    answers.press(QStringLiteral("Stay"));
    click(controller->nextButton);
    EXPECT_EQ(answers.seen().back().text, unsaved());
    EXPECT_EQ(answers.seen().back().defaultButton, QStringLiteral("Stay"));
    EXPECT_EQ(controller->screen_counter, screenBefore());
    EXPECT_EQ(controller->itemCount(), found);
    EXPECT_TRUE(controller->leftItemsBar->isVisible());

    answers.press(QStringLiteral("Search Without Saving"));
    scanToEnd();
    EXPECT_EQ(controller->screen_counter, screenBefore() + 1);
    EXPECT_GT(controller->itemCount(), found) << "both passes, and nothing twice";
}

TEST_P(LeftItems, Back_AsksBeforeItEmptiesTheList_Once) {
    scanThatFallsBack();
    answers.press(QStringLiteral("Stay"));
    click(controller->backButton);
    EXPECT_EQ(answers.seen().back().text, unsaved());
    EXPECT_EQ(controller->screen_counter, screenBefore());
    EXPECT_EQ(controller->itemCount(), found);

    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, screenBefore() - 1);
    EXPECT_EQ(controller->itemCount(), 0u);
    EXPECT_EQ(browser()->model()->rowCount(), 0);
    EXPECT_FALSE(controller->leftItemsBar->isVisible());
    if (!photo()) {
        click(controller->backButton);
    }
    toRange(GetParam());
    if (!photo()) {
        click(controller->nextButton);
    }
    scanToEnd();  // asks nothing
    EXPECT_GT(controller->itemCount(), found);
}

TEST_P(LeftItems, ARefusedNext_LeavesThemAsTheyWere) {
    scanThatFallsBack();
    const QList<ResultRow> rows = controller->resultRows();
    answers.press(QStringLiteral("OK"));
    if (photo()) {
        choose(controller->_sector_range_rd);
        controller->_Start_slider_val->clear();
        click(controller->nextButton);
    } else {
        click(controller->_select_unselect_Chk);
        click(controller->nextButton);
    }
    EXPECT_TRUE(answers.allGiven());
    EXPECT_NE(answers.seen().back().text, unsaved()) << "nothing is at stake";
    click(controller->showItemsButton);
    EXPECT_EQ(controller->itemCount(), found);
    EXPECT_EQ(controller->resultRows(), rows);
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, screenBefore());
}

INSTANTIATE_TEST_SUITE_P(Modes, LeftItems, ::testing::Values(kPhotoMode, kVideoMode, kRawFileMode));

}  // namespace
}  // namespace vantor

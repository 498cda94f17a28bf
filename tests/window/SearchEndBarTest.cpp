// What the results screens say of a search that has ended, and of lists that are empty.
#include <QLabel>

#include "results/RecoveryMode.h"
#include "tests/window/GatedWindow.h"
#include "window/widgets/Theme.h"

namespace vantor {
namespace {

QString emptyWordsOf(const QWidget* list) {
    return list->accessibleDescription();
}

class SearchEndBar : public GatedWindow {
  protected:
    // Which picture a panel or the bar shows.
    static bool isTick(const QLabel* icon) {
        const QSize size = icon->pixmap().size();
        return icon->pixmap().toImage() == ownIcon(QStringLiteral("ok")).pixmap(size).toImage();
    }

    // Answers the end panel and keeps what it said.
    void readEndPanel() {
        answers.then([this](QDialog* panel) {
            heading = panel->findChild<QLabel*>(QStringLiteral("panelHeading"))->text();
            text = panel->findChild<QLabel*>(QStringLiteral("panelText"))->text();
            tick = isTick(panel->findChild<QLabel*>(QStringLiteral("panelIcon")));
            pressButton(panel, QStringLiteral("OK"));
        });
    }

    void runToEnd() {
        readEndPanel();
        click(controller->nextButton);
        ASSERT_TRUE(scanEnds());
    }

    void withoutFinds() {
        for (auto& sector : card.bytes) {
            sector.fill(0x7A);
        }
    }

    QString heading, text;
    bool tick = false;
};

TEST_F(SearchEndBar, ACompletedSearch_HasTheTick) {
    openWithCard();
    toRange(kPhotoMode);
    runToEnd();
    EXPECT_EQ(heading, "The search has completed.");
    EXPECT_TRUE(tick);
    EXPECT_TRUE(controller->searchEndBar->isVisible());
    EXPECT_EQ(controller->searchEndLabel->text(), "The search has completed.");
    EXPECT_TRUE(isTick(controller->searchEndIcon));
    EXPECT_TRUE(waitFor([this] { return controller->searchSumLabel->text().startsWith("3 photos"); }));
    EXPECT_FALSE(controller->searchSumLabel->text().contains("B")) << "nobody looked how long they are";
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_FALSE(controller->searchEndBar->isVisible());
}

TEST_F(SearchEndBar, OnlyBadSectors_CanBeTriedAgain) {
    openWithCard();
    toRange(kPhotoMode);
    runToEnd();
    EXPECT_FALSE(controller->tryBadSectorsButton->isVisible());
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    card.badForEver = {20};
    runToEnd();
    EXPECT_TRUE(controller->tryBadSectorsButton->isVisible());
    click(controller->tryBadSectorsButton);
    EXPECT_FALSE(controller->tryBadSectorsButton->isVisible());
    EXPECT_TRUE(controller->searchEndBar->isVisible());
}

TEST_F(SearchEndBar, EverySectorThatCouldNotBeRead_IsCounted_InEachOfTwoSearches) {
    readAhead();
    openWithCard();
    card.badForEver = {20, 21, 22, 40};
    toRange(kPhotoMode);
    runToEnd();
    EXPECT_EQ(heading, "The search has completed, but 4 sectors could not be read.");
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    click(controller->backButton);
    toFileTypes(kRawFileMode);
    runToEnd();
    EXPECT_EQ(heading, "The search has completed, but 4 sectors could not be read.");
    EXPECT_EQ(controller->searchEndLabel->text(), heading);
}

TEST_F(SearchEndBar, AStoppedSearch_SaysWhereAndHowToGoOn) {
    openWithCard();
    toFileTypes(kRawFileMode);
    card.beforeRead = gate.atRead(46);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([this] { return gate.someoneWaits(); }));
    click(controller->_stop_scan);
    readEndPanel();
    gate.open();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(heading, "The search was stopped at 73 % (sector 47 of 64).");
    EXPECT_FALSE(tick);
    EXPECT_TRUE(text.endsWith("Press “Go On” to search the rest.")) << text.toStdString();
    EXPECT_EQ(controller->searchEndLabel->text(),
              "The search was stopped at 73 % (sector 47 of 64). Press “Go On” to search the rest.");
    EXPECT_FALSE(isTick(controller->searchEndIcon));
}

TEST_F(SearchEndBar, AReadError_SaysWhere) {
    openWithCard();
    card.badForEver = {62, 63};
    toRange(kPhotoMode);
    answers.press(QStringLiteral("OK"));
    readEndPanel();
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(heading, "The search ended with a read error at sector 62 of 64.");
    EXPECT_FALSE(tick);
}

TEST_F(SearchEndBar, AMediumThatMayNotBeRead_IsToldBesideTheAlert) {
    parts.whyNotOpened = [] { return QStringLiteral("You may not read this card. Ask for it."); };
    openWithCard();
    toRange(kPhotoMode);
    refuseOpen = true;
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(answers.seen().back().text, "\nError in storage media reading.");
    EXPECT_EQ(controller->screen_counter, 1);
    EXPECT_TRUE(controller->searchEndBar->isVisible());
    EXPECT_EQ(controller->searchEndLabel->text(),
              "The medium could not be opened. You may not read this card. Ask for it.");
    refuseOpen = false;
    runToEnd();
    EXPECT_EQ(controller->searchEndLabel->text(), "The search has completed.");
}

TEST_F(SearchEndBar, AnImageThatWasWrittenTo_IsTold) {
    QString asked;
    parts.wasWrittenTo = [&asked](const QString& device) {
        asked = device;
        return true;
    };
    openWithCard();
    toRange(kPhotoMode);
    runToEnd();
    EXPECT_EQ(controller->searchEndLabel->text(),
              "The search has completed. The image file was changed during the search, so what was found may "
              "be damaged. Search again when nothing writes to it any more.");
    EXPECT_FALSE(isTick(controller->searchEndIcon));
    EXPECT_EQ(asked, "/dev/rsdb1");
}

TEST_F(SearchEndBar, TheBarIsGoneWhileASearchRuns) {
    parts.whyNotOpened = [] { return QString(); };
    openWithCard();
    toRange(kPhotoMode);
    refuseOpen = true;
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    EXPECT_TRUE(controller->searchEndBar->isVisible());
    refuseOpen = false;
    card.beforeRead = gate.atRead(16);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([this] { return gate.someoneWaits(); }));
    EXPECT_FALSE(controller->searchEndBar->isVisible());
    answers.press(QStringLiteral("OK"));
    gate.open();
    EXPECT_TRUE(scanEnds());
}

TEST_F(SearchEndBar, AfterTheEntireDisk_ThatIsNotAdvised) {
    withoutFinds();
    openWithCard();
    withoutFinds();
    toRange(kPhotoMode);
    runToEnd();
    EXPECT_EQ(emptyWordsOf(controller->imageBrowser),
              "No photos were found You can go back and look for Video or Raw File types.");
    EXPECT_EQ(text, "No photos were found. You can go back and look for Video or Raw File types.");
}

TEST_F(SearchEndBar, AfterARange_TheEntireDiskIsAdvised) {
    openWithCard();
    toRange(kPhotoMode);
    choose(controller->_sector_range_rd);
    controller->_Start_slider_val->setText(QStringLiteral("30"));
    controller->_End_slider_val->setText(QStringLiteral("38"));
    runToEnd();
    EXPECT_TRUE(emptyWordsOf(controller->imageBrowser).contains("search the entire disk"))
        << emptyWordsOf(controller->imageBrowser).toStdString();
}

TEST_F(SearchEndBar, WhereTheChoiceHidesAll_TheWayToThemIsTold) {
    openWithCard();
    toRange(kPhotoMode);
    runToEnd();
    ASSERT_GT(controller->itemCount(), 0u);
    controller->showBox->setCurrentIndex(
        controller->showBox->findData(static_cast<int>(ShowItems::Unreadable)));
    ASSERT_EQ(controller->imageBrowser->shownCount(), 0);
    EXPECT_EQ(emptyWordsOf(controller->imageBrowser),
              "None of the found items is of this kind Choose “All items” above to see all that was found: 3 "
              "items.");
}

TEST_F(SearchEndBar, WhereATypeOfTheTableHidesAll_TheWayToAllTypesIsTold) {
    openWithCard();
    toFileTypes(kRawFileMode);
    card.bytes.at(12).fill(0);
    runToEnd();
    const auto rows = controller->resultRows();
    ASSERT_GT(controller->itemCount(), 0u);
    const auto none = std::find_if(rows.begin(), rows.end(), [](const ResultRow& row) {
        return row.value(QStringLiteral("NoOfFile")) == QStringLiteral("0");
    });
    ASSERT_NE(none, rows.end()) << "a type of which nothing was found";
    controller->idSigTableView->selectRow(static_cast<int>(none - rows.begin()));
    ASSERT_EQ(controller->imageBrowser_2->shownCount(), 0);
    EXPECT_TRUE(emptyWordsOf(controller->imageBrowser_2)
                    .startsWith("None of the found items is of this type Press “Show All Types”"))
        << emptyWordsOf(controller->imageBrowser_2).toStdString();
    controller->showBox_Sig->setCurrentIndex(
        controller->showBox_Sig->findData(static_cast<int>(ShowItems::Unreadable)));
    EXPECT_TRUE(emptyWordsOf(controller->imageBrowser_2).contains("and choose “All items” above"))
        << emptyWordsOf(controller->imageBrowser_2).toStdString();
}

TEST_F(SearchEndBar, ATypeListThatIsOnlyFiltered_BlamesNoCatalogue) {
    openWithCard();
    toFileTypes(kRawFileMode);
    controller->typeSearchField->setText(QStringLiteral("nosuchtype"));
    const QString filtered = "No type matches Clear the search field to see all types.";
    EXPECT_EQ(emptyWordsOf(controller->idCheckTableView), filtered);
    runToEnd();
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    ASSERT_EQ(controller->typeSearchField->text(), "nosuchtype");
    EXPECT_EQ(emptyWordsOf(controller->idCheckTableView), filtered) << "after a search too";
}

TEST_F(SearchEndBar, AResultTableThatShowsFoundTypesOnly_SaysThatNoneWas) {
    openWithCard();
    withoutFinds();
    toFileTypes(kRawFileMode);
    runToEnd();
    controller->foundTypesOnly->setChecked(true);
    EXPECT_EQ(emptyWordsOf(controller->idSigTableView),
              "None found Nothing of the types that you ticked was found.");
}

}  // namespace
}  // namespace vantor

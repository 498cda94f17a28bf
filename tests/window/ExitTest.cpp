// The way out: question, preview files, and what a refusal costs.
#include <QDir>
#include <QFileInfo>

#include "results/RecoveryMode.h"
#include "tests/window/Gate.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

const QString kQuestion =
    QStringLiteral("\nDo you really want to exit from 'Vantor - Memory Card Recovery'?");

class Exit : public WindowTest {
  protected:
    void touch(const char* name) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    bool exists(const char* name) const {
        return QFileInfo::exists(folder.filePath(QString::fromLatin1(name)));
    }
};

TEST_F(Exit, TheQuestionHasItsTextAndButtons) {
    open();
    answers.press(QStringLiteral("No"));
    click(controller->exitButton);
    ASSERT_EQ(answers.seen().size(), 1u);
    EXPECT_EQ(answers.seen()[0].text, kQuestion);
    EXPECT_EQ(answers.seen()[0].informative, QString());
    EXPECT_EQ(answers.seen()[0].buttons, (QStringList{QStringLiteral("Yes"), QStringLiteral("No")}));
    EXPECT_EQ(answers.seen()[0].defaultButton, QStringLiteral("Yes"));
    EXPECT_EQ(terminations, 0);
    EXPECT_TRUE(controller->window->isVisible());
}

TEST_F(Exit, EscapeIsNo) {
    open();
    answers.then([](QDialog* question) { QTest::keyClick(question, Qt::Key_Escape); });
    click(controller->exitButton);
    EXPECT_EQ(terminations, 0);
}

TEST_F(Exit, ReturnIsYes) {
    open();
    answers.then([](QDialog* question) { QTest::keyClick(question, Qt::Key_Return); });
    click(controller->exitButton);
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, ClosingTheWindowAsksTheSame) {
    open();
    answers.press(QStringLiteral("No"));
    EXPECT_FALSE(controller->window->close());
    EXPECT_EQ(answers.seen().at(0).text, kQuestion);
    EXPECT_TRUE(controller->window->isVisible());
    answers.press(QStringLiteral("Yes"));
    controller->window->close();
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, Yes_DeletesEveryPreviewFileAndNothingElse) {
    open();
    for (const char* name :
         {"dprv", "dprv.jpg", "dprv.MOV", "dprv2.jpg", "xdprv.jpg", "dprv.tar.gz", "Help.pdf"}) {
        touch(name);
    }
    answers.press(QStringLiteral("Yes"));
    click(controller->exitButton);
    for (const char* gone : {"dprv", "dprv.jpg", "dprv.MOV"}) {
        EXPECT_FALSE(exists(gone)) << gone;
    }
    for (const char* kept : {"dprv2.jpg", "xdprv.jpg", "dprv.tar.gz", "Help.pdf", "NoPreview.png"}) {
        EXPECT_TRUE(exists(kept)) << kept;
    }
}

TEST_F(Exit, No_DeletesNothing) {
    open();
    touch("dprv.jpg");
    answers.press(QStringLiteral("No"));
    click(controller->exitButton);
    EXPECT_TRUE(exists("dprv.jpg"));
}

TEST_F(Exit, AResourcesFolderThatIsGone_IsNoError) {
    open();
    QDir(folder.path()).removeRecursively();
    answers.press(QStringLiteral("Yes"));
    click(controller->exitButton);
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, AfterARefusal_TextChangesAreNoLongerHeard) {
    openWithCard();
    toRange(kPhotoMode);
    choose(controller->_sector_range_rd);
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_1);
    ASSERT_EQ(controller->_Start_Slider->value(), 1);
    answers.press(QStringLiteral("No"));
    click(controller->exitButton);
    controller->_Start_slider_val->clear();
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_9);
    EXPECT_EQ(controller->_Start_Slider->value(), 1);
}

TEST_F(Exit, WithUnsavedItems_AsksAboutThemFirst) {
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    answers.press(QStringLiteral("Stay"));
    click(controller->exitButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nSome of the found items have not been saved."));
    EXPECT_EQ(terminations, 0);
    answers.press(QStringLiteral("Exit Without Saving"));
    answers.press(QStringLiteral("Yes"));
    click(controller->exitButton);
    EXPECT_EQ(answers.seen().back().text, kQuestion);
    EXPECT_EQ(terminations, 1);
}

TEST_F(Exit, DuringAScanToo_AsksAboutUnsavedItemsFirst) {
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    card.beforeRead = gate.atRead(30);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits() && controller->itemCount() == 1; }));
    answers.press(QStringLiteral("Stay"));
    click(controller->exitButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nSome of the found items have not been saved."));
    EXPECT_EQ(terminations, 0);
    answers.press(QStringLiteral("OK"));
    gate.open();
    EXPECT_TRUE(scanEnds());
}

TEST_F(Exit, AfterStay_TheScanGoesOnAndNotificationsArrive) {
    Gate gate;
    openWithCard();
    toRange(kPhotoMode);
    choose(controller->_sector_range_rd);
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_1);
    ASSERT_EQ(controller->_Start_Slider->value(), 1);
    choose(controller->_entire_disk_rd);
    card.beforeRead = gate.atRead(30);
    click(controller->nextButton);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits() && controller->itemCount() == 1; }));
    answers.press(QStringLiteral("Stay"));
    click(controller->exitButton);
    ASSERT_EQ(answers.seen().size(), 1u) << "the exit question is not asked";
    answers.press(QStringLiteral("OK"));
    gate.open();
    ASSERT_TRUE(scanEnds());
    EXPECT_EQ(controller->itemCount(), 3u) << "both passes";
    EXPECT_EQ(controller->imageBrowser->model()->rowCount(), 3);
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    choose(controller->_sector_range_rd);
    controller->_Start_slider_val->clear();
    QTest::keyClick(controller->_Start_slider_val, Qt::Key_9);
    EXPECT_EQ(controller->_Start_Slider->value(), 9) << "text changes are still heard";
}

}  // namespace
}  // namespace vantor

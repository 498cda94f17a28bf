// Saving from the results screens: destination, progress, summary, and what stays unsaved.
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include "results/RecoveryMode.h"
#include "tests/app/WindowTest.h"

namespace vantor {
namespace {

class Saving : public WindowTest {
  protected:
    void openPhotoResults() {
        openWithCard();
        toRange(kPhotoMode);
        scanToEnd();
    }
    void destinationIs(const QString& path) {
        controller->_path->setText(path);
        controller->_path_Sig->setText(path);
    }
    QStringList savedFiles() const {
        QStringList files;
        const QDir root(destination.path());
        for (const QString& type : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            for (const QString& name : QDir(root.filePath(type)).entryList(QDir::Files)) {
                files << type + u'/' + name;
            }
        }
        return files;
    }

    QTemporaryDir destination;
};

TEST_F(Saving, SaveAll_WritesEveryItemIntoAFolderOfItsType) {
    openPhotoResults();
    destinationIs(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n3 items were saved."));
    EXPECT_EQ(answers.seen().back().buttons,
              (QStringList{QStringLiteral("Open Folder"), QStringLiteral("OK")}));
    EXPECT_EQ(savedFiles(),
              (QStringList{QStringLiteral("GIF/THD00001.GIF"), QStringLiteral("JPG/GND00001.JPG"),
                           QStringLiteral("JPG/GND00002.JPG")}));
    EXPECT_EQ(controller->savedLabel->text(), QStringLiteral("3 of 3 saved"));
    EXPECT_FALSE(controller->hasUnsavedItems());
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 1) << "everything is saved, so nothing is asked";
}

TEST_F(Saving, SaveSelected_WritesTheSelectionOnly) {
    openPhotoResults();
    destinationIs(destination.path());
    EXPECT_FALSE(controller->saveSelectedButton->isEnabled());
    controller->imageBrowser->setCurrentIndex(controller->imageBrowser->model()->index(1, 0));
    EXPECT_TRUE(controller->saveSelectedButton->isEnabled());
    answers.press(QStringLiteral("Open Folder"));
    click(controller->saveSelectedButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n1 item was saved."));
    EXPECT_EQ(savedFiles(), QStringList{QStringLiteral("JPG/GND00002.JPG")});
    EXPECT_EQ(documentsOpened, QStringList{destination.path()});
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, WithoutADestination_OneIsAskedFor) {
    openPhotoResults();
    answers.press(QStringLiteral("Continue"));
    answers.then([this](QDialog* chooser) { chooseFolder(chooser, destination.path()); });
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(savedFiles().size(), 3);
    EXPECT_EQ(controller->_path->text(), destination.path());
    EXPECT_EQ(controller->_path_Sig->text(), destination.path());
    EXPECT_TRUE(controller->_open_folder->isEnabled());
    click(controller->_open_folder);
    EXPECT_EQ(documentsOpened, QStringList{destination.path()});
}

TEST_F(Saving, ADestinationOnTheScannedMedium_IsRefused) {
    parts.isOnMedium = [](const QString&, const QString& device) {
        return device == QStringLiteral("/dev/rsdb1");
    };
    openPhotoResults();
    destinationIs(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nThis folder cannot be the destination."));
    EXPECT_TRUE(
        answers.seen().back().informative.contains(QStringLiteral("storage medium you are recovering from")));
    EXPECT_TRUE(savedFiles().isEmpty());
}

TEST_F(Saving, AMediumThatIsGone_IsReportedAndNothingCountsAsSaved) {
    openPhotoResults();
    destinationIs(destination.path());
    refuseOpen = true;
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNothing was saved."));
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, WhatCannotBeWritten_IsCountedWithItsReason) {
    openPhotoResults();
    QFile blocked(destination.filePath(QStringLiteral("JPG")));
    ASSERT_TRUE(blocked.open(QIODevice::WriteOnly));  // where the folder of the type should be
    destinationIs(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n1 item was saved."));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("2 items could not be saved: ")))
        << answers.seen().back().informative.toStdString();
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, SavingTwice_OverwritesNothing) {
    openPhotoResults();
    destinationIs(destination.path());
    for (int time = 0; time < 2; ++time) {
        answers.press(QStringLiteral("OK"));
        click(controller->saveAllButton);
    }
    EXPECT_EQ(savedFiles().size(), 6);
}

TEST_F(Saving, TheFolderOfAnEarlierSearch_IsNotTakenUnseen) {
    QTemporaryDir other;
    openWithCard();
    toRange(kPhotoMode);
    controller->_path->setText(destination.path());
    click(controller->backButton);
    toFileTypes(kRawFileMode);
    scanToEnd();
    ASSERT_EQ(controller->_path_Sig->text(), QString());
    EXPECT_FALSE(controller->_open_folder_Sig->isEnabled());
    answers.press(QStringLiteral("Continue"));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, other.path()); });
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton_Sig);
    EXPECT_TRUE(savedFiles().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(other.filePath(QStringLiteral("PDF/PDF00001.PDF"))));
}

TEST_F(Saving, RawItemsAreSavedTheSameWay) {
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    destinationIs(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton_Sig);
    EXPECT_TRUE(savedFiles().contains(QStringLiteral("PDF/PDF00001.PDF")));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n4 items were saved."));
    // Both passes found the document.
    EXPECT_EQ(savedFiles().size(), 3);
    EXPECT_TRUE(answers.seen().back().informative.contains(
        QStringLiteral("1 item had the same contents as another; the same contents are written once.")));
    EXPECT_FALSE(controller->hasUnsavedItems());
}

}  // namespace
}  // namespace vantor

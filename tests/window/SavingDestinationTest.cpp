// Where files are saved to: asked for, refused, shown with its room, gone.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>
#include <map>

#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"
#include "tests/window/SavingWindow.h"

namespace vantor {
namespace {

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

// As when somebody mounts another folder of the card there meanwhile.
TEST_F(Saving, ADestinationThatComesToLieOnTheMedium_IsNotWrittenInto) {
    parts.isOnMedium = [](const QString&, const QString& device) {
        return device == QStringLiteral("/dev/rsdb1") && QThread::currentThread() != qApp->thread();
    };
    openPhotoResults();
    destinationIs(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nNothing was saved."));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("lies on the medium")))
        << answers.seen().back().informative.toStdString();
    EXPECT_TRUE(savedFiles().isEmpty());
}

TEST_F(Saving, WithoutRoom_TheUserIsAskedFirst) {
    parts.freeBytes = [](const QString&) { return std::optional<std::uint64_t>(1000); };
    openPhotoResults();
    destinationIs(destination.path());
    answers.press(QStringLiteral("Cancel"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text,
              QStringLiteral("\nThere may not be enough room in the destination."));
    EXPECT_EQ(answers.seen().back().defaultButton, QStringLiteral("Cancel"));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("1.0 kB are free")))
        << answers.seen().back().informative.toStdString();
    EXPECT_TRUE(savedFiles().isEmpty());
    answers.press(QStringLiteral("Save What Fits"));
    saveAllAndAnswer();
    EXPECT_EQ(savedFiles().size(), 3);
}

TEST_F(Saving, TheRoomThatFilesNeed_IsToldAsFarAsItIsKnown) {
    parts.freeBytes = [](const QString&) { return std::optional<std::uint64_t>(1); };
    bool mayBeExamined = false;
    parts.openBeside = [&](const QString&) -> std::unique_ptr<SectorReader> {
        return mayBeExamined ? std::make_unique<ScriptedReader>(card) : nullptr;
    };
    openPhotoResults();
    destinationIs(destination.path());
    const auto told = [this] {
        saveAllAndAnswer(QStringLiteral("Cancel"));
        return answers.seen().back().informative;
    };
    EXPECT_TRUE(told().startsWith(QStringLiteral("As they were found, the files need some ")));
    mayBeExamined = true;
    source->changed();  // it was put back in
    ASSERT_TRUE(waitFor([this] {
        return controller->factsOfItem(0).soundness && controller->factsOfItem(1).soundness &&
               controller->factsOfItem(2).soundness;
    })) << "and is examined";
    EXPECT_TRUE(told().startsWith(QStringLiteral("Some ")));
}

TEST_F(Saving, TheRoomOfWhatTwoTypesFound_IsNeededOnce) {
    parts.freeBytes = [](const QString&) { return std::optional<std::uint64_t>(1); };
    parts.openBeside = [](const QString&) { return std::unique_ptr<SectorReader>(); };
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    destinationIs(destination.path());
    std::map<std::uint64_t, std::uint64_t> sectorsAt;
    std::uint64_t all = 0, once = 0;
    for (std::size_t at = 0; at < controller->itemCount(); ++at) {
        const CarvedRun carved = controller->itemAt(at)->carved();
        all += carved.sectors();
        std::uint64_t& longest = sectorsAt[carved.runs.front().first];
        longest = std::max(longest, carved.sectors());
    }
    for (const auto& place : sectorsAt) {
        once += place.second;
    }
    ASSERT_NE(sizeForPeople(once * kSectorBytes), sizeForPeople(all * kSectorBytes))
        << "both passes found the document";
    answers.press(QStringLiteral("Cancel"));
    click(controller->saveAllButton_Sig);
    EXPECT_TRUE(answers.seen().back().informative.contains(
        QStringLiteral("need some %1;").arg(sizeForPeople(once * kSectorBytes))))
        << answers.seen().back().informative.toStdString();
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

TEST_F(Saving, TheDestinationIsShownWithItsRoomAndCanBeChanged) {
    QTemporaryDir other;
    parts.freeBytes = [](const QString&) { return std::optional<std::uint64_t>(12'300'000'000); };
    openPhotoResults();
    EXPECT_EQ(controller->destinationLabel->text(),
              QStringLiteral("No folder for saved files is chosen yet"));
    for (const QString& wanted : {destination.path(), other.path()}) {
        answers.then([&](QDialog* chooser) { chooseFolder(chooser, wanted); });
        click(controller->changeFolderButton);
        EXPECT_EQ(controller->_path->text(), wanted);
        EXPECT_EQ(controller->_path_Sig->text(), wanted);
        EXPECT_EQ(controller->destinationLabel->text(),
                  QStringLiteral("Saved files go to %1 (12.3 GB free)").arg(wanted));
        EXPECT_EQ(controller->destinationLabel_Sig->text(), controller->destinationLabel->text());
        EXPECT_TRUE(controller->_open_folder->isEnabled());
    }
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_TRUE(savedFiles().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(other.filePath(QStringLiteral("JPG/GND00001.JPG"))));
}

// The file dialog keeps folders selected that a path passes through while it is typed.
TEST_F(Saving, OfFoldersWithinOneAnother_TheDeepestIsTheDestination) {
    openPhotoResults();
    const QString wanted = destination.filePath(QStringLiteral("out"));
    ASSERT_TRUE(QDir().mkpath(wanted));
    QFileDialog panel;
    panel.setFileMode(QFileDialog::ExistingFiles);
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
        ->setText(QStringLiteral("\"%1\" \"%2\"").arg(destination.path(), wanted));
    ASSERT_EQ(panel.selectedFiles(), (QStringList{destination.path(), wanted}));
    controller->openPanelDidEnd(&panel, 1, nullptr);
    EXPECT_EQ(controller->_path->text(), wanted);
}

TEST_F(Saving, AFolderThatTakesNoFiles_IsRefusedWhenItIsChosen) {
    openPhotoResults();
    answers.then([](QDialog* chooser) { chooseFolder(chooser, QStringLiteral("/proc/self")); });
    answers.press(QStringLiteral("OK"));
    click(controller->changeFolderButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nThis folder cannot be the destination."));
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("Nothing can be written")));
    EXPECT_EQ(controller->_path->text(), QString());
}

TEST_F(Saving, ADestinationThatHasVanished_IsNotMadeAnew) {
    openPhotoResults();
    const QString gone = destination.filePath(QStringLiteral("stick"));
    destinationIs(gone);
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_TRUE(answers.seen().back().informative.contains(QStringLiteral("is not there")));
    EXPECT_FALSE(QFileInfo::exists(gone));
    EXPECT_TRUE(controller->hasUnsavedItems());
}

TEST_F(Saving, AChosenDestinationThatHasVanished_IsToldAndShownAsGone) {
    openPhotoResults();
    const QString gone = destination.filePath(QStringLiteral("stick"));
    ASSERT_TRUE(QDir().mkpath(gone));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, gone); });
    click(controller->changeFolderButton);
    ASSERT_EQ(controller->_path->text(), gone);
    const auto whySaveAllIsRefused = [this] {
        saveAllAndAnswer();
        EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nThe destination is no longer there."));
        EXPECT_TRUE(controller->destinationLabel->text().endsWith(QStringLiteral("which is not there")))
            << controller->destinationLabel->text().toStdString();
        return answers.seen().back().informative;
    };
    ASSERT_TRUE(QDir().rmdir(gone));
    EXPECT_TRUE(whySaveAllIsRefused().contains(QStringLiteral("was deleted or renamed, or its disk")));
    // Another file system where the chosen one was.
    ASSERT_TRUE(QFile::link(QStringLiteral("/proc"), gone));
    EXPECT_TRUE(whySaveAllIsRefused().contains(QStringLiteral("The disk that held")));
    ASSERT_TRUE(QFile::remove(gone));
    ASSERT_TRUE(QDir().mkpath(gone));
    saveAllAndAnswer();
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n3 files were saved.")) << "brought back";
    EXPECT_FALSE(controller->destinationLabel->text().contains(QStringLiteral("not there")));
}

TEST_F(Saving, ADestinationThatGoesWhileItIsWrittenInto_HoldsNothing_AndAnotherTakesItAll) {
    QTemporaryDir other;
    openPhotoResults();
    const QString stick = destination.filePath(QStringLiteral("stick"));
    ASSERT_TRUE(QDir().mkpath(stick));
    destinationIs(stick);
    card.beforeRead = [&](std::uint64_t) {
        if (QFileInfo::exists(stick + QStringLiteral("/JPG"))) {
            QDir(stick).removeRecursively();
        }
    };
    answers.press(QStringLiteral("Change Folder…"));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, other.path()); });
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    ASSERT_EQ(answers.seen().size(), 4U) << "the end of the search, and of each saving, and the chooser";
    EXPECT_EQ(answers.seen()[1].text, QStringLiteral("\nNothing was saved."));
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n3 files were saved."));
    EXPECT_FALSE(controller->hasUnsavedItems());
    EXPECT_FALSE(QFileInfo::exists(stick));
}

TEST_F(Saving, WhatFailed_CanBeSavedElsewhereAtOnce) {
    QTemporaryDir other;
    openPhotoResults();
    QFile blocked(destination.filePath(QStringLiteral("JPG")));
    ASSERT_TRUE(blocked.open(QIODevice::WriteOnly));
    destinationIs(destination.path());
    answers.press(QStringLiteral("Change Folder…"));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, other.path()); });
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n2 files were saved."));
    EXPECT_TRUE(QFileInfo::exists(other.filePath(QStringLiteral("JPG/GND00002.JPG"))));
    EXPECT_FALSE(QFileInfo::exists(other.filePath(QStringLiteral("GIF")))) << "saved before";
    EXPECT_FALSE(controller->hasUnsavedItems());
}

TEST_F(Saving, WithoutRoom_AnotherFolderCanBeChosen) {
    QTemporaryDir other;
    parts.freeBytes = [&](const QString& path) {
        return std::optional<std::uint64_t>(path == other.path() ? 1'000'000'000 : 1000);
    };
    openPhotoResults();
    destinationIs(destination.path());
    answers.press(QStringLiteral("Change Folder…"));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, other.path()); });
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\n3 files were saved."));
    EXPECT_TRUE(savedFiles().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(other.filePath(QStringLiteral("GIF/THD00001.GIF"))));
}

}  // namespace
}  // namespace vantor

// Searches that are gone on with, after a stop and at the next start of the program.
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <atomic>

#include "results/RecoveryMode.h"
#include "tests/window/GatedWindow.h"
#include "window/keeping/KeptSearchBar.h"

namespace vantor {
namespace {

class Keeping : public GatedWindow {
  protected:
    Keeping() { parts.stateFolder = state.filePath(QStringLiteral("vantor")); }

    QPushButton* button(const char* name) const { return part<QPushButton>(name); }

    QString words() const { return part<QLabel>("keptSearchLabel")->text(); }
    bool isOffered() const { return part<QFrame>("keptSearchBar")->isVisible(); }
    QStringList keptFiles() const { return QDir(parts.stateFolder).entryList(QDir::Files | QDir::Hidden); }

    // Names and places of all that was found.
    QStringList found() const {
        QStringList all;
        for (std::size_t i = 0; i < controller->itemCount(); ++i) {
            const auto item = controller->itemAt(i);
            all << QStringLiteral("%1 %2 %3-%4")
                       .arg(item->imageTitle(), item->imageUID())
                       .arg(item->publishedSectors().first)
                       .arg(item->publishedSectors().end);
        }
        return all;
    }

    // Next, and Stop while that read is under way.
    void searchAndStopAt(std::uint64_t read) {
        Gate stop;
        card.beforeRead = stop.atRead(card.reads + read);
        click(controller->nextButton);
        ASSERT_TRUE(waitFor([&] { return stop.someoneWaits(); }));
        click(controller->_stop_scan);
        answers.press(QStringLiteral("OK"));
        stop.open();
        ASSERT_TRUE(scanEnds());
        card.beforeRead = nullptr;
    }

    void pressAndSearch(QPushButton* what) {
        answers.press(QStringLiteral("OK"));
        click(what);
        ASSERT_TRUE(scanEnds());
    }

    // What a search finds that nobody disturbs; then the program is started anew.
    QStringList undisturbed(int mode) {
        openWithCard();
        mode == kPhotoMode ? toRange(mode) : toFileTypes(mode);
        scanToEnd();
        const QStringList all = found();
        close();
        return all;
    }

    const QTemporaryDir state;
};

class KeepingByMode : public Keeping, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Modes, KeepingByMode, testing::Values(kPhotoMode, kVideoMode, kRawFileMode));

TEST_F(Keeping, WithoutTheBox_NothingOutlivesTheProgram) {
    openWithCard();
    toRange(kPhotoMode);
    EXPECT_FALSE(part<QCheckBox>("rememberBox")->isChecked());
    scanToEnd();
    close();
    EXPECT_FALSE(QFile::exists(parts.stateFolder));
    open();
    EXPECT_FALSE(isOffered());
}

TEST_F(Keeping, TheBoxSaysWhatItReplaces) {
    openWithCard();
    toRange(kPhotoMode);
    const auto* words = part<QLabel>("rememberExplanation");
    EXPECT_EQ(words->text(), "To go on later, also after a power cut.");
    click(part<QCheckBox>("rememberBox"));
    searchAndStopAt(22);
    close();
    open();
    toRange(kPhotoMode);
    words = part<QLabel>("rememberExplanation");
    EXPECT_EQ(
        words->text(),
        "To go on later, also after a power cut. It takes the place of the search that is remembered now.");
    EXPECT_EQ(part<QCheckBox>("rememberBox")->accessibleDescription(), words->text());
    click(controller->backButton);
    click(button("forgetKeptButton"));
    toRange(kPhotoMode);
    EXPECT_EQ(words->text(), "To go on later, also after a power cut.");
}

TEST_F(Keeping, WithoutAFolder_TheBoxIsNotOffered) {
    parts.stateFolder.clear();
    openWithCard();
    toRange(kPhotoMode);
    EXPECT_FALSE(part<QCheckBox>("rememberBox")->isVisible());
    scanToEnd();
}

TEST_P(KeepingByMode, AStoppedSearch_GoesOn) {
    const QStringList all = undisturbed(GetParam());
    ASSERT_GT(all.size(), 2);
    open();
    GetParam() == kPhotoMode ? toRange(GetParam()) : toFileTypes(GetParam());
    searchAndStopAt(22);
    EXPECT_LT(found().size(), all.size());
    ASSERT_TRUE(button("goOnButton")->isVisible());
    pressAndSearch(button("goOnButton"));
    EXPECT_EQ(found(), all);
    EXPECT_FALSE(button("goOnButton")->isVisible());
    EXPECT_EQ(controller->searchEndLabel->text(), "The search has completed.");
    EXPECT_TRUE(controller->backButton->isEnabled());
    EXPECT_FALSE(QFile::exists(parts.stateFolder));
}

TEST_F(Keeping, WhileTheMediumIsAskedFor_NoSearchGoesOn) {
    openWithCard();
    toRange(kPhotoMode);
    searchAndStopAt(22);
    const QStringList before = found();
    controller->session = true;
    click(button("goOnButton"));
    settle();
    ASSERT_FALSE(controller->scanShown());
    EXPECT_EQ(found(), before);
    controller->session = false;
    pressAndSearch(button("goOnButton"));
    EXPECT_GT(found().size(), before.size());
}

// What could not be read up to the end is what is left to be searched.
TEST_P(KeepingByMode, ASearchThatCouldNotReadOn_GoesOnWithWhatWasRefused) {
    const QStringList all = undisturbed(GetParam());
    readAhead();
    openWithCard();
    GetParam() == kPhotoMode ? toRange(kPhotoMode) : toFileTypes(GetParam());
    for (std::uint64_t sector = 14; sector < 64; ++sector) {
        card.badForEver.insert(sector);
    }
    answers.press(QStringLiteral("OK"));
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
    ASSERT_TRUE(controller->searchEndLabel->text().contains(QStringLiteral("read error at sector")))
        << controller->searchEndLabel->text().toStdString();
    EXPECT_NE(found(), all);
    card.badForEver.clear();
    pressAndSearch(button("goOnButton"));
    EXPECT_EQ(found(), all);
    EXPECT_TRUE(controller->searchEndLabel->text().startsWith(QStringLiteral("The search has completed.")))
        << controller->searchEndLabel->text().toStdString();
}

// What was refused before the stop is not asked for again, and could not be read all the same.
TEST_P(KeepingByMode, AfterGoingOn_SectorsThatWereRefusedBefore_AreCountedToo) {
    readAhead();
    openWithCard();
    card.badForEver = {5, 6, 7, 50};
    GetParam() == kPhotoMode ? toRange(GetParam()) : toFileTypes(GetParam());
    searchAndStopAt(30);
    pressAndSearch(button("goOnButton"));
    EXPECT_EQ(controller->searchEndLabel->text(),
              "The search has completed, but 4 sectors could not be read.");
}

TEST_P(KeepingByMode, ARememberedSearch_GoesOnAtTheNextStart) {
    const QStringList all = undisturbed(GetParam());
    open();
    toRange(GetParam());
    click(part<QCheckBox>("rememberBox"));
    if (GetParam() != kPhotoMode) {
        click(controller->nextButton);
    }
    searchAndStopAt(22);
    const qsizetype stopped = found().size();
    close();
    EXPECT_EQ(keptFiles(), QStringList{"last-search"});

    open();
    ASSERT_TRUE(isOffered());
    const char* const what[] = {"photo", "video", "file"};
    EXPECT_EQ(words(), QStringLiteral("Remembered search: “CANON_DC”, 32.8 kB: 35 % read, %1 %2%3 found.")
                           .arg(stopped)
                           .arg(what[GetParam()], stopped == 1 ? "" : "s"));
    EXPECT_TRUE(button("lookAtKeptButton")->isVisible());
    pressAndSearch(button("goOnWithKeptButton"));
    EXPECT_EQ(found(), all);
    close();

    open();
    ASSERT_TRUE(isOffered());
    EXPECT_FALSE(button("goOnWithKeptButton")->isVisible()) << "nothing is left to search";
    EXPECT_TRUE(words().contains("100 % read")) << words().toStdString();
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(found(), all);
    EXPECT_EQ(Recovery_MODE, GetParam());
}

TEST_P(KeepingByMode, ALookAtWhatWasFound_SearchesNoFurther) {
    undisturbed(GetParam());
    open();
    toRange(GetParam());
    click(part<QCheckBox>("rememberBox"));
    if (GetParam() != kPhotoMode) {
        click(controller->nextButton);
    }
    searchAndStopAt(46);
    const QStringList before = found();
    ASSERT_GT(before.size(), 0);
    close();
    open();
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(found(), before);
    EXPECT_EQ(controller->searchEnd().sector, 47u);
    EXPECT_TRUE(button("goOnButton")->isVisible());
}

TEST_F(Keeping, TypesAndRange_AreThoseOfTheRememberedSearch) {
    openWithCard();
    toRange(kRawFileMode);
    click(part<QCheckBox>("rememberBox"));
    click(controller->_sector_range_rd_Sig);
    controller->_Start_slider_val_Sig->setText(QStringLiteral("10"));
    controller->_End_slider_val_Sig->setText(QStringLiteral("40"));
    click(controller->nextButton);
    for (FileTypeRow& row : controller->nsCheckedListDataObject) {
        row[QStringLiteral("State")] = row.value(QStringLiteral("Extension")).toString() == u"ZIP";
    }
    scanToEnd();
    const QStringList all = found();
    ASSERT_EQ(all.size(), 1);
    close();
    open();
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(found(), all);
    EXPECT_EQ(controller->_Start_slider_val_Sig->text(), "10");
    EXPECT_EQ(controller->_End_slider_val_Sig->text(), "40");
    EXPECT_EQ(controller->searchEnd().end, 40u);
}

TEST_F(Keeping, AnotherCard_IsRefusedInPlainWords) {
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    scanToEnd();
    close();
    for (std::size_t sector = 0; sector < card.bytes.size(); ++sector) {
        card.fill(sector, static_cast<std::uint8_t>(sector + 3));
    }
    open();
    answers.press(QStringLiteral("OK"));
    click(button("lookAtKeptButton"));
    EXPECT_EQ(answers.seen().back().text, "\nThis is not the medium that was searched.");
    EXPECT_EQ(controller->screen_counter, 0);
    EXPECT_TRUE(isOffered()) << "the right one may be put in";

    refuseOpen = true;
    answers.press(QStringLiteral("OK"));
    click(button("lookAtKeptButton"));
    EXPECT_EQ(answers.seen().back().text, "\nThe medium of this search cannot be opened.");
}

TEST_F(Keeping, ACardThatIsNotThere_IsAskedFor) {
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    scanToEnd();
    close();
    source->order.clear();
    open();
    answers.press(QStringLiteral("OK"));
    click(button("lookAtKeptButton"));
    EXPECT_EQ(answers.seen().back().text, "\nThe medium of this search is not there.");
    EXPECT_TRUE(answers.seen().back().informative.contains("“CANON_DC”, 32.8 kB"))
        << answers.seen().back().informative.toStdString();
}

TEST_F(Keeping, AForgottenSearch_IsGone) {
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    scanToEnd();
    close();
    open();
    click(button("forgetKeptButton"));
    EXPECT_FALSE(isOffered());
    EXPECT_EQ(keptFiles(), QStringList());
    EXPECT_TRUE(controller->idTableView->hasFocus());
}

TEST_F(Keeping, ASpoiltFile_IsNoOffer) {
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    scanToEnd();
    close();
    QFile file(parts.stateFolder + QStringLiteral("/last-search"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(file.size() - 1));
    file.close();
    open();
    EXPECT_FALSE(isOffered());
}

TEST_F(Keeping, WhatWasSaved_IsKnownAgain) {
    const QTemporaryDir destination;
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    controller->_path->setText(destination.path());
    scanToEnd();
    ASSERT_GT(controller->itemCount(), 1u);
    controller->imageBrowser->setCurrentIndex(controller->imageBrowser->model()->index(1, 0));
    answers.press(QStringLiteral("OK"));
    click(controller->saveSelectedButton);
    ASSERT_TRUE(waitFor([this] { return answers.allGiven(); }));
    const QString saved = controller->savedLabel->text();
    EXPECT_FALSE(saved.isEmpty());
    close();
    open();
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(controller->savedLabel->text(), saved);
    EXPECT_TRUE(controller->factsOfItem(1).saved);
    EXPECT_FALSE(controller->factsOfItem(0).saved);
    close();
    // It is still known to the file.
    open();
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(controller->savedLabel->text(), saved);
}

TEST_F(Keeping, WhatWasTickedAndSelected_IsSoAgain) {
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    scanToEnd();
    ASSERT_GT(controller->itemCount(), 2u);
    controller->tickItems({0, 2}, true);
    controller->tickItems({0}, false);
    controller->imageBrowser->setCurrentIndex(controller->imageBrowser->model()->index(1, 0));
    close();
    for (int start = 0; start < 2; ++start) {
        open();
        EXPECT_EQ(controller->ticks().count(), 0u);
        pressAndSearch(button("lookAtKeptButton"));
        EXPECT_EQ(controller->ticks().all(), QList<qsizetype>{2});
        EXPECT_EQ(controller->imageBrowser->selectionIndexes(), QList<qsizetype>{1});
        EXPECT_TRUE(controller->saveTickedButton->isVisible());
        close();
    }
}

TEST_F(Keeping, ThumbnailsOfARememberedSearch_AreNotMadeAgain) {
    std::atomic<int> made = 0;
    parts.thumbnailer = [&made](const QByteArray& encoded, const QString&) {
        return "thumbnail " + QByteArray::number(++made) + encoded.first(4);
    };
    const auto pictures = [this] {
        QList<QByteArray> all;
        for (std::size_t i = 0; i < controller->itemCount(); ++i) {
            all << controller->itemAt(i)->imageData();
        }
        return all;
    };
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    searchAndStopAt(30);
    const auto before = pictures();
    const int madeBefore = made;
    ASSERT_GT(before.size(), 1);
    EXPECT_EQ(madeBefore, before.size());
    close();
    EXPECT_EQ(keptFiles(), (QStringList{"last-search", "last-search.thumbnails"}));

    open();
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(pictures(), before);
    EXPECT_EQ(made, madeBefore);
    close();

    // Garbage in their place: they are made anew.
    QFile file(parts.stateFolder + QStringLiteral("/last-search.thumbnails"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(QByteArray(5000, 'x'));
    file.close();
    open();
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(made, 2 * madeBefore);
    EXPECT_EQ(pictures().size(), before.size());
    close();
    open();
    click(button("forgetKeptButton"));
    EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(Keeping, OtherSignatures_BeginTheSearchAnew_AndSaySo) {
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    scanToEnd();
    close();
    writeCatalogue("ZelExt2Adv.dll", record("PDF", "25504446", "PDF"));
    open();
    answers.press(QStringLiteral("OK"));
    pressAndSearch(button("lookAtKeptButton"));
    EXPECT_EQ(answers.seen().at(answers.seen().size() - 2).text, "\nThe search begins anew.");
    EXPECT_EQ(controller->searchEnd().outcome, PassOutcome::Completed);
}

TEST_F(Keeping, OnTheMediumItself_NothingIsWritten) {
    parts.isOnMedium = [this](const QString& asked, const QString&) { return asked == parts.stateFolder; };
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    answers.press(QStringLiteral("OK"));
    scanToEnd();
    EXPECT_EQ(answers.seen().front().text, "\nThis search is not remembered.");
    EXPECT_EQ(keptFiles(), QStringList());
}

TEST_F(Keeping, AFolderThatCannotBeWritten_IsTold) {
    QFile file(state.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    parts.stateFolder = file.fileName() + QStringLiteral("/below");
    openWithCard();
    toRange(kPhotoMode);
    click(part<QCheckBox>("rememberBox"));
    scanToEnd();
    EXPECT_TRUE(controller->searchEndLabel->text().contains("could not be remembered"))
        << controller->searchEndLabel->text().toStdString();
}

}  // namespace
}  // namespace vantor

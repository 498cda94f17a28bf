// Badges, filter and sort of the browsers, and who reads the medium for them.
#include <QComboBox>

#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "tests/support/Gate.h"
#include "tests/window/FilesToExamine.h"

namespace vantor {
namespace {

class BrowserLooks : public FilesToExamine {
  protected:
    void scan() {
        FilesToExamine::scan();
        ASSERT_EQ(controller->itemCount(), 3u);
    }
    std::optional<Soundness> soundness(int index) { return controller->factsOfItem(index).soundness; }
    bool allKnown() {
        return waitFor([this] { return soundness(0) && soundness(1) && soundness(2); });
    }
    void show(ShowItems what) {
        controller->showBox_Sig->setCurrentIndex(controller->showBox_Sig->findData(static_cast<int>(what)));
    }
    void sort(SortItems how) {
        controller->sortBox_Sig->setCurrentIndex(controller->sortBox_Sig->findData(static_cast<int>(how)));
    }
};

TEST_F(BrowserLooks, ItemsInViewAreExamined_ThroughAReaderOfTheirOwn) {
    openResults();
    scan();
    ASSERT_TRUE(allKnown());
    EXPECT_EQ(soundness(0)->verdict, Verdict::Complete);
    EXPECT_EQ(soundness(0)->bytes, 5000U);
    EXPECT_TRUE(soundness(1)->notOfItsType);
    EXPECT_EQ(soundness(2)->verdict, Verdict::CutOff);
    EXPECT_EQ(opened, 2) << "each pass of the search had the medium for itself";
    EXPECT_EQ(openedBeside, 1);
    const QModelIndex first = controller->imageBrowser_2->model()->index(0, 0);
    EXPECT_EQ(first.data(Qt::ToolTipRole).toString(),
              wav + QStringLiteral("\nends where it says, content not checked, 5.0 kB"));
    EXPECT_EQ(first.data(Qt::AccessibleTextRole).toString(),
              wav + QStringLiteral(", ends where it says, content not checked, 5.0 kB"));
}

TEST_F(BrowserLooks, ABadgeIsDrawnOnceItIsKnown) {
    openResults();
    scan();
    ASSERT_TRUE(allKnown());
    controller->window->repaint();
    const auto pictureOf = [this](int row) {
        const QRect cell =
            controller->imageBrowser_2->visualRect(controller->imageBrowser_2->model()->index(row, 0));
        return controller->imageBrowser_2->viewport()->grab(cell).toImage();
    };
    const QImage sound = pictureOf(0), cut = pictureOf(2);
    const auto has = [](const QImage& image, const QColor& colour) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == colour) {
                    return true;
                }
            }
        }
        return false;
    };
    const QColor done(0x1a, 0x7f, 0x4b), warning(0xb4, 0x5f, 0x06);
    EXPECT_TRUE(has(sound, done));
    EXPECT_FALSE(has(sound, warning));
    EXPECT_TRUE(has(cut, warning));
    EXPECT_FALSE(has(cut, done));
}

TEST_F(BrowserLooks, FilterAndSort_KeepTheSelectionWithItsItem) {
    openResults();
    scan();
    ASSERT_TRUE(allKnown());
    EXPECT_EQ(shown(), (QStringList{wav, png, torn}));
    controller->imageBrowser_2->selectionModel()->select(controller->imageBrowser_2->model()->index(2, 0),
                                                         QItemSelectionModel::Select);
    sort(SortItems::Size);
    EXPECT_EQ(shown().constFirst(), torn);
    EXPECT_EQ(controller->imageBrowser_2->selectionIndexes(), QList<qsizetype>{2});
    EXPECT_EQ(controller->rawCountLabel->text(), QStringLiteral("1 of 3 selected"));
    show(ShowItems::Complete);
    EXPECT_EQ(shown(), QStringList{wav});
    EXPECT_TRUE(controller->imageBrowser_2->selectionIndexes().isEmpty());
    EXPECT_FALSE(controller->saveSelectedButton_Sig->isEnabled());
    EXPECT_EQ(controller->rawCountLabel->text(), QStringLiteral("1 of 3 items"));
    show(ShowItems::OfItsType);
    EXPECT_EQ(shown(), (QStringList{torn, wav}));
    show(ShowItems::All);
    sort(SortItems::Length);
    EXPECT_EQ(controller->rawCountLabel->text(), QStringLiteral("3 items")) << "only sorted";
    EXPECT_EQ(controller->sortBox_Sig->maxVisibleItems(), controller->sortBox_Sig->count());
    sort(SortItems::AsFound);
    EXPECT_EQ(shown(), (QStringList{wav, png, torn}));
}

TEST_F(BrowserLooks, SavingAFilteredSelection_SavesThoseItems) {
    openResults();
    scan();
    ASSERT_TRUE(allKnown());
    const QTemporaryDir destination;
    controller->_path_Sig->setText(destination.path());
    show(ShowItems::Broken);
    ASSERT_EQ(shown(), QStringList{torn});
    controller->imageBrowser_2->selectAll();
    answers.press(QStringLiteral("OK"));
    click(controller->saveSelectedButton_Sig);
    EXPECT_EQ(QDir(destination.filePath(QStringLiteral("WAV"))).entryList(QDir::Files), QStringList{torn});
    show(ShowItems::NotSaved);
    EXPECT_EQ(shown(), (QStringList{wav, png}));
}

TEST_F(BrowserLooks, AnItemWithAFailedRead_SaysSoBeforeItIsExamined) {
    openResults();
    parts.openBeside = nullptr;
    close();
    open();
    card.badTimes = {{6, 1}};
    scan();
    EXPECT_TRUE(controller->factsOfItem(0).readFailed);
    EXPECT_FALSE(controller->factsOfItem(2).readFailed);
    show(ShowItems::Unreadable);
    EXPECT_EQ(shown(), QStringList{wav});
}

TEST_F(BrowserLooks, BackForgetsWhatWasKnown) {
    openResults();
    scan();
    ASSERT_TRUE(allKnown());
    show(ShowItems::Complete);
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_FALSE(soundness(0));
    scanToEnd();
    EXPECT_EQ(controller->showBox_Sig->currentIndex(), 0);
    EXPECT_TRUE(allKnown());
}

TEST_F(BrowserLooks, TheEndOfTheProgram_DoesNotWaitForAMediumThatHangs) {
    Gate gate;
    openResults();
    toFileTypes(kRawFileMode);
    cardBeside = card;
    cardBeside.beforeRead = gate.atEveryRead();
    scanToEnd();
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits(); }));
    EXPECT_FALSE(controller->shutDown(std::chrono::milliseconds(50)));
    gate.open();
    EXPECT_TRUE(controller->shutDown(kPatience));
}

}  // namespace
}  // namespace vantor

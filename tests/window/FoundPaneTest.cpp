// The pane of what was found: rows and counts, picking, searching, and ticks for saving beside it.
#include <QDir>
#include <QLineEdit>
#include <QTreeWidget>

#include "results/MyImageObject.h"
#include "results/RecoveryMode.h"
#include "tests/window/FilesToExamine.h"
#include "window/browser/FoundPane.h"
#include "window/browser/ImageCell.h"

namespace vantor {
namespace {

class FoundPaneTest : public FilesToExamine {
  protected:
    void scan() {
        put(QByteArray("FORM that is no sound"), 30);
        openResults(record("AIFF", "464F524D", "Sound"));
        FilesToExamine::scan();
        ASSERT_EQ(controller->itemCount(), 4U);
        ASSERT_TRUE(waitFor([this] { return textOf(row({tr("All items")}), 1) == QLatin1String("4"); }));
    }
    static QString tr(const char* text) { return QString::fromLatin1(text); }
    QTreeWidget* tree() const { return controller->foundPane_Sig->findChild<QTreeWidget*>(); }
    QLineEdit* search() const { return controller->foundPane_Sig->findChild<QLineEdit*>(); }
    // The visible row below these headings.
    QTreeWidgetItem* row(const QStringList& path) const {
        QTreeWidgetItem* at = tree()->invisibleRootItem();
        for (const QString& step : path) {
            QTreeWidgetItem* next = nullptr;
            for (int i = 0; i < at->childCount(); ++i) {
                next = at->child(i)->text(0) == step && !at->child(i)->isHidden() ? at->child(i) : next;
            }
            if (next == nullptr) {
                return nullptr;
            }
            at = next;
        }
        return at;
    }
    static QString textOf(const QTreeWidgetItem* row, int column) {
        return row != nullptr ? row->text(column) : QStringLiteral("no such row");
    }
    void clickRow(QTreeWidgetItem* row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        ASSERT_NE(row, nullptr);
        if (row->parent() != nullptr) {
            row->parent()->setExpanded(true);
        }
        tree()->scrollToItem(row);
        settle();
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, keys, tree()->visualItemRect(row).center());
    }
    void clickTick(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        ImageBrowserView* const browser = controller->imageBrowser_2;
        browser->scrollTo(browser->model()->index(row, 0));
        const QRect cell = browser->visualRect(browser->model()->index(row, 0));
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, keys, ImageCell::tickPlace(cell).center());
    }

    const QString aiff = QStringLiteral("AIFF00001.AIFF");
};

// A drawing, whose text is looked at, and as the parameter wants a sound, of which only the length is
// followed.
class SumOfTheSearch : public FilesToExamine, public ::testing::WithParamInterface<bool> {};

TEST_P(SumOfTheSearch, AllComplete_IsSaidWhereTheContentOfAllWasChecked) {
    openResults(record("SVG", "3C737667", "Drawing"));
    card.bytes.assign(card.bytes.size(), {});
    if (GetParam()) {
        put(wavFile(5000), 4);
    }
    put("<svg xmlns=\"http://www.w3.org/2000/svg\"><path d=\"M0 0\"/></svg>\n", 30);
    FilesToExamine::scan();
    ASSERT_EQ(controller->itemCount(), GetParam() ? 2U : 1U);
    controller->foundPane_Sig->findChild<QTreeWidget*>()
        ->findItems(QStringLiteral("By size"), Qt::MatchExactly)
        .constFirst()
        ->setExpanded(true);
    const auto sum = [this] { return controller->searchSumLabel->text(); };
    // The sum of a file and a sound is told in kilobytes once both were looked at.
    EXPECT_TRUE(waitFor([&] {
        return sum().contains(GetParam() ? QStringLiteral("kB") : QStringLiteral("complete"));
    })) << sum().toStdString();
    EXPECT_EQ(sum().contains(QStringLiteral("complete")), !GetParam()) << sum().toStdString();
}

INSTANTIATE_TEST_SUITE_P(WithoutAndWithASound, SumOfTheSearch, ::testing::Bool());

TEST_F(FoundPaneTest, TheSumIsThatOfTheFiles_OnceAllAreExamined) {
    scan();
    row({tr("By size")})->setExpanded(true);
    EXPECT_TRUE(waitFor([this] { return controller->searchSumLabel->text().contains(QStringLiteral("kB")); }))
        << controller->searchSumLabel->text().toStdString();
}

TEST_F(FoundPaneTest, GroupsAndTypesHaveCounts_AndNothingElseIsShown) {
    scan();
    EXPECT_EQ(textOf(row({tr("Photos")}), 1), QStringLiteral("1"));
    EXPECT_EQ(textOf(row({tr("Sound")}), 1), QStringLiteral("3"));
    EXPECT_EQ(textOf(row({tr("Sound"), tr("WAV")}), 1), QStringLiteral("2"));
    EXPECT_EQ(textOf(row({tr("Sound"), tr("AIFF")}), 1), QStringLiteral("1"));
    EXPECT_EQ(row({tr("Photos"), tr("PNG")}), nullptr) << "a group of one type needs no row below it";
    EXPECT_EQ(row({tr("Movies")}), nullptr);
    EXPECT_EQ(row({tr("Archives")}), nullptr);
}

TEST_F(FoundPaneTest, ARowShowsItsItems_CtrlAddsOthers_AndAllItemsShowsAllAgain) {
    scan();
    clickRow(row({tr("Photos")}));
    EXPECT_EQ(shown(), QStringList{png});
    EXPECT_EQ(controller->rawCountLabel->text(), QStringLiteral("1 of 4 items"));
    EXPECT_EQ(controller->saveAllButton_Sig->text(), QStringLiteral("Save &All Shown (1)…"));
    clickRow(row({tr("Sound"), tr("WAV")}), Qt::ControlModifier);
    EXPECT_EQ(shown(), (QStringList{wav, png, torn}));
    clickRow(row({tr("All items")}), Qt::ControlModifier);
    EXPECT_EQ(shown(), (QStringList{wav, png, aiff, torn}));
    clickRow(row({tr("Sound")}));
    EXPECT_EQ(shown(), (QStringList{wav, aiff, torn}));
    clickRow(row({tr("All items")}));
    EXPECT_EQ(shown(), (QStringList{wav, png, aiff, torn}));
    EXPECT_EQ(controller->rawCountLabel->text(), QStringLiteral("4 items"));
}

TEST_F(FoundPaneTest, AnOpenedHeadingHasEveryItemLookedAt_AndRowsOfDifferentHeadingsNarrowEachOther) {
    scan();
    row({tr("By size")})->setExpanded(true);
    ASSERT_TRUE(waitFor([this] {
        return textOf(row({tr("By size"), tr("Under 100 kB")}), 1) == QLatin1String("4") &&
               controller->factsOfItem(0).soundness && controller->factsOfItem(3).soundness;
    }));
    clickRow(row({tr("By size"), tr("Under 100 kB")}));
    EXPECT_EQ(shown().size(), 4);
    clickRow(row({tr("Photos")}), Qt::ControlModifier);
    EXPECT_EQ(shown(), QStringList{png});
    EXPECT_EQ(textOf(row({tr("By day"), tr("Date not known")}), 1), QStringLiteral("4"));
}

TEST_F(FoundPaneTest, SoundsAndMoviesArePickedByTheirLength) {
    scan();
    ASSERT_TRUE(waitFor([this] { return row({tr("By length")}) != nullptr; }));
    row({tr("By length")})->setExpanded(true);
    ASSERT_TRUE(waitFor([this] {
        return textOf(row({tr("By length"), tr("Under 10 seconds")}), 1) == QLatin1String("2") &&
               controller->factsOfItem(1).soundness && controller->factsOfItem(2).soundness;
    }));
    clickRow(row({tr("By length"), tr("Under 10 seconds")}));
    EXPECT_EQ(shown(), (QStringList{wav, torn}));
    clickRow(row({tr("By length"), tr("Length not known")}));
    EXPECT_EQ(shown(), (QStringList{png, aiff}));
}

TEST_F(FoundPaneTest, ARowOfWhichNothingIsLeft_GoesOnceItIsNoLongerPicked) {
    FoundPane pane;
    FoundFacets facets;
    ItemTraits photo;
    photo.type = QStringLiteral("JPG");
    photo.day = 20260523;
    facets.set(0, photo);
    pane.showFacets(facets, 1);
    auto* const rows = pane.findChild<QTreeWidget*>();
    const auto day = [rows](const char* words) {
        return rows->findItems(QLatin1String(words), Qt::MatchContains | Qt::MatchRecursive).value(0);
    };
    ASSERT_NE(day("May 23"), nullptr);
    day("May 23")->setSelected(true);
    photo.day = 20260522;
    facets.set(0, photo);
    pane.showFacets(facets, 1);
    ASSERT_NE(day("May 23"), nullptr) << "the list shows what it says";
    EXPECT_EQ(day("May 23")->text(1), QStringLiteral("0"));
    rows->clearSelection();
    settle();
    EXPECT_EQ(day("May 23"), nullptr);
    EXPECT_NE(day("May 22"), nullptr);
}

TEST_F(FoundPaneTest, AClickOnTheWordsOfAHeading_OpensAndClosesIt) {
    scan();
    QTreeWidgetItem* const sizes = row({tr("By size")});
    clickRow(sizes);
    EXPECT_TRUE(sizes->isExpanded());
    EXPECT_TRUE(row({tr("All items")})->isSelected());
    clickRow(sizes);
    EXPECT_FALSE(sizes->isExpanded());
    // A row that can be picked is picked and stays as it was.
    QTreeWidgetItem* const sound = row({tr("Sound")});
    ASSERT_NE(sound, nullptr);
    const bool before = sound->isExpanded();
    clickRow(sound);
    EXPECT_TRUE(sound->isSelected());
    EXPECT_EQ(sound->isExpanded(), before);
}

TEST_F(FoundPaneTest, ANameIsSearchedForAsItIsTyped_AndReturnLeadsToTheList) {
    scan();
    controller->window->activateWindow();
    ASSERT_TRUE(waitFor([this] { return controller->window->isActiveWindow(); }));
    click(search());
    QTest::keyClicks(search(), QStringLiteral("wav"));
    EXPECT_EQ(shown(), (QStringList{wav, torn}));
    QTest::keyClicks(search(), QStringLiteral("00002"));
    EXPECT_EQ(shown(), QStringList{torn});
    QTest::keyClicks(search(), QStringLiteral("xyz"));
    EXPECT_EQ(shown(), QStringList());
    EXPECT_TRUE(controller->imageBrowser_2->accessibleDescription().contains(
        QStringLiteral("None of the found items is like that")));
    QTest::keyClick(search(), Qt::Key_Escape);
    EXPECT_EQ(shown().size(), 4);
    QTest::keyClick(search(), Qt::Key_Return);
    EXPECT_EQ(controller->window->focusWidget(), controller->imageBrowser_2);
}

TEST_F(FoundPaneTest, TicksStayWithTheirItems_AndSelectNothing) {
    scan();
    EXPECT_FALSE(controller->saveTickedButton_Sig->isVisible());
    clickTick(3);
    EXPECT_EQ(controller->ticks().all(), QList<qsizetype>{3});
    EXPECT_TRUE(controller->imageBrowser_2->selectionIndexes().isEmpty());
    search()->setText(QStringLiteral("00002"));
    ASSERT_EQ(shown(), QStringList{torn});
    EXPECT_EQ(controller->imageBrowser_2->model()->index(0, 0).data(Qt::CheckStateRole), Qt::Checked);
    search()->setText(QStringLiteral("PNG"));
    EXPECT_EQ(controller->imageBrowser_2->model()->index(0, 0).data(Qt::CheckStateRole), Qt::Unchecked);
    click(controller->tickShownButton_Sig);
    EXPECT_EQ(controller->ticks().all(), (QList<qsizetype>{1, 3}));
    EXPECT_TRUE(controller->ticksLabel_Sig->text().startsWith(QStringLiteral("2 of 4 ticked, ")));
    EXPECT_EQ(controller->saveTickedButton_Sig->text(), QStringLiteral("Sa&ve Ticked (2)…"));
    EXPECT_TRUE(controller->saveTickedButton_Sig->isVisible());
    click(controller->tickShownButton_Sig);
    EXPECT_EQ(controller->ticks().all(), QList<qsizetype>{3}) << "all shown ones were ticked";
    search()->clear();
    click(controller->invertTicksButton_Sig);
    EXPECT_EQ(controller->ticks().all(), (QList<qsizetype>{0, 1, 2}));
    controller->tickItems({-1, 4, 4'000'000'000}, true);
    EXPECT_EQ(controller->ticks().count(), 3U) << "there are no such items";
}

TEST_F(FoundPaneTest, InsertTicksAndDeleteUnticksWhatIsSelected) {
    scan();
    ImageBrowserView* const browser = controller->imageBrowser_2;
    browser->setFocus();
    QTest::keyClick(browser, Qt::Key_Insert);
    EXPECT_EQ(controller->ticks().all(), QList<qsizetype>{0}) << "the item that the keyboard is at";
    browser->selectAll();
    QTest::keyClick(browser, Qt::Key_Insert);
    EXPECT_EQ(controller->ticks().count(), 4U);
    browser->clearSelection();
    browser->selectionModel()->select(browser->model()->index(2, 0), QItemSelectionModel::Select);
    QTest::keyClick(browser, Qt::Key_Delete);
    EXPECT_EQ(controller->ticks().all(), (QList<qsizetype>{0, 1, 3}));
}

TEST_F(FoundPaneTest, SaveTickedSavesTheTicked_WhateverIsShownOrSelected_AndTheyBearAMark) {
    scan();
    const QTemporaryDir destination;
    controller->_path_Sig->setText(destination.path());
    clickTick(0);
    search()->setText(QStringLiteral("AIFF"));
    controller->imageBrowser_2->selectAll();
    answers.press(QStringLiteral("OK"));
    click(controller->saveTickedButton_Sig);
    EXPECT_EQ(QDir(destination.filePath(QStringLiteral("WAV"))).entryList(QDir::Files), QStringList{wav});
    EXPECT_FALSE(QDir(destination.filePath(QStringLiteral("AIFF"))).exists());
    EXPECT_TRUE(controller->factsOfItem(0).saved);
    EXPECT_FALSE(controller->factsOfItem(2).saved);
    search()->clear();
    EXPECT_TRUE(controller->imageBrowser_2->model()
                    ->index(0, 0)
                    .data(Qt::AccessibleTextRole)
                    .toString()
                    .endsWith(QStringLiteral("saved, ticked")));
}

TEST_F(FoundPaneTest, BackForgetsPicksAndTicks) {
    scan();
    clickTick(0);
    clickRow(row({tr("Photos")}));
    search()->setText(QStringLiteral("PNG"));
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_EQ(controller->ticks().count(), 0U);
    scanToEnd();
    ASSERT_TRUE(waitFor([this] { return textOf(row({tr("All items")}), 1) == QLatin1String("4"); }));
    EXPECT_EQ(shown().size(), 4);
    EXPECT_EQ(search()->text(), QString());
    EXPECT_TRUE(controller->foundPane_Sig->choice().isEmpty());
}

}  // namespace
}  // namespace vantor

// The file-type list: its rows, its ticks, and what they make of the catalogues.
#include <QAccessible>
#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>

#include "results/RecoveryMode.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

class FileTypes : public WindowTest {
  protected:
    QStringList extensions() const {
        QStringList found;
        for (const FileTypeRow& row : controller->nsCheckedListDataObject) {
            found << row.value(QStringLiteral("Extension")).toString();
        }
        return found;
    }
    int rowOf(const char* extension) const {
        return static_cast<int>(extensions().indexOf(QLatin1String(extension)));
    }
    void clickCell(int row, int column) {
        QTableView* table = controller->idCheckTableView;
        const QRect cell = table->visualRect(table->model()->index(row, column));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, QPoint(cell.left() + 18, cell.center().y()));
    }
    bool ticked(const char* extension) const {
        return isTicked(controller->nsCheckedListDataObject.at(rowOf(extension)));
    }
};

TEST_F(FileTypes, OneRowAType_SortedWithoutRegardToCase_AllTicked) {
    openWithCard();
    toFileTypes(kRawFileMode);
    EXPECT_EQ(extensions(), (QStringList{QStringLiteral("doc"), QStringLiteral("PDF"), QStringLiteral("TXT"),
                                         QStringLiteral("ZIP")}));
    for (const FileTypeRow& row : controller->nsCheckedListDataObject) {
        EXPECT_TRUE(isTicked(row));
    }
    const auto field = [this](const char* extension, const char* key) {
        return controller->tableView(controller->idCheckTableView, QString::fromLatin1(key), rowOf(extension))
            .toString();
    };
    // In both catalogues: described by the first record met, and not thorough.
    EXPECT_EQ(field("PDF", "Description"), QStringLiteral("PDF document"));
    EXPECT_EQ(field("PDF", "Thoro"), QStringLiteral(""));
    EXPECT_EQ(field("TXT", "Thoro"), QStringLiteral("YES"));
    EXPECT_TRUE(controller->_select_unselect_Chk->isChecked());
    EXPECT_TRUE(controller->_Thro_Mode_Chk_SIG->isChecked());
    EXPECT_FALSE(controller->tableView(controller->idCheckTableView, QStringLiteral("Nothing"), 0).isValid());
}

TEST_F(FileTypes, NothingTicked_IsRefused) {
    openWithCard();
    toFileTypes(kRawFileMode);
    click(controller->_select_unselect_Chk);
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nPlease select atleast one extension type."));
    EXPECT_EQ(answers.seen().back().informative, QString());
    EXPECT_EQ(answers.seen().back().buttons, QStringList{QStringLiteral("OK")});
    EXPECT_EQ(answers.seen().back().defaultButton, QStringLiteral("OK"));
    EXPECT_EQ(controller->window->focusWidget(), controller->idCheckTableView);
    EXPECT_EQ(controller->screen_counter, 2);
    EXPECT_TRUE(controller->resultRows().isEmpty());
    EXPECT_TRUE(controller->CheckListHeader_Array.isEmpty());

    clickCell(rowOf("ZIP"), 0);
    scanToEnd();
    EXPECT_EQ(controller->screen_counter, 3);
    EXPECT_EQ(controller->resultRows().size(), 1);
}

TEST_F(FileTypes, UntickingAType_RemovesAllItsRecordsFromBothCatalogues) {
    openWithCard();
    toFileTypes(kRawFileMode);
    clickCell(rowOf("PDF"), 0);
    EXPECT_FALSE(ticked("PDF"));
    EXPECT_FALSE(controller->_select_unselect_Chk->isChecked());
    scanToEnd();
    EXPECT_FALSE(controller->CheckListHeader_Array.contains(QStringLiteral("PDF")));
    EXPECT_FALSE(controller->CheckListHeader_Adv_Array.contains(QStringLiteral("PDF")));
    EXPECT_EQ(controller->CheckListHeader_Array.size(), 2 * 7);
    EXPECT_EQ(controller->CheckListHeader_Array.at(0), QStringLiteral("ZIP"))
        << "catalogue order, not the table's";
}

TEST_F(FileTypes, OtherColumnsDoNotTouchTheSelectAllBox) {
    openWithCard();
    toFileTypes(kRawFileMode);
    controller->tableView(controller->idCheckTableView, QVariant(false), QStringLiteral("State"), 0);
    clickCell(0, 1);
    EXPECT_TRUE(controller->_select_unselect_Chk->isChecked());
    clickCell(1, 0);
    EXPECT_FALSE(controller->_select_unselect_Chk->isChecked());
    clickCell(1, 0);
    EXPECT_FALSE(controller->_select_unselect_Chk->isChecked()) << "one row is still not ticked";
    clickCell(0, 0);
    EXPECT_TRUE(controller->_select_unselect_Chk->isChecked());
}

TEST_F(FileTypes, ClickTable_OfTheResultsTable_DoesNothing) {
    openWithCard();
    toFileTypes(kRawFileMode);
    clickCell(0, 0);
    ASSERT_FALSE(controller->_select_unselect_Chk->isChecked());
    controller->tableView(controller->idCheckTableView, QVariant(true), QStringLiteral("State"), 0);
    controller->clickTable(controller->idSigTableView);
    EXPECT_FALSE(controller->_select_unselect_Chk->isChecked());
    controller->clickTable(controller->idCheckTableView);
    EXPECT_TRUE(controller->_select_unselect_Chk->isChecked());
}

TEST_F(FileTypes, SelectAll_KeepsOrderDescriptionsAndFlags) {
    openWithCard();
    toFileTypes(kRawFileMode);
    auto expected = controller->nsCheckedListDataObject;
    for (FileTypeRow& row : expected) {
        row[QStringLiteral("State")] = false;
    }
    click(controller->_select_unselect_Chk);
    EXPECT_EQ(controller->nsCheckedListDataObject, expected);
}

TEST_F(FileTypes, TheThoroughBoxHasNoEffectOfItsOwn) {
    openWithCard();
    toFileTypes(kRawFileMode);
    const auto before = controller->nsCheckedListDataObject;
    click(controller->_Thro_Mode_Chk_SIG);
    EXPECT_EQ(controller->nsCheckedListDataObject, before);
    scanToEnd();
    bool thoroughItem = false;
    for (std::size_t i = 0; i < controller->itemCount(); ++i) {
        thoroughItem = thoroughItem || controller->itemAt(i)->imageTitle().endsWith(QLatin1String(".TXT"));
    }
    EXPECT_TRUE(thoroughItem) << "the thorough pass runs whenever thorough records are chosen";
}

TEST_F(FileTypes, EditsBeyondTheListChangeNothing) {
    openWithCard();
    toFileTypes(kRawFileMode);
    const auto before = controller->nsCheckedListDataObject;
    for (const qsizetype row : {qsizetype{-1}, before.size()}) {
        controller->tableView(controller->idCheckTableView, QVariant(false), QStringLiteral("State"), row);
    }
    controller->tableView(controller->idSigTableView, QVariant(false), QStringLiteral("State"), 0);
    EXPECT_EQ(controller->nsCheckedListDataObject, before);
}

TEST_F(FileTypes, SpaceTicksTheRowAndTheBoxFollows) {
    openWithCard();
    toFileTypes(kRawFileMode);
    controller->idCheckTableView->setCurrentIndex(controller->idCheckTableView->model()->index(0, 0));
    QTest::keyClick(controller->idCheckTableView, Qt::Key_Space);
    EXPECT_FALSE(isTicked(controller->nsCheckedListDataObject.at(0)));
    EXPECT_FALSE(controller->_select_unselect_Chk->isChecked());
}

TEST_F(FileTypes, SpaceTicksTheRowWhicheverColumnWasClicked) {
    openWithCard();
    toFileTypes(kRawFileMode);
    clickCell(rowOf("ZIP"), 1);
    QTest::keyClick(controller->idCheckTableView, Qt::Key_Space);
    EXPECT_FALSE(ticked("ZIP"));
    EXPECT_FALSE(controller->_select_unselect_Chk->isChecked());
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("3 of 4 selected"));
    QTest::keyClick(controller->idCheckTableView, Qt::Key_Space);
    EXPECT_TRUE(ticked("ZIP"));
    EXPECT_TRUE(controller->_select_unselect_Chk->isChecked());
}

TEST_F(FileTypes, TheKeyboardReachesOnlyTheRowsThatTheSearchLeft) {
    openWithCard();
    toFileTypes(kRawFileMode);
    clickCell(rowOf("doc"), 1);
    QTest::keyClicks(controller->typeSearchField, QStringLiteral("archive"));
    QTest::keyClick(controller->idCheckTableView, Qt::Key_Space);
    EXPECT_TRUE(ticked("doc")) << "a row out of view is not ticked";
    QTest::keyClick(controller->idCheckTableView, Qt::Key_Down);
    QTest::keyClick(controller->idCheckTableView, Qt::Key_Space);
    EXPECT_FALSE(ticked("ZIP"));
    EXPECT_TRUE(ticked("doc"));
}

TEST_F(FileTypes, ASearchWithoutAMatchSaysSo) {
    openWithCard();
    toFileTypes(kRawFileMode);
    const QImage full = controller->idCheckTableView->viewport()->grab().toImage();
    click(controller->typeSearchField);
    QTest::keyClicks(controller->typeSearchField, QStringLiteral("no such type"));
    EXPECT_EQ(controller->idCheckTableView->accessibleDescription(),
              QStringLiteral("No type matches Clear the search field to see all types."));
    QTest::keyClick(controller->typeSearchField, Qt::Key_Escape);
    EXPECT_EQ(controller->typeSearchField->text(), QString());
    EXPECT_FALSE(controller->idCheckTableView->isRowHidden(0));
    EXPECT_EQ(controller->idCheckTableView->viewport()->grab().toImage(), full);
}

TEST_F(FileTypes, APresetTicksItsTypesAndNoOthers) {
    openWithCard();
    toFileTypes(kRawFileMode);
    QStringList offered;
    for (const QAction* action : controller->typePresetButton->menu()->actions()) {
        offered << action->text();
    }
    EXPECT_EQ(offered, (QStringList{QStringLiteral("Office documents"), QStringLiteral("Phone"),
                                    QStringLiteral("Everything")}))
        << "of the others the list holds nothing";
    QTest::keyClicks(controller->typeSearchField, QStringLiteral("archive"));
    controller->typePresetButton->menu()->actions().constFirst()->trigger();
    EXPECT_EQ(controller->typeSearchField->text(), QString());
    EXPECT_TRUE(ticked("doc"));
    EXPECT_TRUE(ticked("PDF"));
    EXPECT_FALSE(ticked("TXT"));
    EXPECT_FALSE(ticked("ZIP"));
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("2 of 4 selected"));
    EXPECT_TRUE(controller->_select_unselect_Chk->isMixed());
    controller->typePresetButton->menu()->actions().constLast()->trigger();
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("4 of 4 selected"));
}

TEST_F(FileTypes, SearchHidesRowsAndKeepsTheirTicks) {
    openWithCard();
    toFileTypes(kRawFileMode);
    QTest::keyClicks(controller->typeSearchField, QStringLiteral("archive"));
    for (int row = 0; row < controller->nsCheckedListDataObject.size(); ++row) {
        EXPECT_EQ(controller->idCheckTableView->isRowHidden(row), row != rowOf("ZIP"));
    }
    controller->typeSearchField->clear();
    EXPECT_FALSE(controller->idCheckTableView->isRowHidden(0));
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("4 of 4 selected"));
}

TEST_F(FileTypes, ReturnInTheSearchField_LeadsToTheListAndStartsNothing) {
    openWithCard();
    toFileTypes(kRawFileMode);
    click(controller->typeSearchField);
    QTest::keyClicks(controller->typeSearchField, QStringLiteral("archive"));
    QTest::keyClick(controller->typeSearchField, Qt::Key_Return);
    EXPECT_EQ(controller->screen_counter, 2);
    EXPECT_EQ(controller->window->focusWidget(), controller->idCheckTableView);
    QTest::keyClick(controller->idCheckTableView, Qt::Key_Space);
    EXPECT_FALSE(ticked("ZIP")) << "a row that is in view is at hand";
    controller->typeSearchField->setFocus();
    controller->typeSearchField->setText(QStringLiteral("no such type"));
    QTest::keyClick(controller->typeSearchField, Qt::Key_Enter);
    EXPECT_EQ(controller->screen_counter, 2);
    EXPECT_EQ(controller->window->focusWidget(), controller->typeSearchField) << "there is no row to go to";
}

TEST_F(FileTypes, SelectAll_ActsOnWhatTheSearchFieldShows) {
    openWithCard();
    toFileTypes(kRawFileMode);
    QCheckBox* const all = controller->_select_unselect_Chk;
    QTest::keyClicks(controller->typeSearchField, QStringLiteral("document"));
    ASSERT_TRUE(all->isChecked());
    const QStringList before = extensions();
    click(all);
    EXPECT_FALSE(ticked("PDF"));
    EXPECT_FALSE(ticked("doc"));
    EXPECT_TRUE(ticked("ZIP"));
    EXPECT_TRUE(ticked("TXT"));
    EXPECT_EQ(extensions(), before);
    EXPECT_FALSE(all->isChecked());
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("2 of 4 selected"));
    controller->typeSearchField->setText(QStringLiteral("archive"));
    EXPECT_TRUE(all->isChecked()) << "what is shown is ticked";
    controller->typeSearchField->setText(QStringLiteral("no such type"));
    EXPECT_FALSE(all->isEnabled());
    controller->typeSearchField->clear();
    EXPECT_TRUE(all->isEnabled());
    EXPECT_FALSE(all->isChecked());
    click(all);
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("4 of 4 selected"));
}

TEST_F(FileTypes, AGroup_ActsOnWhatTheSearchFieldShows) {
    openWithCard();
    toFileTypes(kRawFileMode);
    auto* documents = controller->window->findChild<QCheckBox*>(QStringLiteral("typeGroupDocuments"));
    auto* archives = controller->window->findChild<QCheckBox*>(QStringLiteral("typeGroupArchives"));
    QTest::keyClicks(controller->typeSearchField, QStringLiteral("pdf"));
    EXPECT_EQ(documents->text(), QStringLiteral("Documents (1)"));
    EXPECT_FALSE(archives->isEnabled());
    click(documents);
    EXPECT_FALSE(ticked("PDF"));
    EXPECT_TRUE(ticked("doc"));
    EXPECT_TRUE(ticked("TXT"));
    EXPECT_EQ(documents->checkState(), Qt::Unchecked);
    controller->typeSearchField->clear();
    EXPECT_EQ(documents->text(), QStringLiteral("Documents (3)"));
    EXPECT_EQ(documents->checkState(), Qt::PartiallyChecked);
    EXPECT_TRUE(archives->isEnabled());
}

// Off, as it is whenever a type is not ticked, and yet seen and told apart from none.
TEST_F(FileTypes, SelectAll_ShowsThatSomeAreTicked) {
    openWithCard();
    toFileTypes(kRawFileMode);
    QCheckBox* const all = controller->_select_unselect_Chk;
    const auto face = [all] { return QAccessible::queryAccessibleInterface(all)->state(); };
    const auto look = [all] { return all->grab().toImage(); };
    all->clearFocus();
    click(all);
    controller->idCheckTableView->setFocus();
    const QImage none = look();
    EXPECT_FALSE(face().checkStateMixed);
    clickCell(0, 0);
    controller->idCheckTableView->setFocus();
    EXPECT_FALSE(all->isChecked());
    EXPECT_TRUE(face().checkStateMixed);
    EXPECT_FALSE(face().checked);
    EXPECT_NE(look(), none);
    click(all);
    EXPECT_TRUE(all->isChecked()) << "a click ticks the rest";
    EXPECT_FALSE(face().checkStateMixed);
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("4 of 4 selected"));
    click(all);
    controller->idCheckTableView->setFocus();
    EXPECT_EQ(look(), none);
}

TEST_F(FileTypes, AGroupIsTickedAtOnce) {
    openWithCard();
    toFileTypes(kRawFileMode);
    auto* documents = controller->window->findChild<QCheckBox*>(QStringLiteral("typeGroupDocuments"));
    ASSERT_NE(documents, nullptr);
    EXPECT_TRUE(documents->isVisible());
    EXPECT_EQ(documents->text(), QStringLiteral("Documents (3)"));
    click(documents);
    EXPECT_FALSE(ticked("PDF"));
    EXPECT_FALSE(ticked("doc"));
    EXPECT_TRUE(ticked("ZIP"));
    EXPECT_FALSE(controller->_select_unselect_Chk->isChecked());
    EXPECT_EQ(controller->typeCountLabel->text(), QStringLiteral("1 of 4 selected"));
    clickCell(rowOf("PDF"), 0);
    EXPECT_EQ(documents->checkState(), Qt::PartiallyChecked);
}

TEST_F(FileTypes, ResultsTable_LongerThanItsRoom_ShowsWhatWasFoundOnceTheSearchHasEnded) {
    QByteArray records;
    for (int i = 0; i < 60; ++i) {
        const QByteArray number = QByteArray::number(i);
        records += record(("A" + number).constData(),
                          ("41424344" + number.rightJustified(4, '0')).constData(), "Nothing of the card");
    }
    source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
    writeCatalogue("ZelRaw.dll", records + record("PDF", "25504446", "Document"));
    card.put(24, "%PDF-");
    open();
    toFileTypes(kRawFileMode);
    scanToEnd();
    QTableView* const table = controller->idSigTableView;
    const int last = table->model()->rowCount() - 1;
    ASSERT_GT(last, 59);
    EXPECT_TRUE(controller->foundTypesOnly->isChecked());
    EXPECT_TRUE(table->isRowHidden(0));
    EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(table->model()->index(last, 0))));
    click(controller->foundTypesOnly);
    EXPECT_FALSE(table->isRowHidden(0)) << "the others are there for who asks for them";
}

TEST_F(FileTypes, ResultsTable_BeyondItsEnd_HasEmptyCells) {
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    QTableView* table = controller->idSigTableView;
    EXPECT_EQ(controller->numberOfRowsInTableView(table), 4);
    EXPECT_FALSE(controller->tableView(table, QStringLiteral("FileTypes"), 4).isValid());
    EXPECT_FALSE(controller->tableView(table, QStringLiteral("FileTypes"), -1).isValid());
    EXPECT_FALSE(controller->tableView(table, QStringLiteral("Nothing"), 0).isValid());
    EXPECT_EQ(controller->tableView(table, QStringLiteral("FileTypes"), 1), QStringLiteral("PDF"));
    EXPECT_EQ(controller->tableView(table, QStringLiteral("NoOfFile"), 1), QStringLiteral("2"));
    EXPECT_EQ(controller->tableView(table, QStringLiteral("FileName"), 1), QStringLiteral("PDF00002.PDF"));
    EXPECT_EQ(controller->tableView(table, QStringLiteral("FileTypes_Hidden"), 1), QStringLiteral("PDF"));
    EXPECT_EQ(table->model()->index(1, 1).data(), QStringLiteral("2")) << "the table itself shows the count";
}

}  // namespace
}  // namespace vantor

// What the tables are given for rows that are not what they should be, and when they look again.
#include <stdexcept>

#include "media/MyDataObject.h"
#include "results/RecoveryMode.h"
#include "scan/PlatformException.h"
#include "tests/window/WindowTest.h"

namespace vantor {
namespace {

using TableDataSources = WindowTest;

TEST(Guarded, SwallowsPlatformExceptionsAndNothingElse) {
    EXPECT_EQ(guarded([]() -> QString { throw PlatformException("gone"); }), QString());
    EXPECT_NO_THROW(guarded([] { assertParameter(false, "row >= 0"); }));
    EXPECT_EQ(guarded([] { return 7; }), 7);
    EXPECT_THROW(guarded([]() -> QString { throw std::out_of_range("a fault"); }), std::out_of_range);
    EXPECT_THROW(guarded([] { throw std::runtime_error("another"); }), std::runtime_error);
    EXPECT_THROW(guarded([] { throw 5; }), int);
}

TEST_F(TableDataSources, AMediaRowWithoutARecord_IsEmptyAndChoosesNothing) {
    openWithCard();
    controller->addRow(nullptr);
    QTableView* const table = controller->idTableView;
    ASSERT_EQ(table->model()->rowCount(), 2);
    for (int column = 1; column <= 6; ++column) {
        EXPECT_FALSE(controller->tableView(table, QStringLiteral("Collumn%1").arg(column), 1).isValid());
    }
    settle();  // painted too
    selectMedium(1);
    answers.press(QStringLiteral("OK"));
    click(controller->nextButton);
    EXPECT_EQ(answers.seen().back().text, QStringLiteral("\nPlease select a storage media from list."));
    EXPECT_EQ(controller->screen_counter, 0);
    controller->openImages({QStringLiteral("a.img")});
    EXPECT_EQ(table->model()->rowCount(), 2) << "the list as it is now";
}

TEST_F(TableDataSources, AMediaColumnThatIsNotKnown_IsEmpty) {
    openWithCard();
    EXPECT_TRUE(controller->tableView(controller->idTableView, QStringLiteral("Collumn1"), 0).isValid());
    EXPECT_FALSE(controller->tableView(controller->idTableView, QStringLiteral("Collumn7"), 0).isValid());
    EXPECT_FALSE(controller->tableView(controller->idTableView, QStringLiteral("Column1"), 0).isValid());
}

TEST_F(TableDataSources, ALabelTurnsNothingAroundAndHoldsNothingUp) {
    openWithCard();
    const auto record = std::make_shared<MyDataObject>();
    record->nsStrVolName = QStringLiteral("A\u202EB\nC\t") + QString(1'000'000, u'x');
    controller->addRow(record);
    settle();
    const QString cell =
        controller->tableView(controller->idTableView, QStringLiteral("Collumn2"), 1).toString();
    EXPECT_TRUE(cell.startsWith(QStringLiteral("A\\u202eB\\u000aC\\u0009xxx")))
        << cell.left(40).toStdString();
    EXPECT_LT(cell.size(), 300);
    selectMedium(1);
    choose(controller->_rec_mode_Photo);
    click(controller->nextButton);
    settle();
    EXPECT_EQ(controller->_vol_name_val->text(), cell);
    EXPECT_EQ(record->nsStrVolName.size(), 1'000'006) << "the record stays as it was read";
}

TEST_F(TableDataSources, ANewResultsRow_IsInTheTableAtOnce) {
    open();
    ASSERT_EQ(controller->idSigTableView->model()->rowCount(), 0);
    controller->createSignatureListTableRecord(QStringLiteral("JPG"), 3, {}, {}, QStringLiteral("JPG"));
    ASSERT_EQ(controller->idSigTableView->model()->rowCount(), 1);
    EXPECT_EQ(controller->idSigTableView->model()->index(0, 1).data(), QStringLiteral("3"));
}

}  // namespace
}  // namespace vantor

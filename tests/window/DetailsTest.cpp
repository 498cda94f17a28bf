// Items as lines of columns: the same list, selection and ticks, sorted by a click on a column.
#include <QComboBox>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>

#include "results/ItemWords.h"
#include "results/MyImageObject.h"
#include "tests/window/PreviewWindow.h"
#include "window/browser/DetailsHeader.h"

namespace vantor {
namespace {

class Details : public Preview {
  protected:
    void openThree() {
        openResults({{"B.JPG", 10, 12}, {"A.PDF", 30, 31}, {"C.AVI", 4, 8}});
        browser = controller->imageBrowser_2;
    }
    void clickColumn(DetailsColumn column) const {
        const DetailsHeader& header = *browser->detailsHeader();
        const int at = static_cast<int>(column);
        browser->horizontalScrollBar()->setValue(header.sectionPosition(at));
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(at) + 20, header.height() / 2});
    }
    QStringList shown() const {
        QStringList names;
        for (int row = 0; row < browser->shownCount(); ++row) {
            names << browser->itemOfRow(row)->imageTitle();
        }
        return names;
    }
    ImageBrowserView* browser = nullptr;
};

TEST_F(Details, Lines_HoldWhatCellsHeld) {
    openThree();
    controller->tickItems({1}, true);
    select(1);
    const QRect cell = browser->visualRect(browser->model()->index(1, 0));
    click(controller->detailsButton_Sig);
    EXPECT_TRUE(browser->detailsShown());
    EXPECT_TRUE(browser->detailsHeader()->isVisible());
    EXPECT_FALSE(controller->zoomSlider_Sig->isEnabled());
    EXPECT_EQ(browser->selectionIndexes(), QList<qsizetype>{1});
    EXPECT_TRUE(browser->factsOfRow(1).ticked);
    const QRect first = browser->visualRect(browser->model()->index(0, 0));
    const QRect line = browser->visualRect(browser->model()->index(1, 0));
    EXPECT_EQ(line.top(), first.bottom() + 1) << "one below the other";
    EXPECT_GE(line.width(), browser->detailsHeader()->length());
    EXPECT_LT(line.height(), cell.height());
    // A click on the tick box, the keys, and a click that selects.
    QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, {line.left() + 10, line.center().y()});
    EXPECT_FALSE(browser->factsOfRow(1).ticked);
    EXPECT_EQ(browser->selectionIndexes(), QList<qsizetype>{1});
    select(2);
    EXPECT_EQ(browser->selectionIndexes(), QList<qsizetype>{2});
    QTest::keyClick(browser, Qt::Key_Insert);
    EXPECT_TRUE(browser->factsOfRow(2).ticked);
    QTest::keyClick(browser, Qt::Key_Up);
    EXPECT_EQ(browser->selectionIndexes(), QList<qsizetype>{1});
    EXPECT_TRUE(browser->model()
                    ->index(1, 0)
                    .data(Qt::AccessibleTextRole)
                    .toString()
                    .contains(QStringLiteral("sector 30")));
    click(controller->detailsButton_Sig);
    EXPECT_FALSE(browser->detailsShown());
    EXPECT_EQ(browser->visualRect(browser->model()->index(1, 0)).size(), cell.size());
    EXPECT_FALSE(browser->detailsHeader()->isVisible());
    EXPECT_FALSE(browser->model()
                     ->index(1, 0)
                     .data(Qt::AccessibleTextRole)
                     .toString()
                     .contains(QStringLiteral("sector 30")));
}

TEST_F(Details, AClickOnAColumn_Sorts_AndAnotherTurnsItRound) {
    openThree();
    controller->detailsButton_Sig->setChecked(true);
    settle();
    const QStringList found{QStringLiteral("B.JPG"), QStringLiteral("A.PDF"), QStringLiteral("C.AVI")};
    EXPECT_EQ(shown(), found);
    clickColumn(DetailsColumn::Name);
    EXPECT_EQ(shown().join(u' '), QStringLiteral("A.PDF B.JPG C.AVI"));
    EXPECT_EQ(controller->sortBox_Sig->currentText(), QStringLiteral("By name"));
    EXPECT_TRUE(browser->detailsHeader()->isSortIndicatorShown());
    clickColumn(DetailsColumn::Name);
    EXPECT_EQ(shown().join(u' '), QStringLiteral("C.AVI B.JPG A.PDF"));
    EXPECT_EQ(browser->detailsHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    clickColumn(DetailsColumn::Type);
    EXPECT_EQ(shown().join(u' '), QStringLiteral("C.AVI B.JPG A.PDF"));
    clickColumn(DetailsColumn::Place);
    EXPECT_EQ(shown().join(u' '), QStringLiteral("C.AVI B.JPG A.PDF"));
    clickColumn(DetailsColumn::Place);
    EXPECT_EQ(shown().join(u' '), QStringLiteral("A.PDF B.JPG C.AVI"));
    controller->sortBox_Sig->setCurrentIndex(0);
    EXPECT_EQ(shown(), found) << "as found, and no longer the other way round";
    EXPECT_FALSE(browser->detailsHeader()->isSortIndicatorShown());
}

TEST_F(Details, WhichViewAndItsColumns_AreRemembered) {
    const QTemporaryDir settings;
    parts.settingsFile = settings.filePath(QStringLiteral("settings.conf"));
    openThree();
    controller->detailsButton_Sig->setChecked(true);
    browser->detailsHeader()->resizeSection(0, 333);
    controller->remember();
    close();
    source->order.clear();
    openThree();
    EXPECT_TRUE(browser->detailsShown());
    EXPECT_TRUE(controller->detailsButton->isChecked());
    EXPECT_EQ(browser->detailsHeader()->sectionSize(0), 333);
    EXPECT_FALSE(browser->detailsHeader()->isSortIndicatorShown());
}

TEST_F(Details, NamesOnTheCard_HaveAColumnWhereThereAreAny) {
    openThree();
    DetailsHeader* const header = browser->detailsHeader();
    constexpr int kColumn = static_cast<int>(DetailsColumn::OriginalName);
    EXPECT_TRUE(header->isSectionHidden(kColumn));
    const int narrow = header->length();
    browser->setOriginalsShown(true);
    EXPECT_FALSE(header->isSectionHidden(kColumn));
    EXPECT_GT(header->length(), narrow);
    const QByteArray state = header->saveState();
    browser->setOriginalsShown(false);
    header->recall(state);
    EXPECT_TRUE(header->isSectionHidden(kColumn)) << "what an earlier card had";
}

TEST(DetailsColumns, WhatIsKnown_StandsInItsColumn) {
    const auto item =
        MyImageObject::initWithImage({}, QStringLiteral("GND00001.JPG"), QStringLiteral("1"), 50, 60);
    ItemFacts facts;
    EXPECT_EQ(detailsText(DetailsColumn::Name, *item, facts, nullptr), QStringLiteral("GND00001.JPG"));
    EXPECT_EQ(detailsText(DetailsColumn::Size, *item, facts, nullptr), QString());
    EXPECT_EQ(detailsText(DetailsColumn::State, *item, facts, nullptr), QStringLiteral("not examined yet"));
    facts.soundness =
        Soundness{Verdict::Complete, false, false, 5'300'000, 4000, 3000, CivilTime{2026, 5, 7, 9, 4, 0}};
    facts.soundness->camera = QStringLiteral("Canon");
    facts.saved = true;
    const CellPicture movie{{}, 65'000};
    EXPECT_EQ(detailsText(DetailsColumn::Type, *item, facts, nullptr), QStringLiteral("JPG"));
    EXPECT_EQ(detailsText(DetailsColumn::Size, *item, facts, nullptr), QStringLiteral("5.3 MB"));
    EXPECT_EQ(detailsText(DetailsColumn::Date, *item, facts, nullptr), QStringLiteral("2026-05-07 09:04"));
    EXPECT_EQ(detailsText(DetailsColumn::Camera, *item, facts, nullptr), QStringLiteral("Canon"));
    EXPECT_EQ(detailsText(DetailsColumn::Extent, *item, facts, nullptr), QStringLiteral("4,000 × 3,000"));
    EXPECT_EQ(detailsText(DetailsColumn::Extent, *item, facts, &movie), QStringLiteral("1:05"));
    facts.soundness->durationMs = 999;
    EXPECT_EQ(detailsText(DetailsColumn::Extent, *item, facts, nullptr), QStringLiteral("4,000 × 3,000"));
    facts.soundness->durationMs = 3'725'000;
    EXPECT_EQ(detailsText(DetailsColumn::Extent, *item, facts, nullptr), QStringLiteral("1:02:05"));
    EXPECT_EQ(detailsText(DetailsColumn::Extent, *item, facts, &movie), QStringLiteral("1:05"))
        << "what played knows better than the head";
    EXPECT_EQ(captionWords(facts, 0).all, QStringLiteral("2026-05-07 · 1:02:05"));
    EXPECT_TRUE(detailsText(DetailsColumn::State, *item, facts, nullptr).endsWith(QStringLiteral(", saved")));
    EXPECT_EQ(detailsText(DetailsColumn::Place, *item, facts, nullptr), QStringLiteral("sectors 50 to 59"));
}

TEST(CaptionWords, SayTheDay_AndPixelsOrLengthOrSize) {
    ItemFacts facts;
    EXPECT_EQ(captionWords(facts, 0).all, QString());
    EXPECT_EQ(captionWords(facts, 65'000).all, QStringLiteral("1:05"));
    facts.soundness = Soundness{Verdict::Complete, false, false, 5'300'000, 0, 0, {}};
    EXPECT_EQ(captionWords(facts, 0).first, QStringLiteral("5.3 MB"));
    facts.soundness->width = 4000;
    facts.soundness->height = 3000;
    EXPECT_EQ(captionWords(facts, 0).all, QStringLiteral("4000 × 3000"));
    facts.soundness->taken = CivilTime{2026, 5, 7, 9, 4, 0};
    EXPECT_EQ(captionWords(facts, 0).all, QStringLiteral("2026-05-07 · 4000 × 3000"));
    EXPECT_EQ(captionWords(facts, 0).first, QStringLiteral("2026-05-07"));
    EXPECT_EQ(captionWords(facts, 65'000).all, QStringLiteral("2026-05-07 · 1:05"));
}

// Cells in raw mode: what they look like in place of icons.
TEST_F(Details, ACell_ShowsThePictureThatWasMadeOfItsFile) {
    parts.openBeside = [this](const QString&) { return std::make_unique<ScriptedReader>(card); };
    parts.look = [](const QString&, QSize bound) {
        QImage picture(bound, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        return FileLook{picture, 5000};
    };
    openWithCard();
    toFileTypes(kRawFileMode);
    scanToEnd();
    browser = controller->imageBrowser_2;
    const auto middle = [this] {
        const QRect cell = browser->visualRect(browser->model()->index(0, 0));
        const QPoint at(cell.center().x(), cell.top() + 4 + browser->iconSize().height() / 2);
        return QColor(browser->viewport()->grab().toImage().pixel(at));
    };
    controller->zoomSlider_Sig->setValue(controller->zoomSlider_Sig->maximum());
    EXPECT_FLOAT_EQ(browser->zoomValue(), 1);
    EXPECT_TRUE(waitFor([&] {
        const QColor seen = middle();
        return seen.red() > 200 && seen.green() < 60 && seen.blue() > 200;
    }));
    EXPECT_EQ(controller->pictureOfItem(0)->durationMs, 5000);
}

}  // namespace
}  // namespace vantor

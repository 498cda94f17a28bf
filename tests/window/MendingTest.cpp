// Broken photos completed in the window: the button, the bar, what is shown of it, saved of it, and what ends
// it.
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

#include "results/RecoveryMode.h"
#include "tests/repair/Photos.h"
#include "tests/repair/ScatteredCard.h"
#include "tests/repair/WatchedCard.h"
#include "tests/support/Gate.h"
#include "tests/support/SmallFiles.h"
#include "tests/window/WindowTest.h"
#include "window/mending/MendingBar.h"
#include "window/preview/ItemViewer.h"
#include "window/preview/MendPane.h"
#include "window/preview/PieceStrip.h"
#include "window/preview/ViewerDesk.h"

namespace vantor {
namespace {

class Mending : public WindowTest {
  protected:
    // Two photos crossed, and one that is whole.
    void openCrossed() {
        test::ScatteredCard scattered;
        scattered.putCrossed(m_one, m_other);
        static const QByteArray third = test::makePhoto(3, 320, 240);
        scattered.put(third);
        m_bytes = scattered.bytes();
        const QByteArray& bytes = m_bytes;
        card.bytes.resize(static_cast<std::size_t>(bytes.size()) / kSectorBytes);
        for (std::size_t sector = 0; sector < card.bytes.size(); ++sector) {
            std::memcpy(card.bytes[sector].data(), bytes.constData() + sector * kSectorBytes, kSectorBytes);
        }
        source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
        writeCatalogue("ZelExt2.dll", record("JPG", "FFD8FF", "JPEG photo"));
        writeCatalogue("ZelExt2Adv.dll", record("GIF", "474946", "GIF picture"));
        m_reads->atRead = [this](std::uint64_t) {
            if (hold) {
                gate.passage()();
            }
        };
        parts.openBeside = [this](const QString&) -> std::unique_ptr<SectorReader> {
            return refuseOpen ? nullptr : std::make_unique<test::WatchedCard>(m_bytes, m_reads);
        };
        open();
        toRange(kPhotoMode);
        scanToEnd();
    }
    QPushButton* button() const {
        return controller->searchEndBar->findChild<QPushButton*>(QStringLiteral("completeBrokenButton"));
    }
    MendingBar* bar() const { return controller->body->findChild<MendingBar*>(); }
    bool isOver() const { return bar()->closeButton->isVisible(); }
    // Nothing moves before the gate is opened.
    void mendHeldUp() {
        ASSERT_TRUE(waitFor([this] {
            return controller->factsOfItem(0).soundness && controller->factsOfItem(1).soundness &&
                   controller->factsOfItem(2).soundness;
        }));
        hold = true;
        click(button());
        ASSERT_TRUE(waitFor([this] { return gate.someoneWaits(); }));
        hold = false;
    }
    void mendAll() {
        click(button());
        ASSERT_TRUE(waitFor([this] { return isOver(); }));
    }

    Gate gate;
    std::atomic<bool> hold{false};
    // As few as can be made: that takes time.
    inline static const QByteArray m_one = test::makePhoto(1), m_other = test::makePhoto(2);

  private:
    // What is read beside the interface; at the gate where somebody holds it.
    const std::shared_ptr<test::WatchedCard::Script> m_reads = std::make_shared<test::WatchedCard::Script>();
    QByteArray m_bytes;
};

TEST_F(Mending, CompletesBrokenPhotos_AndTheItemsStayAsTheyAre) {
    openCrossed();
    ASSERT_EQ(controller->itemCount(), 3U);
    ASSERT_TRUE(button()->isVisible());
    EXPECT_FALSE(bar()->isVisible());
    const SectorRun published = controller->itemAt(0)->publishedSectors();
    mendAll();
    EXPECT_EQ(bar()->label->text(), QStringLiteral("2 files completed."));
    EXPECT_EQ(controller->itemCount(), 3U);
    EXPECT_EQ(controller->itemAt(0)->publishedSectors().end, published.end);
    const ItemFacts facts = controller->factsOfItem(0);
    ASSERT_TRUE(facts.mend && facts.soundness);
    EXPECT_EQ(facts.mend->assembly.runs.size(), 2U);
    EXPECT_EQ(facts.soundness->verdict, Verdict::Complete);
    EXPECT_EQ(facts.soundness->pieces, 2U);
    EXPECT_EQ(controller->factsOfItem(2).mend, nullptr);
    EXPECT_TRUE(waitFor([this] { return !button()->isVisible(); })) << "nothing is left to complete";
}

TEST_F(Mending, TheCellShowsThePhotoAsItWasPutTogether) {
    parts.look = [](const QString& file, QSize) {
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        return FileLook{picture, QFileInfo(file).size()};
    };
    openCrossed();
    const auto bytesShown = [this](qsizetype index) {
        const CellPicture* const picture = controller->pictureOfItem(index);
        return picture != nullptr ? picture->durationMs : 0;
    };
    EXPECT_NE(bytesShown(0), m_one.size());
    mendAll();
    EXPECT_TRUE(waitFor([&] { return bytesShown(0) == m_one.size() && bytesShown(1) == m_other.size(); }));
}

TEST_F(Mending, ShowThem_LeavesOnlyWhatWasPutTogether_AndCloseEndsTheMessage) {
    openCrossed();
    mendAll();
    click(bar()->showButton);
    EXPECT_EQ(controller->showBox->currentText(), QStringLiteral("Put together or repaired"));
    EXPECT_EQ(controller->imageBrowser->shownIndexes(), (QList<qsizetype>{0, 1}));
    click(bar()->closeButton);
    EXPECT_FALSE(bar()->isVisible());
}

TEST_F(Mending, SavedAreTheWholePhotos) {
    openCrossed();
    mendAll();
    const QTemporaryDir destination;
    controller->_path->setText(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_EQ(contentsOf(destination.filePath("JPG/GND00001.JPG")), m_one);
    EXPECT_EQ(contentsOf(destination.filePath("JPG/GND00002.JPG")), m_other);
    EXPECT_TRUE(contentsOf(destination.filePath("Recovery report.csv")).contains(",2,32+"));
}

TEST_F(Mending, TheViewerShowsItsPieces_AndTheFileAsItWasFound) {
    openCrossed();
    mendAll();
    controller->window->activateWindow();
    ASSERT_TRUE(waitFor([this] { return controller->window->isActiveWindow(); }));
    controller->openInViewer(0);
    ItemViewer* const viewer = controller->viewer().viewer();
    ASSERT_TRUE(viewer->mend()->isVisible());
    EXPECT_FALSE(viewer->mend()->isAsFound());
    const auto* const strip = viewer->findChild<PieceStrip*>();
    EXPECT_EQ(strip->pieces().size(), 2U);
    EXPECT_EQ(viewer->findChild<QLabel*>(QStringLiteral("viewerMendWords"))->text(),
              QStringLiteral("Complete, put together from 2 pieces"));
    const auto size = [viewer]() -> QString {
        for (const ViewerFact& fact : viewer->facts()) {
            if (fact.name == u"Size") {
                return fact.value;
            }
        }
        return {};
    };
    ASSERT_TRUE(waitFor([&] { return !controller->viewer().isBusy() && !size().isEmpty(); }));
    const QString whole = size();
    QTest::keyClick(controller->window->focusWidget(), Qt::Key_B);
    EXPECT_TRUE(viewer->mend()->isAsFound());
    EXPECT_TRUE(waitFor([&] { return size() != whole && !controller->viewer().isBusy(); }));
    QTest::keyClick(controller->window->focusWidget(), Qt::Key_Right);
    EXPECT_FALSE(viewer->mend()->isAsFound()) << "each item begins as it was put together";
    QTest::keyClick(controller->window->focusWidget(), Qt::Key_Right);
    EXPECT_FALSE(viewer->mend()->isVisible()) << "nothing was made of the third";
}

TEST_F(Mending, StopEndsItAtOnce_AndTheButtonIsThereForAnotherTime) {
    openCrossed();
    mendHeldUp();
    EXPECT_TRUE(bar()->progress->isVisible());
    EXPECT_FALSE(button()->isEnabled());
    EXPECT_EQ(controller->window->focusWidget(), controller->imageBrowser)
        << "a second Return does not stop what the first began";
    click(bar()->stopButton);
    gate.open();
    ASSERT_TRUE(waitFor([this] { return isOver(); }));
    EXPECT_EQ(bar()->label->text(), QStringLiteral("Stopped."));
    EXPECT_FALSE(bar()->showButton->isVisible());
    EXPECT_TRUE(button()->isEnabled());
    mendAll();
    EXPECT_EQ(bar()->label->text(), QStringLiteral("2 files completed."));
}

TEST_F(Mending, WhoGoesBackOrSavesWaitsForNothing) {
    openCrossed();
    mendHeldUp();
    const QTemporaryDir destination;
    controller->_path->setText(destination.path());
    answers.press(QStringLiteral("OK"));
    click(controller->saveAllButton);
    EXPECT_TRUE(QFile::exists(destination.filePath("JPG/GND00001.JPG"))) << "while the mending still waits";
    click(controller->backButton);
    EXPECT_EQ(controller->screen_counter, 1);
    EXPECT_FALSE(bar()->isVisible());
    gate.open();
    settle();
    EXPECT_FALSE(bar()->isVisible()) << "nothing is told of a list that is gone";
}

TEST_F(Mending, AMediumThatIsGone_IsSaid) {
    openCrossed();
    ASSERT_TRUE(waitFor([this] { return controller->factsOfItem(2).soundness.has_value(); }));
    refuseOpen = true;
    mendAll();
    EXPECT_TRUE(bar()->label->text().contains(QStringLiteral("cannot be opened")))
        << bar()->label->text().toStdString();
}

TEST_F(Mending, ABarOfAnEarlierSearch_GoesWithTheNext) {
    openCrossed();
    mendAll();
    answers.press(QStringLiteral("Go Back Without Saving"));
    click(controller->backButton);
    EXPECT_FALSE(bar()->isVisible());
    scanToEnd();
    EXPECT_EQ(controller->factsOfItem(0).mend, nullptr);
    EXPECT_TRUE(button()->isVisible());
}

}  // namespace
}  // namespace vantor

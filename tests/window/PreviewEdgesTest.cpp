// Previews at the edges: strange sectors and names, what must not happen meanwhile, and what each mode opens.
#include <QFile>
#include <limits>

#include "tests/support/Gate.h"
#include "tests/window/PreviewWindow.h"
#include "tests/window/ScriptedMovie.h"

namespace vantor {
namespace {

TEST_F(Preview, SectorsBeyondASigned64BitNumber_AreAllTheLargestOne) {
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
    openResults({{"A.PDF", kMost - 5, kMost}});
    select(0);
    EXPECT_EQ(previewBytes("dprv.PDF"), QByteArray()) << "start equals end";
    EXPECT_EQ(card.reads, 0u);
}

TEST_F(Preview, AnItemWithoutAType_HasAFileWithoutOne) {
    openResults({{"NAMELESS", 24, 25}, {"B.PDF", 28, 29}});
    select(0);
    EXPECT_EQ(previewBytes("dprv").size(), 512);
    EXPECT_EQ(title(), QStringLiteral("NAMELESS"));
    select(1);
    EXPECT_EQ(previewBytes("dprv"), "absent") << "it is replaced like any other";
}

TEST_F(Preview, ASectorThatCanNeitherBeReadNorPassed_KeepsTheLengthToo) {
    openResults({{"A.PDF", 24, 28}});
    card.badForEver = {25, 26};
    card.seekAfterFailureFails = true;
    select(0);
    EXPECT_EQ(previewBytes("dprv.PDF").size(), 4 * 512);
}

TEST_F(Preview, AMediumWithoutAReadableSector_GivesZeros) {
    openResults({{"A.PDF", 24, 26}});
    card.badForEver = {24, 25};
    select(0);
    EXPECT_EQ(previewBytes("dprv.PDF"), QByteArray(2 * 512, '\0'));
}

TEST_F(Preview, TheLastPicture_IsGoneWhileTheNextIsCopied) {
    Gate gate;
    openResults({{"A.PDF", 24, 27}, {"B.PDF", 28, 29}});
    select(0);
    ASSERT_FALSE(controller->_QuickLook_View->pixmap().isNull());
    card.beforeRead = gate.atEveryRead();
    bool cleared = false;
    when([&] { return gate.someoneWaits(); },
         [&] {
             cleared = controller->_QuickLook_View->pixmap().isNull();
             gate.open();
         });
    select(1);
    EXPECT_TRUE(cleared);
    EXPECT_FALSE(controller->_QuickLook_View->pixmap().isNull());
}

TEST_F(Preview, AMovie_IsGoneWhileTheNextIsCopied) {
    Gate gate;
    MovieLog log;
    parts.movie = [&log](const QString&) { return std::make_unique<ScriptedMovie>(log); };
    openResults({{"A.MP4", 24, 27}, {"B.MP4", 28, 29}}, kVideoMode);
    select(0);
    controller->mMovieView->togglePlaying();
    card.beforeRead = gate.atEveryRead();
    int alive = 1;
    when([&] { return gate.someoneWaits(); },
         [&] {
             alive = log.alive;
             gate.open();
         });
    select(1);
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(log.stops, 1);
    EXPECT_EQ(log.alive, 1);
    EXPECT_EQ(controller->mMovieView->movie()->rate(), 0) << "a movie begins when it is asked to";
    close();
    EXPECT_EQ(log.alive, 0);
}

TEST_F(Preview, OnlyTheVideoMode_OpensMovies) {
    int asked = 0;
    parts.movie = [&asked](const QString&) {
        ++asked;
        return nullptr;
    };
    openResults({{"A.MP4", 40, 42}});
    select(0);
    EXPECT_EQ(asked, 0);
    EXPECT_FALSE(controller->mMovieView->isVisible());
    EXPECT_TRUE(controller->_QuickLook_View->isVisible());
}

TEST_F(Preview, TheVideoMode_HasOneRowOfControls) {
    int asked = 0;
    parts.sound = [&asked](const QString&) {
        ++asked;
        return nullptr;
    };
    openResults({{"A.MP3", 40, 42}}, kVideoMode);
    select(0);
    EXPECT_EQ(asked, 0) << "what sounds has opened as a movie, or does not";
    EXPECT_FALSE(controller->soundControls->isVisible());
}

TEST_F(Preview, AnEmptyFile_IsNoMovieButShowsItsIcon) {
    openResults({{"A.MP4", 24, 24}}, kVideoMode);
    select(0);
    EXPECT_FALSE(controller->mMovieView->isVisible());
    EXPECT_EQ(controller->_QuickLook_View->pixmap().size(), QSize(200, 200));
    EXPECT_EQ(title(), QStringLiteral("A.MP4"));
}

TEST_F(Preview, AChosenMovieFile_IsOpened_AndNoneWithoutAChoice) {
    MovieLog log;
    QString chosen;
    parts.movie = [&](const QString& file) {
        chosen = file;
        return std::make_unique<ScriptedMovie>(log);
    };
    open();
    const QString file = folder.filePath(QStringLiteral("holiday.mov"));
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    answers.then([&](QDialog* chooser) { chooseFolder(chooser, file); });
    EXPECT_TRUE(controller->getAMovieFile());
    EXPECT_EQ(chosen, file);
    answers.then([](QDialog* chooser) { chooser->reject(); });
    EXPECT_FALSE(controller->getAMovieFile());
}

}  // namespace
}  // namespace vantor

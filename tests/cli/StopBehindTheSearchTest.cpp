// A stop when the search has ended leaves undone what would still come, and says so by the exit code.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <array>

#include "catalogue/ResourcesFolder.h"
#include "cli/CliSession.h"
#include "cli/Telling.h"
#include "media/PlatformMedia.h"

namespace vantor {
namespace {

// A search of the sample card that saves, stopped by the user before what comes behind it.
struct StoppedLater {
    explicit StoppedLater(bool stopped) {
        CliOptions options;
        options.medium = QStringLiteral(VANTOR_SAMPLE_CARD);
        options.saveFolder = folder.path();
        options.complete = true;
        options.quiet = true;
        const auto source = makePlatformMediaSource();
        const CliMedium medium = findMedium(options.medium, *source, [] { return false; }, {});
        CliSession session(options, medium.sectors);
        session.setAskCard(true);
        session.setMediumOpener(medium.open);
        session.loadCatalogues(resourcesFolder() + "/");
        session.setStopRequest([stopped] { return stopped; });
        session.run();
        session.mend();
        saved = session.saveTally().saved;
        told = session.toldCount();
        mended = !session.mendingLines().isEmpty();
        code = tell(session, options, medium, {});
    }
    const QTemporaryDir folder;
    std::uint64_t saved = 0;
    std::size_t told = 0;
    bool mended = false;
    int code = 0;
};

}  // namespace

TEST(StopBehindTheSearch, LeavesWhatWouldStillCome) {
    // Resources and helpers are found from where the program lies.
    int count = 1;
    std::array name{const_cast<char*>(VANTOR_CLI)};
    const QCoreApplication application(count, name.data());
    const StoppedLater undisturbed(false), stopped(true);
    EXPECT_GT(undisturbed.told, 0U);
    EXPECT_TRUE(undisturbed.mended);
    EXPECT_EQ(undisturbed.code, kExitCompleted);
    EXPECT_GE(stopped.saved + undisturbed.told, undisturbed.saved) << "what was found is saved";
    EXPECT_GT(stopped.saved, 0U);
    EXPECT_EQ(stopped.told, 0U);
    EXPECT_FALSE(stopped.mended);
    EXPECT_EQ(stopped.code, kExitStopped);
}

}  // namespace vantor

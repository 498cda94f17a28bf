// An image file that does not stay what it was while it is searched.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <array>
#include <cstdio>
#include <functional>

#include "cli/CliSession.h"
#include "cli/Telling.h"
#include "media/PlatformMedia.h"
#include "tests/cli/SmallCard.h"
#include "tests/support/Files.h"

namespace vantor {
namespace {

struct ChangedBeforeTheSearch {
    explicit ChangedBeforeTheSearch(const std::function<void(const QString& image)>& change) {
        // Resources and helpers are found from where the program lies.
        int count = 1;
        std::array name{const_cast<char*>(VANTOR_CLI)};
        const QCoreApplication application(count, name.data());
        CliOptions options;
        options.medium = writeImage(folder);
        options.saveFolder = folder.filePath("out");
        options.quiet = true;
        QDir().mkpath(options.saveFolder);
        const auto source = makePlatformMediaSource();
        const CliMedium medium = findMedium(options.medium, *source, [] { return false; }, {});
        change(options.medium);
        CliSession session(options, medium.sectors);
        session.setMediumOpener(medium.open);
        session.loadCatalogues(writeCatalogues(folder, record("JPG", "FFD8FFE0")) + "/");
        session.setDestination(options.saveFolder);
        session.run();
        code = tell(session, options, medium, {});
        found = session.publishedCount();
    }
    const QTemporaryDir folder;
    std::size_t found = 0;
    int code = 0;
};

}  // namespace

TEST(ChangedImage, IsReadAsItWasWhereAnotherHasItsName) {
    const ChangedBeforeTheSearch run([](const QString& image) {
        QFile other(image + ".new");
        ASSERT_TRUE(other.open(QIODevice::WriteOnly));
        ASSERT_TRUE(other.resize(64 * 512));
        ASSERT_EQ(std::rename((image + ".new").toLocal8Bit().constData(), image.toLocal8Bit().constData()),
                  0);
    });
    EXPECT_EQ(run.found, 4U) << "two, in both passes";
    EXPECT_EQ(run.code, kExitCompleted);
}

TEST(ChangedImage, IsToldWhereSomethingWroteToIt) {
    const ChangedBeforeTheSearch run([](const QString& image) {
        const struct timespec later[2] = {{0, UTIME_OMIT}, {4102444800, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, image.toLocal8Bit().constData(), later, 0), 0);
    });
    EXPECT_EQ(run.found, 4U) << "two, in both passes";
    EXPECT_EQ(run.code, kExitReadError);
}

}  // namespace vantor

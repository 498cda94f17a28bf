// What the card's own directories add to a search that saves.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include "tests/cli/CommandRun.h"

namespace vantor {
namespace {

// Paths below the folder, in capitals.
QStringList pathsBelow(const QString& folder) {
    QStringList paths;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(QDir(folder).relativeFilePath(files.next()).toUpper());
    }
    return paths;
}

bool anyEndsWith(const QStringList& paths, const QString& end) {
    return std::any_of(paths.begin(), paths.end(), [&](const QString& path) { return path.endsWith(end); });
}

}  // namespace

TEST(CardNames, APhotoSearchBringsPhotosAndWhatNoSearchFinds_ButNoMovies) {
    const QTemporaryDir folder;
    const CommandRun run = runCommand({"--mode", "photo", "--save", folder.path(), VANTOR_SAMPLE_CARD});
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    const QStringList paths = pathsBelow(folder.path());
    EXPECT_TRUE(anyEndsWith(paths, QStringLiteral("DCIM/100VANTR/IMG_0001.JPG")));
    EXPECT_TRUE(run.out.contains("more files that only the card's directory tells of"));
    EXPECT_TRUE(anyEndsWith(paths, QStringLiteral(".TMP"))) << "a name that no catalogue knows";
    // Types of their own that share their format with pictures.
    for (const char* other : {".MP4", ".MOV", ".3GP", ".AVI", ".WAV", ".XML", ".GPX"}) {
        EXPECT_FALSE(anyEndsWith(paths, QLatin1String(other))) << other;
    }
}

}  // namespace vantor

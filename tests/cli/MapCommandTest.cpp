// Images with maps in the command: what was not read of the medium is damage, not zeros.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "media/CopyMapFile.h"
#include "tests/cli/CommandRun.h"
#include "tests/support/Files.h"

namespace vantor {
namespace {

// A map of the sample card in which the sectors were not read.
CopyMap mapWithout(std::uint64_t first, std::uint64_t end) {
    CopyMap map(static_cast<std::uint64_t>(QFile(VANTOR_SAMPLE_CARD).size()));
    map.set(0, map.bytes(), CopyState::Copied);
    map.set(first * 512, end * 512, CopyState::Bad);
    return map;
}

// The first sector of a photo on the sample card that is at least so many sectors long.
std::uint64_t firstSectorOfAPhoto(int sectors) {
    for (const QByteArray& line : contentsOf(QStringLiteral(VANTOR_SAMPLE_LIST)).split('\n')) {
        const QList<QByteArray> fields = line.split('\t');
        if (fields.size() >= 6 && fields[1] == "JPG" && fields[5].startsWith("in one piece") &&
            fields[3].toInt() >= sectors * 512) {
            return fields[2].toULongLong();
        }
    }
    ADD_FAILURE() << "no photo of " << sectors << " sectors";
    return 0;
}

// What the report of a destination says of the item that begins at the sector.
QByteArray reportedOf(const QString& folder, std::uint64_t sector) {
    for (const QByteArray& line : contentsOf(folder + "/Recovery report.csv").split('\n')) {
        if (line.contains("," + QByteArray::number(static_cast<qulonglong>(sector)) + ",")) {
            return line;
        }
    }
    return {};
}

}  // namespace

TEST(MapCommand, APhotoThatMissesSectorsIsDamagedByThatMany) {
    const std::uint64_t photo = firstSectorOfAPhoto(60);
    const QTemporaryDir folder;
    const QString map = folder.filePath("card.map"), out = folder.filePath("out"),
                  plain = folder.filePath("p");
    ASSERT_FALSE(storeCopyMap(map, mapWithout(photo + 10, photo + 50)));
    ASSERT_EQ(runCommand({"--save", plain, "--report", VANTOR_SAMPLE_CARD}).exitCode, 0);
    const CommandRun run = runCommand({"--map", map, "--save", out, "--report", VANTOR_SAMPLE_CARD});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.err.contains(" 40 were not read, says its map.")) << run.err.constData();
    EXPECT_TRUE(run.err.contains("40 sectors could not be read")) << run.err.constData();
    EXPECT_TRUE(reportedOf(plain, photo).contains(",complete,")) << reportedOf(plain, photo).constData();
    EXPECT_TRUE(reportedOf(out, photo).contains(",damaged,")) << reportedOf(out, photo).constData();
    EXPECT_TRUE(reportedOf(out, photo).contains(",40,")) << reportedOf(out, photo).constData();
}

TEST(MapCommand, AMapThatCannotBeReadIsTold) {
    const QTemporaryDir folder;
    QFile map(folder.filePath("bad.map"));
    ASSERT_TRUE(map.open(QIODevice::WriteOnly));
    map.write("0 ? 1\n0 512 +\n256 512 -\n");
    map.close();
    const CommandRun run = runCommand({"--map", map.fileName(), VANTOR_SAMPLE_CARD});
    EXPECT_EQ(run.exitCode, 5);
    EXPECT_TRUE(run.err.contains("line 3: it overlaps with the line before")) << run.err.constData();
    EXPECT_EQ(runCommand({"--map", "", VANTOR_SAMPLE_CARD}).exitCode, 2);
}

}  // namespace vantor

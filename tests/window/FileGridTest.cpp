// Every real file that is neither a photo nor a movie: what its preview shows, and how long it sounds. Photos
// and movies have tables of their own beside the decoders' tests.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QSet>

#include "decode/SoundReader.h"
#include "tests/decode/Fixtures.h"
#include "window/preview/FilePreviewer.h"

namespace vantor {
namespace {

constexpr QSize kLargest{200, 200};

class FileGrid : public testing::Test {
  protected:
    void SetUp() override {
        if (test::corpusFolder().isEmpty()) {
            GTEST_SKIP() << "no corpus";
        }
    }
};

TEST_F(FileGrid, EveryRealFile_IsInATable) {
    QSet<QByteArray> known;
    for (const auto& [table, folder] : {std::pair("decode/expected_formats.tsv", "photos/"),
                                        std::pair("decode/expected_movies.tsv", "videos/"),
                                        std::pair("window/expected_files.tsv", "files/")}) {
        for (const QList<QByteArray>& row : test::tableRows(table)) {
            known.insert(folder + row.at(0));
        }
    }
    for (const char* folder : {"photos", "videos", "files"}) {
        for (const QString& path : test::filesBelow(test::corpusFolder() + u'/' + QLatin1String(folder))) {
            const QByteArray name = path.mid(test::corpusFolder().size() + 1).toUtf8();
            EXPECT_TRUE(known.remove(name)) << name.toStdString();
        }
    }
    for (const QByteArray& gone : known) {
        ADD_FAILURE() << gone.toStdString() << " is no longer there";
    }
}

TEST_F(FileGrid, RealFiles_AreShownAndHeardAsTheTableSays) {
    if (!QFileInfo::exists(QStringLiteral(VANTOR_MOVIE_HELPER))) {
        GTEST_SKIP() << "built without the movie helper";
    }
    DecodePoolOptions patient;
    patient.helper = QStringLiteral(VANTOR_DECODE_HELPER);
    patient.helpers = 1;
    patient.pictureDeadline = std::chrono::minutes(1);
    const auto pool = std::make_shared<DecodePool>(patient);
    MovieReaderOptions movies;
    movies.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
    movies.openDeadline = std::chrono::minutes(1);
    // The desktop's programs differ from one computer to the next.
    const PicturePreviewer preview =
        makeFilePreviewer(pool, std::make_shared<const DesktopThumbnailers>(QStringList{}), movies);
    const auto roadOf = [&](const QString& path) {
        return !pool->picture(path, kLargest).image.isNull()          ? "picture"
               : !MovieReader::cover(path, kLargest, movies).isNull() ? "cover"
                                                                      : "page";
    };
    const QList<QList<QByteArray>> grid = test::tableRows("window/expected_files.tsv");
    EXPECT_GT(grid.size(), 120);
    for (const QList<QByteArray>& row : grid) {
        ASSERT_EQ(row.size(), 5) << row.at(0).toStdString();
        const QString path = test::corpusFolder() + QStringLiteral("/files/") + QString::fromUtf8(row.at(0));
        const QImage shown = preview(path, kLargest);
        const QByteArray road = shown.isNull() ? "icon" : roadOf(path);
        const auto sound = SoundReader::open(path, movies);
        const QList<QByteArray> found{row.at(0), road, QByteArray::number(shown.width()),
                                      QByteArray::number(shown.height()),
                                      sound ? QByteArray::number(sound->durationMs()) : QByteArray("-")};
        EXPECT_EQ(found.join('\t').toStdString(), row.join('\t').toStdString());
    }
    EXPECT_EQ(pool->counts().crashed, 0U);
    EXPECT_EQ(pool->counts().late, 0U);
}

}  // namespace
}  // namespace vantor

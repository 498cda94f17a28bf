// What is said of a saved movie of which only the frames' heads and lengths could be followed.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "decode/DecodePool.h"
#include "saving/ItemSaver.h"
#include "saving/SaveTally.h"
#include "saving/SavedContents.h"
#include "tests/repair/MemoryReader.h"
#include "tests/repair/RealMovie.h"

namespace vantor {
namespace {

class SavedMovie : public testing::Test {
  protected:
    void SetUp() override {
        movie = test::realMovie();
        if (movie.isEmpty()) {
            GTEST_SKIP() << "the corpus is not here";
        }
        if (!QFile::exists(DecodePool::helperPath(QStringLiteral("vantor-decode-movie")))) {
            GTEST_SKIP() << "built without the movie helper";
        }
        length = static_cast<std::uint64_t>(movie.size());
        movie.resize((movie.size() + 511) / 512 * 512);
    }

    SaveOutcome save(const char* type) const {
        test::MemoryReader reader(movie);
        return saver.saveRuns(QString::fromLatin1(type), QStringLiteral("1.%1").arg(QLatin1String(type)),
                              {{{0, reader.mediumSectors()}}, false}, reader);
    }

    SaveOutcome lookedInto(SaveOutcome outcome, const StopRequest& stop = {}) const {
        saver.contents()->look(outcome, stop);
        return outcome;
    }

    // The helper is looked for beside the program.
    int argumentCount = 1;
    char name[12] = "saving_test";
    char* arguments[2] = {name, nullptr};
    const std::unique_ptr<QCoreApplication> program =
        QCoreApplication::instance() == nullptr ? std::make_unique<QCoreApplication>(argumentCount, arguments)
                                                : nullptr;
    const QTemporaryDir folder;
    const ItemSaver saver{folder.path()};
    QByteArray movie;
    std::uint64_t length = 0;
};

TEST_F(SavedMovie, ThatDecodes_IsChecked_UnderEachOfItsTypes) {
    for (const char* const type : {"MOV", "MP4"}) {
        const SaveOutcome saved = save(type);
        ASSERT_TRUE(saved.saved) << saved.error.toStdString();
        EXPECT_EQ(saved.bytes, length);
        EXPECT_FALSE(saved.contentChecked()) << "not while others wait";
        const SaveOutcome outcome = lookedInto(saved);
        EXPECT_TRUE(outcome.contentChecked());
        EXPECT_TRUE(soundnessOf(outcome)->checked);
    }
}

TEST_F(SavedMovie, OnceThereIsToBeAnEnd_IsNotDecoded) {
    const SaveOutcome outcome = lookedInto(save("MOV"), [] { return true; });
    EXPECT_TRUE(outcome.saved);
    EXPECT_FALSE(outcome.contentChecked());
}

TEST_F(SavedMovie, WithAForeignCluster_EndsWhereItSays) {
    movie = test::withForeignCluster(movie);
    const SaveOutcome outcome = lookedInto(save("MOV"));
    ASSERT_TRUE(outcome.saved) << outcome.error.toStdString();
    EXPECT_EQ(outcome.verdict, Verdict::Complete);
    EXPECT_TRUE(outcome.checked);
    EXPECT_FALSE(outcome.contentChecked());
    EXPECT_FALSE(soundnessOf(outcome)->checked);
    SaveTally tally;
    tally.add(QStringLiteral("1.MOV"), outcome);
    EXPECT_EQ(tally.complete, 0U);
    EXPECT_EQ(tally.unchecked, 1U);
}

}  // namespace
}  // namespace vantor

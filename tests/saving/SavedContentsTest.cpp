// Movies are decoded when all is saved, as long as nobody has enough of it.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "results/MyImageObject.h"
#include "saving/SaveJob.h"
#include "saving/SavedContents.h"
#include "tests/repair/Movies.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {
namespace {

// Says when nobody holds the medium any more.
class HeldReader : public ScriptedReader {
  public:
    HeldReader(ScriptedMedium& medium, bool& held) : ScriptedReader(medium), m_held(held) { m_held = true; }
    ~HeldReader() override { m_held = false; }

  private:
    bool& m_held;
};

class SavedContentsTest : public testing::Test {
  protected:
    // Movies of their own, each in so many sectors.
    SavedContentsTest() {
        for (unsigned seed = 1; seed <= 3; ++seed) {
            const QByteArray movie = test::makeMovie(test::plainPictures(20), false, seed).bytes;
            EXPECT_LE(movie.size(), static_cast<qsizetype>(kSectorsEach * kSectorBytes));
            std::memcpy(medium.bytes[(seed - 1) * kSectorsEach].data(), movie.constData(),
                        static_cast<std::size_t>(movie.size()));
        }
    }
    static ChosenItem item(const QString& name, unsigned place) {
        std::shared_ptr<MyImageObject> made = MyImageObject::initWithImage_data({}, name, name);
        const SectorRun run{place * kSectorsEach, (place + 1) * kSectorsEach};
        made->setOrigin(name.section(u'.', -1), {{run}, false}, run);
        return {place, made};
    }
    SaveRequest request(std::vector<ChosenItem> items) {
        SaveRequest made;
        made.items = std::move(items);
        made.saver = saver;
        made.openMedium = [this] { return std::make_unique<HeldReader>(medium, mediumHeld); };
        made.destination = folder.path();
        made.report = ReportHead{};
        return made;
    }
    void decodeBy(ContentDecoder decodes) const { *saver->contents() = SavedContents(std::move(decodes)); }

    static constexpr std::uint64_t kSectorsEach = 20;

    QTemporaryDir folder;
    std::shared_ptr<const ItemSaver> saver = std::make_shared<const ItemSaver>(folder.path());
    ScriptedMedium medium{3 * kSectorsEach};
    bool mediumHeld = false;
};

TEST_F(SavedContentsTest, MoviesAreDecodedBehindTheLastSavedFile_WhenTheMediumIsLeft) {
    SaveJob job(request({item("a.MOV", 0), item("b.MOV", 1), item("c.MOV", 2)}));
    std::vector<SaveProgress> seen;
    decodeBy([&](int, const StopRequest& stop) {
        EXPECT_EQ(QDir(folder.filePath("MOV")).entryList(QDir::Files).size(), 3);
        EXPECT_FALSE(mediumHeld);
        EXPECT_FALSE(QFile::exists(folder.filePath("Recovery report.html"))) << "tells of it";
        EXPECT_FALSE(stop());
        seen.push_back(job.progress());
        return seen.size() != 2;
    });
    job.run();
    const SaveReport& report = job.report();
    ASSERT_EQ(seen.size(), 3U);
    EXPECT_EQ(seen[1].done, 3U);
    EXPECT_EQ(seen[1].share, job.total());
    EXPECT_EQ(seen[1].checked, 1U);
    EXPECT_EQ(seen[1].toCheck, 3U);
    EXPECT_EQ(seen[1].current, QStringLiteral("b.MOV"));
    EXPECT_EQ(report.tally.complete, 2U);
    EXPECT_EQ(report.tally.unchecked, 1U);
    EXPECT_TRUE(report.items[0].outcome.contentChecked());
    EXPECT_FALSE(report.items[1].outcome.contentChecked());
    QFile page(report.written.html);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().contains("content not checked"));
}

TEST_F(SavedContentsTest, WhoHasEnough_EndsTheCheckAlone) {
    SaveJob job(request({item("a.MOV", 0), item("b.MOV", 1)}));
    int decoded = 0;
    decodeBy([&](int, const StopRequest& stop) {
        ++decoded;
        job.cancel();
        EXPECT_TRUE(stop());
        return false;
    });
    job.run();
    EXPECT_EQ(decoded, 1);
    EXPECT_FALSE(job.isCancelled()) << "all is saved";
    EXPECT_EQ(job.report().tally.saved, 2U);
    EXPECT_EQ(job.report().tally.unchecked, 2U);
    EXPECT_FALSE(job.report().written.html.isEmpty());
}

TEST_F(SavedContentsTest, OneIsSkipped_TheNextIsDecoded) {
    SaveJob job(request({item("a.MOV", 0), item("b.MOV", 1)}));
    int decoded = 0;
    decodeBy([&](int, const StopRequest& stop) {
        if (++decoded == 1) {
            job.skip(job.progress().turn);
        }
        EXPECT_EQ(stop(), decoded == 1);
        return decoded == 2;
    });
    job.run();
    EXPECT_EQ(decoded, 2);
    EXPECT_EQ(job.report().tally.complete, 1U);
    EXPECT_EQ(job.report().tally.unchecked, 1U);
    EXPECT_EQ(job.report().tally.failed, 0U);
}

TEST_F(SavedContentsTest, WhereSavingWasCancelled_NothingIsDecoded) {
    SaveJob job(request({item("a.MOV", 0), item("b.MOV", 1)}));
    decodeBy([](int, const StopRequest&) {
        ADD_FAILURE();
        return true;
    });
    medium.beforeRead = [&](std::uint64_t) {
        if (job.progress().done == 1) {
            job.cancel();
        }
    };
    job.run();
    EXPECT_TRUE(job.isCancelled());
    EXPECT_EQ(job.report().tally.unchecked, 1U);
}

TEST_F(SavedContentsTest, TheSameBytes_AreDecodedOnce_ButForThoseWhoseLookWasEnded) {
    int decoded = 0;
    SaveJob* toEnd = nullptr;
    decodeBy([&](int, const StopRequest&) {
        ++decoded;
        if (toEnd != nullptr) {
            toEnd->cancel();
        }
        return toEnd == nullptr;
    });
    SaveJob first(request({item("a.MOV", 0), item("b.MP4", 0)}));
    first.run();
    EXPECT_EQ(decoded, 1);
    EXPECT_TRUE(first.report().items[1].outcome.duplicate);
    EXPECT_TRUE(first.report().items[1].outcome.contentChecked());
    EXPECT_EQ(first.report().tally.complete, 1U);

    SaveJob ended(request({item("c.MOV", 1)}));
    toEnd = &ended;
    ended.run();
    EXPECT_EQ(ended.report().tally.unchecked, 1U);
    toEnd = nullptr;
    SaveJob again(request({item("c.MOV", 1), item("a.MOV", 0)}));
    again.run();
    EXPECT_EQ(decoded, 3);
    EXPECT_TRUE(again.report().items[0].outcome.contentChecked());
    EXPECT_TRUE(again.report().items[1].outcome.contentChecked());
}

}  // namespace
}  // namespace vantor

// Which movies of a list are repaired, and by what.
#include <gtest/gtest.h>

#include <map>

#include "repair/ItemMending.h"
#include "tests/repair/Avis.h"
#include "tests/repair/Movies.h"
#include "tests/repair/ScatteredCard.h"

namespace vantor {
namespace {

using test::makeAvi;
using test::makeMovie;
using test::noiseChunks;
using test::plainPictures;

class ItemMendingTest : public testing::Test {
  protected:
    const MendableItem& put(const char* type, const QByteArray& file, bool complete = false) {
        MendableItem item;
        item.place = m_items.size();
        item.type = QLatin1String(type);
        item.name = QStringLiteral("%1%2").arg(item.type).arg(item.place);
        const std::uint64_t first = m_card.put(file);
        item.carved.runs = {{first, first + static_cast<std::uint64_t>(test::clustersOf(file)) * 8}};
        item.complete = complete;
        m_items.push_back(item);
        return m_items.back();
    }
    ItemMending::RepairSum repair(const QByteArray& reference = {}) {
        const QByteArray bytes = m_card.bytes();
        test::MemoryReader medium(bytes);
        const std::atomic<int> goOn{0};
        CompletionProgress progress;
        MovieReaderOptions noHelper;
        noHelper.helper = QStringLiteral("/nowhere");
        ItemMending mending(
            medium, goOn, progress,
            [this](const MendableItem& item, Mend mend) {
                return m_mends.emplace(item.place, std::move(mend)).second;
            },
            noHelper);
        if (!reference.isEmpty()) {
            SpanSource source(test::asSpan(reference));
            EXPECT_TRUE(mending.useReference(source, QStringLiteral("named")));
        }
        return mending.repairMovies(
            m_items, [this](const MendableItem& item, ItemMending::Why why) { m_refused[item.place] = why; });
    }
    static QByteArray cutAvi(int pictures) {
        const QByteArray movie = makeAvi(noiseChunks(1, pictures));
        return movie.left(movie.indexOf("idx1"));
    }

    std::map<std::size_t, Mend> m_mends;
    std::map<std::size_t, ItemMending::Why> m_refused;

  private:
    test::ScatteredCard m_card;
    std::vector<MendableItem> m_items;
};

TEST_F(ItemMendingTest, MoviesThatTellAllThemselves_NeedNoOther) {
    const test::MadeMovie made = makeMovie(plainPictures(40), true, 1);
    const auto shift = static_cast<std::uint64_t>(made.bytes.size() - made.indexAt);
    put("AVI", cutAvi(10));
    put("MP4", test::withIndexInFront(made).left(static_cast<qsizetype>(made.pictures[30].at + shift) + 20));
    const auto sum = repair();
    EXPECT_EQ(sum.broken, 2U);
    EXPECT_EQ(sum.repaired, 2U);
    ASSERT_TRUE(m_mends.contains(0) && m_mends.contains(1));
    EXPECT_EQ(m_mends[0].kind, MendKind::Repaired);
    EXPECT_EQ(m_mends[0].pictures, 10U);
    EXPECT_EQ(m_mends[0].like, QStringLiteral("AVI0"));
    EXPECT_EQ(m_mends[1].pictures, 30U);
    EXPECT_EQ(m_mends[1].like, QStringLiteral("MP41"));
    EXPECT_TRUE(m_refused.empty());
}

TEST_F(ItemMendingTest, WholeMovies_AreLeft) {
    put("AVI", makeAvi(noiseChunks(1, 10)), true);
    // Its index does not follow, but it was found whole.
    put("AVI", cutAvi(10), true);
    put("AVI", makeAvi(noiseChunks(1, 10)));
    const test::MadeMovie made = makeMovie(plainPictures(20), true, 1);
    put("MP4", made.bytes, true);
    put("MOV", test::withIndexInFront(made), true);
    const auto sum = repair();
    EXPECT_EQ(sum.broken, 0U);
    EXPECT_TRUE(m_mends.empty() && m_refused.empty());
}

TEST_F(ItemMendingTest, MovieWithoutIndex_NeedsOneOfItsCamera) {
    const test::MadeMovie made = makeMovie(plainPictures(20), true, 1);
    put("MP4", made.withoutIndex());
    EXPECT_EQ(repair().repaired, 0U);
    ASSERT_TRUE(m_refused.contains(0));
    EXPECT_EQ(m_refused[0], ItemMending::Why::NoReference);
    m_refused.clear();
    EXPECT_EQ(repair(makeMovie(plainPictures(30), true, 2).bytes).repaired, 1U);
    EXPECT_EQ(m_mends[0].pictures, 20U);
    EXPECT_EQ(m_mends[0].like, QStringLiteral("named"));
    EXPECT_TRUE(m_refused.empty());
}

// An earlier movie's index in front of what was recorded later tells of samples that are not there.
TEST_F(ItemMendingTest, IndexOfAnotherMovieInFront_IsNoGuide) {
    const test::MadeMovie made = makeMovie(plainPictures(40), true, 1);
    const test::MadeMovie earlier = makeMovie(test::picturesOfManySizes(60, 3), true, 3);
    const QByteArray index = test::withIndexInFront(earlier);
    const qsizetype data = index.indexOf("mdat") + 4;
    put("MP4", index.left(data) + made.bytes.mid(static_cast<qsizetype>(made.pictures[0].at), 100'000));
    EXPECT_EQ(repair().repaired, 0U);
    EXPECT_EQ(m_refused[0], ItemMending::Why::NoReference);
    EXPECT_EQ(repair(makeMovie(plainPictures(30), true, 2).bytes).repaired, 1U);
    EXPECT_EQ(m_mends[0].like, QStringLiteral("named"));
    EXPECT_GT(m_mends[0].pictures, 8U);
}

TEST_F(ItemMendingTest, MovieWithoutPictures_IsSaid) {
    put("AVI", cutAvi(10).left(cutAvi(10).indexOf("00dc")));
    EXPECT_EQ(repair().repaired, 0U);
    ASSERT_TRUE(m_refused.contains(0));
    EXPECT_EQ(m_refused[0], ItemMending::Why::NoPicture);
}

}  // namespace
}  // namespace vantor

// The broken files of a list mended on a thread, while somebody watches.
#include <gtest/gtest.h>

#include <condition_variable>

#include "repair/MendingRun.h"
#include "results/MyImageObject.h"
#include "tests/repair/Photos.h"
#include "tests/repair/ScatteredCard.h"
#include "tests/repair/WatchedCard.h"

namespace vantor {
namespace {

using test::ScatteredCard;

class MendingRunTest : public ::testing::Test {
  protected:
    // Two photos crossed, listed under two types each, and a whole one.
    MendingRunTest() {
        const auto [first, firstOther] = m_card.putCrossed(m_one, m_other);
        const std::uint64_t third = m_card.put(m_third);
        list("JPG", first, test::clustersOf(m_one) / 2);
        list("JPEG", first, test::clustersOf(m_one) / 2);
        list("JPG", firstOther, test::clustersOf(m_other) / 2);
        list("JPG", third, test::clustersOf(m_third));
        m_bytes = m_card.bytes();
    }
    void list(const char* type, std::uint64_t first, qsizetype clusters) {
        const std::uint64_t end = first + static_cast<std::uint64_t>(clusters) * test::kClusterSectors;
        const QString name = QStringLiteral("x%1.%2").arg(m_items.size()).arg(QLatin1String(type));
        std::shared_ptr<MyImageObject> made = MyImageObject::initWithImage_data({}, name, name);
        made->setOrigin(QLatin1String(type), {{{first, end}}, false}, {first, end});
        m_items.push_back(std::move(made));
    }
    MendingOrder order() {
        MendingOrder order;
        order.places = {2, 0, 1, 3};
        order.openMedium = [this] { return std::make_unique<test::WatchedCard>(m_bytes, m_script); };
        order.itemAt = [this](std::size_t place) {
            return place < m_items.size() ? m_items[place] : nullptr;
        };
        order.known = [](std::size_t) { return std::nullopt; };
        order.examined = [this](std::size_t place, const Soundness& soundness) {
            m_told.emplace_back(place, soundness);
        };
        order.mended = m_mended;
        return order;
    }
    // Returns when the run is over.
    MendingResult runToEnd(MendingRun& run, MendingOrder order) {
        std::mutex mutex;
        std::condition_variable changed;
        bool over = false;
        run.start(std::move(order), [&] {
            const std::lock_guard lock(mutex);
            over = true;
            changed.notify_all();
        });
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return over; });
        return run.result();
    }

    const QByteArray m_one = test::makePhoto(1), m_other = test::makePhoto(2), m_third = test::makePhoto(3);
    ScatteredCard m_card;
    QByteArray m_bytes;
    std::vector<std::shared_ptr<const MyImageObject>> m_items;
    std::shared_ptr<test::WatchedCard::Script> m_script = std::make_shared<test::WatchedCard::Script>();
    const std::shared_ptr<MendedItems> m_mended = std::make_shared<MendedItems>();
    std::vector<std::pair<std::size_t, Soundness>> m_told;
};

TEST_F(MendingRunTest, CompletesWhatIsBroken_AndTellsOfAllThatShareItsPlace) {
    MendingRun run;
    const MendingResult result = runToEnd(run, order());
    EXPECT_FALSE(run.isRunning());
    EXPECT_EQ(result.end, MendingEnd::Finished);
    EXPECT_EQ(result.broken, 2U);
    EXPECT_EQ(m_mended->counts().completed, 2U);
    ASSERT_GE(m_told.size(), 4U);
    EXPECT_EQ(m_told.front().first, 2U) << "those in front have their turn first";
    std::map<std::size_t, Soundness> last;
    for (const auto& [place, soundness] : m_told) {
        last[place] = soundness;
    }
    ASSERT_EQ(last.size(), 4U);
    for (const auto& [place, soundness] : last) {
        EXPECT_EQ(soundness.verdict, Verdict::Complete) << place;
        EXPECT_EQ(soundness.pieces, place == 3 ? 1U : 2U) << place;
    }
    const auto mend = m_mended->provedOf(*m_items[1]);
    ASSERT_NE(mend, nullptr);
    EXPECT_EQ(m_card.contentOf(mend->assembly), m_one);
}

TEST_F(MendingRunTest, TwiceOver_FindsTheSame) {
    MendingRun run;
    runToEnd(run, order());
    MendingOrder again = order();
    again.known = [this](std::size_t place) -> std::optional<Soundness> {
        const auto known = std::find_if(m_told.rbegin(), m_told.rend(),
                                        [&](const auto& told) { return told.first == place; });
        return known != m_told.rend() ? std::optional(known->second) : std::nullopt;
    };
    const MendingResult result = runToEnd(run, std::move(again));
    EXPECT_EQ(result.broken, 0U);
    EXPECT_EQ(m_mended->counts().completed, 2U);
}

TEST_F(MendingRunTest, WhatItIsNotToLookFor_ItLeaves) {
    MendingRun run;
    MendingOrder noPhotos = order();
    noPhotos.photos = false;
    EXPECT_EQ(runToEnd(run, std::move(noPhotos)).broken, 0U);
    EXPECT_EQ(m_mended->counts().all(), 0U);
}

TEST_F(MendingRunTest, StoppedWhileItReads_NothingIsToldAnyMore) {
    MendingRun run;
    m_script->atRead = [&](std::uint64_t read) {
        if (read == 40) {
            run.stop();
            m_told.clear();
        }
    };
    EXPECT_EQ(runToEnd(run, order()).end, MendingEnd::Stopped);
    EXPECT_TRUE(m_told.empty());
    EXPECT_EQ(m_mended->counts().all(), 0U);
    EXPECT_EQ(m_script->reads, 41U) << "the medium is asked for nothing more";
}

TEST_F(MendingRunTest, AMediumThatGoes_EndsItAndIsSaid) {
    MendingRun run;
    m_script->goneAt = 60;
    EXPECT_EQ(runToEnd(run, order()).end, MendingEnd::MediumGone);
    EXPECT_EQ(m_mended->counts().all(), 0U);
    EXPECT_LT(m_script->reads, 100U);
}

TEST_F(MendingRunTest, AMediumThatCannotBeOpened_IsSaid) {
    MendingRun run;
    MendingOrder closed = order();
    closed.openMedium = [] { return nullptr; };
    EXPECT_EQ(runToEnd(run, std::move(closed)).end, MendingEnd::CannotOpen);
}

}  // namespace
}  // namespace vantor

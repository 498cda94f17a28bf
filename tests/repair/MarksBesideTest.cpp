// Movies in a list are known when their frames were followed, and decoded beside what else is looked at.
#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "results/MyImageObject.h"
#include "results/SoundnessBoard.h"
#include "tests/repair/Movies.h"
#include "tests/support/Gate.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {
namespace {

using namespace std::chrono_literals;

constexpr qint64 kPatienceMs = 60'000;  // beyond which a test fails rather than waits
constexpr std::uint64_t kSectorsEach = 20;

class MarksBeside : public testing::Test {
  protected:
    MarksBeside() {
        for (unsigned place = 0; place < 3; ++place) {
            const QByteArray movie = test::makeMovie(test::plainPictures(20), false, place).bytes;
            std::memcpy(medium.bytes[place * kSectorsEach].data(), movie.constData(),
                        static_cast<std::size_t>(movie.size()));
            const QString name = QStringLiteral("%1.MOV").arg(place);
            std::shared_ptr<MyImageObject> item = MyImageObject::initWithImage_data({}, name, name);
            const SectorRun run{place * kSectorsEach, (place + 1) * kSectorsEach};
            item->setOrigin(QStringLiteral("MOV"), {{run}, false}, run);
            items.push_back(item);
        }
    }
    SoundnessBoard::Open opener() {
        return [this] { return std::make_unique<ScriptedReader>(medium); };
    }
    static bool until(const std::function<bool()>& condition) {
        QElapsedTimer clock;
        clock.start();
        while (!condition() && clock.elapsed() < kPatienceMs) {
            std::this_thread::sleep_for(1ms);
        }
        return condition();
    }
    bool isChecked(std::size_t index) const {
        const auto known = board.find(index);
        return known && known->checked;
    }

    std::vector<std::shared_ptr<MyImageObject>> items;
    ScriptedMedium medium{3 * kSectorsEach};
    Gate gate;
    std::atomic<int> decoded{0};
    std::atomic<bool> whole{true};
    SoundnessBoard board{[this](std::size_t index) { return items.at(index); },
                         {},
                         [this, pass = gate.passage()](int, const StopRequest& stop) {
                             ++decoded;
                             pass();
                             return whole && !stop();
                         }};
};

TEST_F(MarksBeside, WhileAMovieIsDecoded_OthersAreLookedAt) {
    board.begin(opener());
    board.want({0});
    ASSERT_TRUE(until([&] { return gate.someoneWaits(); }));
    const auto first = board.find(0);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->verdict, Verdict::Complete);
    EXPECT_TRUE(first->followed);
    EXPECT_FALSE(first->checked);
    board.want({0, 1, 2});
    ASSERT_TRUE(until([&] { return board.known() == 3; }));
    EXPECT_TRUE(gate.someoneWaits());
    EXPECT_FALSE(isChecked(0));
    board.takeNews();
    const std::uint64_t changes = board.changes();
    gate.open();
    ASSERT_TRUE(until([&] { return isChecked(0) && isChecked(1) && isChecked(2); }));
    EXPECT_EQ(decoded, 3);
    EXPECT_EQ(board.changes(), changes + 3);
    EXPECT_EQ(board.takeNews().size(), 3U);
}

TEST_F(MarksBeside, FromAMediumThatRefusedASector_NothingIsReadToBeDecoded) {
    std::atomic<bool> failing{true};
    std::atomic<int> asked{0};
    gate.open();
    board.begin(opener(), [&] {
        ++asked;
        return failing.load();
    });
    board.want({0});
    ASSERT_TRUE(until([&] { return asked != 0; }));
    const std::uint64_t reads = medium.reads;
    const int before = asked;
    board.want({0, 1});
    ASSERT_TRUE(until([&] { return board.known() == 2 && asked > before; }));
    EXPECT_EQ(decoded, 0);
    EXPECT_LE(medium.reads, 2 * reads) << "the second was followed and no more";
    failing = false;
    board.want({0, 1});
    EXPECT_TRUE(until([&] { return isChecked(0) && isChecked(1); }));
}

TEST_F(MarksBeside, WhatWasDecoded_IsNotDecodedAgain) {
    gate.open();
    board.begin(opener());
    whole = false;
    board.want({0});
    ASSERT_TRUE(until([&] { return decoded == 1; }));
    board.want({0, 1});
    ASSERT_TRUE(until([&] { return decoded == 2; }));
    Soundness saved = *board.find(1);
    saved.checked = true;
    board.note(1, saved);
    board.beginAgain();
    ASSERT_TRUE(until([&] { return board.known() == 2; }));
    whole = true;
    board.want({0, 1, 2});
    ASSERT_TRUE(until([&] { return isChecked(2); }));
    EXPECT_EQ(decoded, 3);
    EXPECT_FALSE(isChecked(0));
    EXPECT_TRUE(isChecked(1)) << "as whoever saved it found";
    board.begin(opener());
    board.want({0});
    EXPECT_TRUE(until([&] { return isChecked(0); })) << "another list";
}

TEST_F(MarksBeside, WhatAnotherFollowed_IsDecodedOnceItIsWished) {
    gate.open();
    board.begin(opener());
    board.want({0});
    ASSERT_TRUE(until([&] { return isChecked(0); }));
    Soundness followed = *board.find(0);
    followed.checked = false;
    board.note(1, followed);
    board.note(2, followed);
    board.wantAll(2);
    ASSERT_TRUE(until([&] { return isChecked(1); }));
    EXPECT_EQ(decoded, 2);
    EXPECT_FALSE(isChecked(2)) << "neither in view nor of those that are all";
}

TEST_F(MarksBeside, WhileTheMediumIsBusy_NothingIsReadToBeDecoded) {
    gate.open();
    board.begin(opener());
    board.setMediumBusy(true);
    board.want({0});
    ASSERT_TRUE(until([&] { return board.known() == 1; }));
    board.want({0, 1});
    ASSERT_TRUE(until([&] { return board.known() == 2; }));
    EXPECT_EQ(decoded, 0);
    board.setMediumBusy(false);
    EXPECT_TRUE(until([&] { return isChecked(0) && isChecked(1); }));
}

TEST_F(MarksBeside, AnotherList_EndsTheDecoding) {
    std::atomic<bool> ended{false};
    {
        SoundnessBoard other([this](std::size_t index) { return items.at(index); }, {},
                             [&](int, const StopRequest& stop) {
                                 ++decoded;
                                 ended = until(stop);
                                 return true;
                             });
        other.begin(opener());
        other.want({0});
        ASSERT_TRUE(until([&] { return decoded == 1; }));
        other.begin(opener());
        EXPECT_TRUE(until([&] { return ended.load(); }));
        EXPECT_FALSE(other.find(0)) << "nothing of it is told of the other";
        other.want({1});
        ASSERT_TRUE(until([&] { return decoded == 2; }));
        ended = false;
    }
    EXPECT_TRUE(ended) << "as does the end";
}

}  // namespace
}  // namespace vantor

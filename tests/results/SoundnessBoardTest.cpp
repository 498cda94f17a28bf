// Soundness beside other work: what is found out, in which order, and when it stops.
#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "results/MyImageObject.h"
#include "results/SoundnessBoard.h"
#include "tests/support/CountedReader.h"
#include "tests/support/Gate.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

using namespace std::chrono_literals;

constexpr qint64 kPatienceMs = 60'000;   // beyond which a test fails rather than waits
constexpr qsizetype kWavBytes = 20'000;  // 40 sectors

class SoundnessBoardTest : public ::testing::Test {
  protected:
    SoundnessBoardTest() {
        addItem("WAV", {10, 50}, false);  // whole
        addItem("WAV", {10, 30}, false);  // found as too short
        addItem("PNG", {60, 70}, false);  // begins like nothing
        addItem("WAV", {10, 50}, true);   // a read failed while it was searched for
    }
    void addItem(const char* type, SectorRun run, bool readFailed) {
        const QString name = QStringLiteral("F%1.%2").arg(items.size()).arg(QLatin1String(type));
        std::shared_ptr<MyImageObject> item = MyImageObject::initWithImage_data({}, name, name);
        item->setOrigin(QLatin1String(type), {{run}, readFailed}, run);
        items.push_back(item);
    }
    SoundnessBoard::Open opener() {
        return [this]() -> std::unique_ptr<SectorReader> {
            ++opened;
            return refuseOpen ? nullptr : std::make_unique<ScriptedReader>(medium);
        };
    }
    static bool until(const std::function<bool()>& condition) {
        QElapsedTimer clock;
        clock.start();
        while (!condition() && clock.elapsed() < kPatienceMs) {
            std::this_thread::sleep_for(1ms);
        }
        return condition();
    }

    std::vector<std::shared_ptr<MyImageObject>> items;
    ScriptedMedium medium = mediumWith(wavFile(kWavBytes), 10, 100);
    std::atomic<int> opened{0};
    std::atomic<int> readers{0};  // open ones of those that are counted
    std::atomic<bool> refuseOpen{false};
    std::mutex lock;
    std::vector<std::size_t> asked;
    SoundnessBoard board{[this](std::size_t index) -> std::shared_ptr<const MyImageObject> {
        const std::lock_guard guard(lock);
        asked.push_back(index);
        return index < items.size() ? items[index] : nullptr;
    }};
};

TEST_F(SoundnessBoardTest, FindsOutWhatIsInView_AndNothingElse) {
    board.begin(opener());
    board.want({1, 0});
    ASSERT_TRUE(until([this] { return board.known() == 2; }));
    EXPECT_EQ(board.find(0)->verdict, Verdict::Complete);
    EXPECT_EQ(board.find(0)->bytes, static_cast<std::uint64_t>(kWavBytes));
    EXPECT_EQ(board.find(1)->verdict, Verdict::Complete) << "followed beyond what was found";
    EXPECT_FALSE(board.find(2));
    EXPECT_EQ(asked, (std::vector<std::size_t>{1, 0}));
    EXPECT_EQ(opened, 1);
}

TEST_F(SoundnessBoardTest, All_FollowWhatIsInView) {
    board.begin(opener());
    board.wantAll(4);
    ASSERT_TRUE(until([this] { return board.known() == 4; }));
    EXPECT_TRUE(board.find(2)->notOfItsType);
    EXPECT_EQ(board.find(2)->verdict, Verdict::Unknown);
    EXPECT_TRUE(board.find(3)->unreadable);
    EXPECT_EQ(board.find(3)->verdict, Verdict::Damaged) << "not all of it could be read";
}

TEST_F(SoundnessBoardTest, UnreadableSectorsAreSaid) {
    medium.badForEver = {10};
    board.begin(opener());
    board.want({0});
    ASSERT_TRUE(until([this] { return board.known() == 1; }));
    EXPECT_TRUE(board.find(0)->unreadable);
    EXPECT_FALSE(board.find(0)->notOfItsType) << "what cannot be read can be anything";
}

TEST_F(SoundnessBoardTest, WhileTheMediumIsBusy_OnlySafeItemsInViewAreExamined) {
    board.begin(opener());
    board.setMediumBusy(true);
    board.wantAll(4);
    board.want({3, 0});
    ASSERT_TRUE(until([this] { return board.known() == 1; }));
    EXPECT_TRUE(board.find(0));
    EXPECT_FALSE(board.find(3)) << "a bad place is left to the search";
    board.setMediumBusy(false);
    EXPECT_TRUE(until([this] { return board.known() == 4; }));
}

TEST_F(SoundnessBoardTest, AMediumThatCannotBeOpened_IsAskedOnce) {
    refuseOpen = true;
    board.begin(opener());
    board.want({0});
    ASSERT_TRUE(until([this] { return board.mediumIsGone(); }));
    board.want({0, 1, 2});
    board.wantAll(4);
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(board.known(), 0U);
}

TEST_F(SoundnessBoardTest, AMediumThatGoes_StopsIt_AndNothingIsSaidOfItsItems) {
    board.begin(opener());
    board.want({0});
    ASSERT_TRUE(until([this] { return board.known() == 1; }));
    for (std::uint64_t sector = 0; sector < 100; ++sector) {
        medium.badForEver.insert(sector);
    }
    board.want({2, 3});
    ASSERT_TRUE(until([this] { return board.mediumIsGone(); }));
    EXPECT_EQ(board.known(), 1U);
    const std::uint64_t reads = medium.reads;
    board.want({2, 3, 1});
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(medium.reads, reads) << "nothing more is asked of it";
    medium.badForEver.clear();
    board.begin(opener());
    board.want({2});
    EXPECT_TRUE(until([this] { return board.known() == 1; })) << "a new list begins anew";
}

TEST_F(SoundnessBoardTest, AMediumThatGaveNothingYet_IsGoneAtTheThirdSilentItem) {
    for (std::uint64_t sector = 0; sector < 100; ++sector) {
        medium.badForEver.insert(sector);
    }
    board.begin(opener());
    board.want({0, 1});
    ASSERT_TRUE(until([this] { return board.known() == 2; })) << "these may be two bad places";
    EXPECT_FALSE(board.mediumIsGone());
    board.want({2});
    EXPECT_TRUE(until([this] { return board.mediumIsGone(); }));
    EXPECT_EQ(board.known(), 2U);
}

TEST_F(SoundnessBoardTest, TheSameListAgain_IsExaminedFromItsBeginning) {
    board.begin(opener());
    board.wantAll(4);
    ASSERT_TRUE(until([this] { return board.known() == 4; }));
    board.beginAgain();
    EXPECT_TRUE(until([this] { return board.known() == 4; }));
    const std::lock_guard guard(lock);
    EXPECT_EQ(asked, (std::vector<std::size_t>{0, 1, 2, 3, 0, 1, 2, 3}));
}

TEST_F(SoundnessBoardTest, AListThatBeginsDuringALook_GetsNothingOfIt) {
    std::atomic<bool> changed{false};
    items.push_back(MyImageObject::initWithImage_data({}, "F", "F"));  // of no sectors
    SoundnessBoard other([&](std::size_t index) -> std::shared_ptr<const MyImageObject> {
        if (!changed.exchange(true)) {
            other.begin(opener());
            other.want({0});
        }
        return items[index];
    });
    other.begin(opener());
    other.want({4});
    ASSERT_TRUE(until([&] { return other.find(0).has_value(); }));
    EXPECT_FALSE(other.find(4));
}

TEST_F(SoundnessBoardTest, AMediumThatIsPutBackIn_IsExaminedFurther) {
    refuseOpen = true;
    board.begin(opener());
    board.wantAll(2);
    ASSERT_TRUE(until([this] { return board.mediumIsGone(); }));
    board.tryAgain();
    ASSERT_TRUE(until([this] { return opened == 2 && board.mediumIsGone(); })) << "it was not";
    refuseOpen = false;
    board.tryAgain();
    EXPECT_TRUE(until([this] { return board.known() == 2; }));
}

TEST_F(SoundnessBoardTest, WhatOthersFoundOut_IsNotExamined) {
    board.note(0, Soundness{Verdict::CutOff, true, false, 7, 0, 0, {}});
    board.begin(opener());
    EXPECT_FALSE(board.find(0)) << "a new list";
    board.note(0, Soundness{Verdict::Complete, false, false, 9, 0, 0, {}});
    board.note(0, Soundness{Verdict::CutOff, true, false, 7, 0, 0, {}});
    EXPECT_EQ(board.known(), 1U) << "one item, told twice";
    const std::uint64_t changes = board.changes();
    board.want({0, 1});
    ASSERT_TRUE(until([this] { return board.known() == 2; }));
    EXPECT_EQ(board.find(0)->bytes, 7U);
    EXPECT_GT(board.changes(), changes);
    EXPECT_EQ(asked, std::vector<std::size_t>{1});
}

TEST_F(SoundnessBoardTest, TheCameraStays_WhenWhoeverSavesDoesNotTellIt) {
    Soundness looked{Verdict::Complete, false, false, 9, 0, 0, {}};
    looked.camera = QStringLiteral("Maker One");
    board.note(0, looked);
    board.note(0, Soundness{Verdict::Complete, false, false, 10, 0, 0, {}});
    EXPECT_EQ(board.find(0)->camera, "Maker One");
    EXPECT_EQ(board.find(0)->bytes, 10U);
    looked.camera = QStringLiteral("Maker Two");
    board.note(0, looked);
    EXPECT_EQ(board.find(0)->camera, "Maker Two");
}

TEST_F(SoundnessBoardTest, TheEnd_DoesNotWaitForAnItem) {
    std::atomic<bool> reading{false}, mayGoOn{false};
    medium.beforeRead = [&](std::uint64_t) {
        reading = true;
        mayGoOn.wait(false);
    };
    board.begin(opener());
    board.want({0});
    ASSERT_TRUE(until([&] { return reading.load(); }));
    board.requestEnd();
    mayGoOn = true;
    mayGoOn.notify_all();
    EXPECT_TRUE(until([this] { return board.hasEnded(); }));
    EXPECT_EQ(board.known(), 0U);
    EXPECT_EQ(medium.reads, 1U) << "the read under way was the last";
}

TEST(Soundness, IsSaidInWords) {
    Soundness photo{Verdict::Complete, false, false, 4'200'000, 4000, 3000, CivilTime{2026, 5, 17}, true};
    EXPECT_EQ(describe(photo), QStringLiteral("complete, 4.2 MB, 4000 × 3000 pixels, taken 2026-05-17"));
    photo.checked = false;
    EXPECT_EQ(describe(photo),
              QStringLiteral("ends where it says, content not checked, 4.2 MB, 4000 × 3000 pixels, "
                             "taken 2026-05-17"));
    EXPECT_EQ(soundnessText(photo.verdict), QStringLiteral("complete"));
    const Soundness torn{Verdict::CutOff, true, false, 1000, 0, 0, {}};
    EXPECT_EQ(describe(torn), QStringLiteral("cut off, not all of its sectors could be read, 1.0 kB"));
}

TEST(Soundness, OnlyWhatWasLookedInto_IsChecked) {
    const auto found = [](const char* type, const QByteArray& file) {
        ScriptedMedium medium = mediumWith(file, 0, 60);
        ScriptedReader reader(medium);
        ReadWatch watch;
        std::vector<std::uint8_t> kept;
        return examine(QString::fromLatin1(type), {{{0, 40}}, false}, reader, watch, kept).value();
    };
    const Soundness sound = found("WAV", wavFile(kWavBytes));
    EXPECT_EQ(sound.verdict, Verdict::Complete);
    EXPECT_FALSE(sound.checked);
    const Soundness page = found("XML", "<page>" + QByteArray(5000, 'x') + "</page>\n");
    EXPECT_EQ(page.verdict, Verdict::Complete);
    EXPECT_TRUE(page.checked);
}

TEST(Soundness, NothingIsKnownWhenTheWatchEnds) {
    ScriptedMedium medium = mediumWith(wavFile(kWavBytes), 0, 60);
    ScriptedReader reader(medium);
    ReadWatch watch;
    std::vector<std::uint8_t> kept;
    watch.ended = true;
    EXPECT_FALSE(examine(QStringLiteral("WAV"), {{{0, 40}}, false}, reader, watch, kept));
}

TEST(Soundness, AFileOfTooMuchReading_IsOfUnknownLength) {
    ScriptedMedium medium = mediumWith(wavFile(kWavBytes), 0, 60);
    ScriptedReader reader(medium);
    ReadWatch watch;
    std::vector<std::uint8_t> kept;
    const CarvedRun carved{{{0, 40}}, false};
    const auto examined = [&](std::uint64_t mostBytes) {
        return *examine(QStringLiteral("WAV"), carved, reader, watch, kept, mostBytes);
    };
    EXPECT_EQ(examined(kSectorBytes).verdict, Verdict::Unknown);
    EXPECT_EQ(examined(kSectorBytes).bytes, 40 * kSectorBytes) << "as it was carved";
    EXPECT_EQ(examined(kMostExaminedBytes).verdict, Verdict::Complete);
}

TEST_F(SoundnessBoardTest, TheMediumIsClosed_WhenTheListIsLeft) {
    board.begin([&] { return std::make_unique<CountedReader>(medium, readers); });
    board.want({0});
    ASSERT_TRUE(until([this] { return board.known() == 1; }));
    EXPECT_EQ(readers, 1) << "as long as items are in view";
    board.begin({});
    EXPECT_TRUE(until([&] { return readers == 0; }));
}

TEST_F(SoundnessBoardTest, TheMediumIsClosed_WhenNothingIsInView) {
    board.begin([&] { return std::make_unique<CountedReader>(medium, readers); });
    board.want({0});
    ASSERT_TRUE(until([this] { return board.known() == 1; }));
    board.want({});
    EXPECT_TRUE(until([&] { return readers == 0; }));
    board.want({0, 1});
    EXPECT_TRUE(until([this] { return board.known() == 2; })) << "and opened again";
}

TEST_F(SoundnessBoardTest, AtRest_TheLookUnderWayIsGivenUp_AndMadeLater) {
    Gate gate;
    medium.beforeRead = gate.atEveryRead();
    board.begin([&] { return std::make_unique<CountedReader>(medium, readers); });
    board.want({0});
    ASSERT_TRUE(until([&] { return gate.someoneWaits(); }));
    board.rest(true);
    board.wantAll(2);
    board.want({});
    board.wantAll(0);
    gate.open();
    ASSERT_TRUE(until([&] { return readers == 0; })) << "the look is over";
    EXPECT_EQ(medium.reads, 1U);
    EXPECT_EQ(board.known(), 0U);
    board.want({1});
    board.rest(false);
    board.want({1, 0});
    EXPECT_TRUE(until([this] { return board.known() == 2; }));
    EXPECT_EQ(board.find(0)->verdict, Verdict::Complete);
}

TEST_F(SoundnessBoardTest, AtRest_NothingIsBegun) {
    board.begin(opener());
    board.rest(true);
    board.want({0});
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(opened, 0);
    board.rest(false);
    EXPECT_TRUE(until([this] { return board.known() == 1; }));
}

TEST_F(SoundnessBoardTest, AtRest_NoItemOfAllIsLeftOut) {
    Gate gate;
    medium.beforeRead = gate.atEveryRead();
    board.begin(opener());
    board.wantAll(2);
    ASSERT_TRUE(until([&] { return gate.someoneWaits(); }));
    board.rest(true);
    board.rest(false);
    gate.open();
    EXPECT_TRUE(until([this] { return board.known() == 2; }));
}

}  // namespace
}  // namespace vantor

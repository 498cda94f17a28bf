// Speed and time left in words.
#include <gtest/gtest.h>

#include "scan/ScanMeter.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

// 1,000 sectors a second for ten seconds.
void runTenSeconds(ScanMeter& meter) {
    for (int second = 0; second <= 10; ++second) {
        meter.update(second * 1000, static_cast<std::uint64_t>(second) * 1000);
    }
}

// What is still to be read behind each pass, by the log of the session.
std::vector<std::uint64_t> laterSectors(TestSession& session, void (ScanSession::*driver)()) {
    std::vector<std::uint64_t> later;
    session.onNote = [&](const QString& line) {
        if (line.startsWith(u"range: ")) {
            later.push_back(session.sectorsOfLaterPasses());
        }
    };
    (session.*driver)();
    return later;
}

const QStringList kJpeg = recordsOf({{"JPG", "FFD8"}});
using Sectors = std::vector<std::uint64_t>;

}  // namespace

TEST(ScanMeter, TimeLeftIsThatOfAllPassesStillToCome) {
    ScanMeter alone;
    alone.begin(70000);
    runTenSeconds(alone);
    ASSERT_TRUE(alone.secondsLeft());
    EXPECT_DOUBLE_EQ(*alone.secondsLeft(), 60);
    EXPECT_EQ(alone.text(1), "512 kB/s   ·   about 1 min left   ·   1 item found");

    ScanMeter first;
    first.begin(70000, 70000);
    runTenSeconds(first);
    EXPECT_DOUBLE_EQ(*first.secondsLeft(), 130);
    EXPECT_EQ(first.text(1234), "512 kB/s   ·   about 3 min left   ·   1,234 items found");
}

TEST(ScanMeter, PhotoPassesToCome) {
    ScriptedMedium medium = dataMedium(30);
    TestSession session(medium);
    session.Ext_Array = session.Adv_Ext_Array = kJpeg;
    session.setRange(10, 30);
    EXPECT_EQ(laterSectors(session, &ScanSession::Photo_Rec_Thread), (Sectors{20, 0}));
    session.thorough = false;
    EXPECT_EQ(laterSectors(session, &ScanSession::Photo_Rec_Thread), Sectors{0});
    session.thorough = true;
    session.Adv_Ext_Array.clear();
    EXPECT_EQ(laterSectors(session, &ScanSession::Photo_Rec_Thread), (Sectors{0, 0}))
        << "a pass over no signatures reads nothing";
}

TEST(ScanMeter, RawPassesToComeDependOnTheSignaturesAlone) {
    ScriptedMedium medium = dataMedium(30);
    TestSession session(medium);
    session.choose(kJpeg, kJpeg);
    session.thorough = false;
    EXPECT_EQ(laterSectors(session, &ScanSession::Raw_File_Rec_Thread), (Sectors{30, 0}));
    session.choose(kJpeg);
    session.thorough = true;
    EXPECT_EQ(laterSectors(session, &ScanSession::Raw_File_Rec_Thread), (Sectors{0, 0}));
}

}  // namespace vantor

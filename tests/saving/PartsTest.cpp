// Items that lie within others: left out, asked for, waiting.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "saving/ItemSaver.h"
#include "tests/saving/CarvedRuns.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

// Frames of 48 kHz, 32 kbit/s: 128 bytes each, so that each fourth begins a sector.
QByteArray ac3Stream() {
    return (QByteArray("\x0B\x77\0\0\0\x40\x40\0", 8) + QByteArray(120, 'x')).repeated(4000);
}

TEST(ItemSaver, PartsOfWhatWasProvedComplete_AreLeftOutUnlessAskedFor) {
    const QByteArray member = wavFile(kWavBytes);
    const QByteArray archive = zipHolding(member);
    const auto saveBoth = [&](const QByteArray& holder, const SavePolicy& policy) {
        ScriptedMedium medium = mediumWith(holder, 5, 300);
        ScriptedReader reader(medium);
        const QTemporaryDir folder;
        const ItemSaver saver(folder.path(), policy);
        EXPECT_TRUE(saver.saveRuns("ZIP", "a.ZIP", run(5, 6), reader).saved);
        return saver.saveRuns("WAV", "b.WAV", run(6, 250), reader);
    };
    const SaveOutcome part = saveBoth(archive, {});
    EXPECT_EQ(part.leftOut, LeftOut::Part);
    EXPECT_EQ(part.partOf, "a.ZIP");
    EXPECT_FALSE(part.saved);
    ASSERT_TRUE(soundnessOf(part));
    EXPECT_EQ(soundnessOf(part)->bytes, static_cast<std::uint64_t>(kWavBytes));
    SavePolicy withParts;
    withParts.parts = true;
    EXPECT_TRUE(saveBoth(archive, withParts).saved);
    QByteArray spoilt = archive;
    spoilt[5000] = static_cast<char>(spoilt[5000] ^ 1);
    EXPECT_TRUE(saveBoth(spoilt, {}).saved) << "other bytes than the archive's may stand in it";
}

TEST(ItemSaver, PartsOfAStreamThatHasToWait_WaitForIt) {
    const QByteArray stream = ac3Stream();
    ScriptedMedium medium = mediumWith(stream, 10, 1200);
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    const auto save = [&](const char* name, const CarvedRun& carved, bool mayWait) {
        FoundItem item{"AC3", name, {carved, {}, [&reader] { return &reader; }, medium.bytes.size()}};
        item.mayWait = mayWait;
        return saver.save(item);
    };
    const SaveOutcome whole = save("a.AC3", run(10, 12), true);
    ASSERT_TRUE(whole.later) << "claims far more than was carved";
    EXPECT_TRUE(whole.comesFirst());
    const SaveOutcome part = save("b.AC3", run(20, 22), true);
    EXPECT_TRUE(part.later);
    EXPECT_FALSE(part.comesFirst());
    EXPECT_TRUE(save("c.AC3", run(20, 22), false).saved) << "may not wait";
    saver.beginSecondRound();
    ASSERT_TRUE(save("a.AC3", run(10, 12), false).saved);
    EXPECT_EQ(save("b.AC3", run(20, 22), false).leftOut, LeftOut::Part);
}

TEST(ItemSaver, EachChoiceHasItsOwnParts) {
    const QByteArray archive = zipHolding(wavFile(kWavBytes));
    ScriptedMedium medium = mediumWith(archive, 5, 300);
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    saver.beginRound();
    ASSERT_TRUE(saver.saveRuns("ZIP", "a.ZIP", run(5, 6), reader).saved);
    EXPECT_EQ(saver.saveRuns("WAV", "b.WAV", run(6, 250), reader).leftOut, LeftOut::Part);
    saver.beginRound();
    EXPECT_TRUE(saver.saveRuns("WAV", "b.WAV", run(6, 250), reader).saved) << "who chooses a part gets it";
}

TEST(ItemSaver, PartsOfAStreamGoNoFurtherThanTheyWereCarved) {
    const QByteArray stream = ac3Stream();
    ScriptedMedium medium = mediumWith(stream, 10, 1200);
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    SavePolicy withParts;
    withParts.parts = true;
    const ItemSaver saver(folder.path(), withParts);
    const SaveOutcome whole = saver.saveRuns("AC3", "a.AC3", run(10, 12), reader);
    ASSERT_EQ(whole.verdict, Verdict::Complete);
    ASSERT_EQ(whole.bytes, static_cast<std::uint64_t>(stream.size()));
    const SaveOutcome part = saver.saveRuns("AC3", "b.AC3", run(20, 22), reader);
    ASSERT_TRUE(part.saved);
    EXPECT_EQ(part.bytes, 2 * 512U);
    // What is of another kind is no part of it, however far the first was believed to reach.
    const SaveOutcome other = saver.saveRuns("EAC3", "c.EAC3", run(20, 22), reader);
    EXPECT_EQ(other.bytes, static_cast<std::uint64_t>(stream.size()) - 10 * 512U);
}

}  // namespace
}  // namespace vantor

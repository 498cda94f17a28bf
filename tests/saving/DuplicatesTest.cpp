// The same bytes are saved once, and nothing else is taken for them.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "saving/ItemSaver.h"
#include "tests/saving/CarvedRuns.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

class SameBytes : public testing::TestWithParam<bool> {};

INSTANTIATE_TEST_SUITE_P(Checksums, SameBytes, testing::Bool());

TEST_P(SameBytes, AreSavedOnce) {
    const QByteArray wav = wavFile(kWavBytes);
    const QByteArray other = wavFile(kWavBytes, 2);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    std::memcpy(medium.bytes.at(300).data(), wav.data(), static_cast<std::size_t>(wav.size()));
    std::memcpy(medium.bytes.at(700).data(), other.data(), static_cast<std::size_t>(other.size()));
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    SavePolicy policy;
    policy.checksums = GetParam();
    const ItemSaver saver(folder.path(), policy);
    const SaveOutcome first = saver.saveRuns("WAV", "a.WAV", run(10, 60), reader);
    const SaveOutcome again = saver.saveRuns("WAV", "b.WAV", run(300, 600), reader);
    const SaveOutcome sameSizeOnly = saver.saveRuns("WAV", "d.WAV", run(700, 701), reader);
    EXPECT_TRUE(sameSizeOnly.saved && !sameSizeOnly.duplicate);
    const SaveOutcome otherType = saver.saveRuns("RMI", "c.RMI", run(10, 60), reader);
    EXPECT_FALSE(first.duplicate);
    ASSERT_TRUE(again.saved && again.duplicate);
    EXPECT_EQ(again.path, first.path);
    ASSERT_TRUE(otherType.saved && otherType.duplicate);
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"RMI/c.RMI", "WAV/a.WAV", "WAV/d.WAV"}));
    struct stat one {
    }, second{};
    ::stat(first.path.toLocal8Bit().constData(), &one);
    ::stat(otherType.path.toLocal8Bit().constData(), &second);
    EXPECT_EQ(one.st_ino, second.st_ino) << "one file with two names";

    const SaveOutcome thirdTime = saver.saveRuns("RMI", "e.RMI", run(300, 600), reader);
    EXPECT_TRUE(thirdTime.duplicate);
    EXPECT_EQ(thirdTime.path, otherType.path) << "one name a type";

    SavePolicy keep;
    keep.skipDuplicates = false;
    ASSERT_TRUE(QDir(folder.path()).mkdir("all"));
    const ItemSaver keeper(folder.filePath("all"), keep);
    EXPECT_TRUE(keeper.saveRuns("WAV", "a.WAV", run(10, 60), reader).saved);
    EXPECT_FALSE(keeper.saveRuns("WAV", "b.WAV", run(300, 600), reader).duplicate);
    EXPECT_EQ(filesUnder(folder.filePath("all")), QStringList({"WAV/a.WAV", "WAV/b.WAV"}));
}

TEST_P(SameBytes, FilesThatOnlyBeginAlikeAreBothSaved) {
    QByteArray wav = wavFile(kWavBytes);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    wav.back() = static_cast<char>(wav.back() + 1);
    std::memcpy(medium.bytes.at(300).data(), wav.data(), static_cast<std::size_t>(wav.size()));
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    SavePolicy policy;
    policy.checksums = GetParam();
    const ItemSaver saver(folder.path(), policy);
    saver.saveRuns("WAV", "a.WAV", run(10, 60), reader);
    const SaveOutcome second = saver.saveRuns("WAV", "b.WAV", run(300, 600), reader);
    EXPECT_FALSE(second.duplicate);
    ASSERT_TRUE(second.saved);
    EXPECT_TRUE(contentsOf(second.path) == wav);
}

// The checksum of a file tells whether it was asked for: most files of one size need none.
TEST(ItemSaver, FilesOfOneSizeThatBeginDifferentlyAreNotSummedUp) {
    const QByteArray wav = wavFile(kWavBytes);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    const QByteArray other = wavFile(kWavBytes, 2);
    std::memcpy(medium.bytes.at(300).data(), other.data(), static_cast<std::size_t>(other.size()));
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    SavePolicy policy;
    policy.checksums = false;
    const ItemSaver saver(folder.path(), policy);
    EXPECT_TRUE(saver.saveRuns("WAV", "a.WAV", run(10, 60), reader).saved);
    const SaveOutcome second = saver.saveRuns("WAV", "b.WAV", run(300, 600), reader);
    EXPECT_TRUE(second.saved);
    EXPECT_TRUE(second.sha256.isEmpty());
}

TEST(ItemSaver, ZerosInPlaceOfUnreadableSectorsMakeNoDuplicate) {
    ScriptedMedium medium = letters(24);
    medium.bytes[14] = medium.bytes[4];
    medium.badForEver = {5, 6, 7, 15, 16, 17};
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const ItemSaver saver(folder.path());
    ASSERT_TRUE(saver.saveRuns("T", "a", run(4, 8), reader).saved);
    const SaveOutcome other = saver.saveRuns("T", "b", run(14, 18), reader);
    EXPECT_TRUE(other.saved);
    EXPECT_FALSE(other.duplicate) << "only their first sectors were read";
    const SaveOutcome again = saver.saveRuns("T", "a", run(4, 8), reader);
    EXPECT_TRUE(again.duplicate) << "the same place, as badly read";
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"T/a", "T/b"}));
    medium.badForEver.clear();
    EXPECT_FALSE(saver.saveRuns("T", "a", run(4, 8), reader).duplicate) << "all of it can be read now";
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"T/a", "T/a (2)", "T/b"}));
}

TEST(ItemSaver, FilesFromAnEarlierRecoveryAreKnownByTheirBytes) {
    const QByteArray wav = wavFile(kWavBytes);
    const QByteArray other = wavFile(kWavBytes, 2);
    ScriptedMedium medium = mediumWith(wav, 10, 1000);
    std::memcpy(medium.bytes.at(300).data(), other.data(), static_cast<std::size_t>(other.size()));
    medium.badForEver = {710};
    ScriptedReader reader(medium);
    const QTemporaryDir folder;
    const auto saveAll = [&] {
        const ItemSaver saver(folder.path());
        int duplicates = 0;
        for (const auto& [name, at] : {std::pair{"a.WAV", 10}, {"b.WAV", 300}}) {
            const auto first = static_cast<std::uint64_t>(at);
            const SaveOutcome outcome = saver.saveRuns("WAV", name, run(first, first + 2), reader);
            EXPECT_TRUE(outcome.saved) << outcome.error.toStdString();
            duplicates += outcome.duplicate ? 1 : 0;
        }
        const SaveOutcome partly = saver.saveRuns("T", "c", run(705, 715), reader);
        EXPECT_TRUE(partly.saved);
        return duplicates + (partly.duplicate ? 1 : 0);
    };
    EXPECT_EQ(saveAll(), 0);
    const QStringList files{"T/c", "WAV/a.WAV", "WAV/b.WAV"};
    EXPECT_EQ(filesUnder(folder.path()), files);
    EXPECT_EQ(saveAll(), 3);
    EXPECT_EQ(filesUnder(folder.path()), files) << "no second copies";
    // Another file of that name and size is no reason to lose this one.
    QFile changed(folder.filePath("WAV/b.WAV"));
    ASSERT_TRUE(changed.open(QIODevice::ReadWrite) && changed.seek(kWavBytes - 1) && changed.putChar('!'));
    changed.close();
    EXPECT_EQ(saveAll(), 2);
    EXPECT_EQ(filesUnder(folder.path()), QStringList({"T/c", "WAV/a.WAV", "WAV/b (2).WAV", "WAV/b.WAV"}));
}

}  // namespace
}  // namespace vantor

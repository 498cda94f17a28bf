// A search that was killed at any moment and gone on with publishes what an undisturbed one does.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <fstream>
#include <numeric>
#include <string>

#include "scan/SearchKeeper.h"
#include "tests/scan/BothPasses.h"
#include "tests/support/FullDisk.h"

namespace vantor {
namespace {

SearchRecord someRecord() {
    SearchRecord record;
    record.wishes = {2, {"PDF", "JPG"}, false, false, "10", "5000", QByteArray(32, 'x')};
    record.medium = QStringLiteral("/dev/sdb1");
    record.sectors = 123456789;
    record.samples = {{0, QByteArray(32, 'a')}, {4096, QByteArray(32, 'b')}};
    record.read = {{10, 400}, {401, 2000}, {std::uint64_t{1} << 40, (std::uint64_t{1} << 40) + 1}};
    record.reached = 2345;
    record.refused = {{400, 401}};
    for (const std::uint64_t sector : {10U, 11U, 300U, 70000U}) {
        record.worthALook.append(sector);
    }
    record.notes = {QStringLiteral("CANON"),
                    412,
                    true,
                    3,
                    9,
                    QStringLiteral("/a/b.img"),
                    {0, 1, 7, std::uint64_t{1} << 33},
                    {2, 8},
                    {5},
                    QByteArray("some id")};
    return record;
}

// The most memory this process has held since the last call, in kilobytes; nothing where the system does not
// tell.
std::optional<long> mostMemorySince() {
    long most = -1;
    std::ifstream facts("/proc/self/status");
    for (std::string word; facts >> word;) {
        if (word == "VmHWM:") {
            facts >> most;
        }
    }
    std::ofstream reset("/proc/self/clear_refs");
    reset << "5" << std::flush;
    return most >= 0 && reset ? std::optional(most) : std::nullopt;
}

std::vector<std::uint64_t> membersOf(const SectorBits& bits) {
    std::vector<std::uint64_t> members;
    for (std::uint64_t at = bits.firstFrom(0); at != SectorBits::kNone; at = bits.firstFrom(at + 1)) {
        members.push_back(at);
    }
    return members;
}

void expectSame(const SearchRecord& a, const SearchRecord& b) {
    EXPECT_TRUE(a.wishes == b.wishes);
    EXPECT_EQ(a.medium, b.medium);
    EXPECT_EQ(a.sectors, b.sectors);
    EXPECT_TRUE(a.samples == b.samples);
    EXPECT_EQ(a.reached, b.reached);
    EXPECT_TRUE(a.read == b.read);
    EXPECT_TRUE(a.refused == b.refused);
    EXPECT_EQ(membersOf(a.worthALook), membersOf(b.worthALook));
    EXPECT_TRUE(a.notes == b.notes);
}

}  // namespace

TEST(SearchRecord, ComesBackAsItWasWritten) {
    QString why;
    const auto read = recordOf(recordBytes(someRecord()), &why);
    ASSERT_TRUE(read) << why.toStdString();
    expectSame(*read, someRecord());
    EXPECT_TRUE(recordOf(recordBytes(SearchRecord())));
}

TEST(SearchRecord, SpoiltOrShortenedBytes_AreRefusedWithASentence) {
    const QByteArray whole = recordBytes(someRecord());
    for (qsizetype at = 0; at < whole.size(); ++at) {
        QByteArray spoilt = whole;
        spoilt[at] = static_cast<char>(spoilt[at] ^ 0x10);
        QString why;
        EXPECT_FALSE(recordOf(spoilt, &why)) << at;
        EXPECT_FALSE(why.isEmpty()) << at;
        why.clear();
        EXPECT_FALSE(recordOf(whole.first(at), &why)) << at;
        EXPECT_FALSE(why.isEmpty()) << at;
    }
    EXPECT_FALSE(recordOf(whole + 'x'));
}

// What takes a byte or two in the file and many times as much in memory.
TEST(SearchRecord, WhatNoSearchHasSoManyOf_IsRefusedUnderItsRightChecksum) {
    const auto isRefused = [](const SearchRecord& record) { return !recordOf(recordBytes(record)); };
    SearchRecord record;
    record.wishes.types = QStringList(5000, QString());
    EXPECT_TRUE(isRefused(record));
    record = {};
    record.samples.resize(2000);
    EXPECT_TRUE(isRefused(record));
    record = {};
    for (std::uint64_t sector = 0; sector < 9'000'000; sector += 2) {
        record.read.push_back({sector, sector + 1});
    }
    EXPECT_TRUE(isRefused(record));
    record = {};
    for (std::uint64_t page = 0; page < 2'500'000; ++page) {
        record.worthALook.append(page << 16);
    }
    EXPECT_TRUE(isRefused(record));
    record = {};
    record.notes.ticked.resize(17'000'000);
    std::iota(record.notes.ticked.begin(), record.notes.ticked.end(), 0U);
    EXPECT_TRUE(isRefused(record));
    record.notes.ticked.resize(16'000'000);
    EXPECT_FALSE(isRefused(record));
}

// Past the checksum: numbers that are not to be believed.
TEST(SearchRecord, BytesOfTheRightSumThatMakeNoSense_AreRefused) {
    const QByteArray whole = recordBytes(someRecord());
    const QByteArray body = whole.chopped(32);
    ASSERT_TRUE(uncheckedRecordOf(body));
    // Earlier versions of the program kept neither ticks nor selection nor an id: three numbers of a byte.
    SearchRecord earlier = someRecord();
    earlier.notes.ticked.clear();
    earlier.notes.selected.clear();
    earlier.notes.id.clear();
    const qsizetype earlierEnd = recordBytes(earlier).size() - 32 - 3;
    for (qsizetype end = 0; end < body.size(); ++end) {
        EXPECT_EQ(uncheckedRecordOf(QByteArrayView(body).first(end)).has_value(), end == earlierEnd) << end;
    }
    const qsizetype types = body.indexOf('\n') + 2;
    QByteArray manyTypes = body;
    manyTypes.replace(types, 1, QByteArray::fromHex("ffffffffffffffff7f"));
    EXPECT_FALSE(uncheckedRecordOf(manyTypes));
}

class KeptSearch : public testing::TestWithParam<WindowedReader::Fetching> {};

INSTANTIATE_TEST_SUITE_P(Readings, KeptSearch,
                         testing::Values(WindowedReader::Fetching::WhenAsked,
                                         WindowedReader::Fetching::Ahead),
                         [](const auto& fetching) {
                             return std::string(
                                 fetching.param == WindowedReader::Fetching::Ahead ? "Ahead" : "WhenAsked");
                         });

TEST(SearchRecord, FileThatOnlyBeginsLikeOne_IsNotTakenIntoMemory) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("search"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_GT(file.write(recordBytes(someRecord())), 0);
    ASSERT_TRUE(file.flush());
    ASSERT_TRUE(readSearchRecord(file.fileName()));
    constexpr qint64 kBytes = qint64{200} << 20;
    ASSERT_TRUE(file.resize(kBytes));
    if (!mostMemorySince()) {
        GTEST_SKIP() << "the system does not tell how much memory is held";
    }
    const auto before = mostMemorySince();
    QString why;
    EXPECT_FALSE(readSearchRecord(file.fileName(), &why));
    EXPECT_EQ(why, QStringLiteral("The file is damaged."));
    EXPECT_LT(*mostMemorySince() - *before, kBytes / 1024 / 4);
}

TEST(SearchKeeper, AFullDiskLeavesWhatWasKeptBefore) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("search");
    SearchKeeper keeper(path, someRecord());
    const RefusedSectors refusals;
    keeper.write(refusals);
    ASSERT_TRUE(keeper.error().isEmpty()) << keeper.error().toStdString();
    {
        const test::FullDisk full;
        keeper.write(refusals);
    }
    EXPECT_FALSE(keeper.error().isEmpty());
    EXPECT_TRUE(readSearchRecord(path));
}

TEST_P(KeptSearch, KilledAtAnyMoment_GoesOnAsIfItHadNotBeen) {
    const QTemporaryDir folder;
    RandomScans random(21);
    std::size_t items = 0;
    for (int round = 0; round < 800; ++round) {
        const bool photo = round % 2 == 0;
        Search search = randomSearch(random, round % 3 != 0);
        search.medium.badTimes.clear();  // a fault that is over does not come back with the search
        const std::vector<plain::Item> expected = expectedOf(search, photo);
        const auto open = [&](const QString&) { return openReadAhead(search.medium, GetParam()); };

        // What the file would hold at a kill while the read is under way.
        const std::uint64_t killedAt = random.below(2 * search.medium.bytes.size() + 2);
        QByteArray file;
        {
            TestSession killed(search.medium);
            const auto keeper =
                std::make_shared<SearchKeeper>(folder.filePath(QStringLiteral("killed")), SearchRecord());
            killed.keepSearch(keeper);
            killed.setMediumOpener(open);
            search.medium.beforeRead = [&](std::uint64_t read) {
                if (read == killedAt) {
                    file = recordBytes(keeper->record(killed.refusals()));
                }
            };
            runBoth(killed, search, photo);
            search.medium.beforeRead = nullptr;
            search.medium.reads = 0;
            if (file.isEmpty()) {
                file = recordBytes(keeper->record(killed.refusals()));
            }
        }
        auto kept = recordOf(file);
        ASSERT_TRUE(kept);
        TestSession session(search.medium);
        session.keepSearch(
            std::make_shared<SearchKeeper>(folder.filePath(QStringLiteral("going on")), std::move(*kept)));
        session.setMediumOpener(open);
        runBoth(session, search, photo);
        ASSERT_EQ(listed(session, photo), expected) << "round " << round << ", killed at read " << killedAt;
        items += expected.size();
    }
    EXPECT_GT(items, 1500U);
}

TEST_P(KeptSearch, GoneOnWith_ReadsOnlyTheRestOfTheMedium) {
    // What was read ahead and is dropped at a stop must be little of so small a medium.
    constexpr std::size_t kSmallWindow = 64;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("search"));
    RandomScans random(22);
    Search search = longSearch(random, 20000);
    search.medium.badForEver = {3000, 3001, 9000};
    Asked asked;
    const auto open = [&](const QString&) {
        return std::make_unique<WindowedReader>(std::make_unique<CountedBlocks>(search.medium, asked),
                                                GetParam(), kSmallWindow);
    };
    const auto run = [&](SearchRecord record, std::uint64_t stopAt) {
        TestSession session(search.medium);
        session.photoBytes = TestSession::PhotoBytes::First;
        session.keepSearch(std::make_shared<SearchKeeper>(path, std::move(record)));
        session.setMediumOpener(open);
        session.onNote = [&](const QString&) {
            if (session.itemCount() >= stopAt) {
                session.stop_now = 1;
            }
        };
        runBoth(session, search, true);
        return session.names();
    };
    const auto kept = [&] {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        auto record = recordOf(file.readAll());
        EXPECT_TRUE(record);
        return record.value_or(SearchRecord());
    };
    const QStringList firstHalf = run({}, 12);
    const SearchRecord stopped = kept();
    ASSERT_FALSE(stopped.read.empty());
    ASSERT_LT(stopped.read.back().end, 15000U);
    const QStringList all = run(stopped, 1000000);
    EXPECT_EQ(all.first(firstHalf.size()), firstHalf);
    EXPECT_LE(static_cast<double>(asked.sectors), 1.05 * 20000);
    for (const auto& [sector, times] : asked.refusals) {
        EXPECT_LE(times, 2) << sector;
    }
    const std::uint64_t before = asked.sectors;
    EXPECT_EQ(run(kept(), 1000000), all);
    EXPECT_LE(static_cast<double>(asked.sectors - before), 0.05 * 20000) << "a search that had ended";
}

TEST_P(KeptSearch, ToldToStopBeforeASector_EndsThere_AndKnowsAllBeforeIt) {
    const QTemporaryDir folder;
    RandomScans random(24);
    for (const bool photo : {true, false}) {
        Search search = longSearch(random, 3000);
        search.medium.badForEver = {100, 101, 700};
        const auto run = [&](std::optional<std::uint64_t> stopBefore, SearchRecord record) {
            TestSession session(search.medium);
            const auto keeper = std::make_shared<SearchKeeper>(QString(), std::move(record));
            keeper->setNotes([] { return SearchNotes{QStringLiteral("x"), 7, false, 0, 0, {}, {}}; });
            session.keepSearch(keeper);
            session.stopBefore(stopBefore);
            session.setMediumOpener([&](const QString&) { return openReadAhead(search.medium, GetParam()); });
            runBoth(session, search, photo);
            return std::pair(session.searchEnd(), keeper->record(session.refusals()));
        };
        const auto [end, record] = run(1234, {});
        EXPECT_EQ(end.outcome, PassOutcome::Stopped);
        EXPECT_GE(end.sector, 1234U) << "behind a failed read the counter is ahead";
        EXPECT_EQ(record.reached, 1234U);
        EXPECT_EQ(record.notes.found, 7U);
        EXPECT_EQ(run(record.reached, record).first.sector, end.sector);
        EXPECT_EQ(run(record.reached, record).second.reached, 1234U);
        EXPECT_EQ(run({}, record).first.outcome, PassOutcome::Completed);
    }
}

TEST(SearchKeeper, AnotherMedium_DoesNotHoldTheSamples) {
    const QTemporaryDir folder;
    RandomScans random(23);
    Search search = longSearch(random, 3000);
    const auto keeper = std::make_shared<SearchKeeper>(folder.filePath(QStringLiteral("x")), SearchRecord());
    TestSession session(search.medium);
    session.keepSearch(keeper);
    runBoth(session, search, true);
    const std::vector<SectorSample> samples = keeper->record(session.refusals()).samples;
    ASSERT_GT(samples.size(), 20U);
    ASSERT_LE(samples.size(), SearchKeeper::kMostSamples);
    const auto holds = [&samples](ScriptedMedium& medium) {
        ScriptedReader reader(medium);
        return holdsSamples(reader, samples);
    };
    EXPECT_TRUE(holds(search.medium));
    ScriptedMedium fewChanges = search.medium;
    fewChanges.fill(samples[0].sector, 1).fill(samples[3].sector, 1);
    fewChanges.badForEver = {samples[5].sector, samples[6].sector};
    EXPECT_TRUE(holds(fewChanges));
    ScriptedMedium another(3000);
    EXPECT_FALSE(holds(another));
    another = letters(3000);
    EXPECT_FALSE(holds(another));
    another.badForEver.clear();
    for (std::uint64_t sector = 0; sector < 3000; ++sector) {
        another.badForEver.insert(sector);
    }
    EXPECT_FALSE(holds(another)) << "nothing of it can be read";
}

TEST(SearchKeeper, FileThatCannotBeWritten_IsTold) {
    SearchKeeper keeper(QStringLiteral("/nowhere/at/all"), SearchRecord());
    keeper.write(RefusedSectors());
    EXPECT_FALSE(keeper.error().isEmpty());
}

}  // namespace vantor

// A choice of items: counted, reported, cancelled.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <thread>

#include "results/CardIndex.h"
#include "results/MendedItems.h"
#include "results/MyImageObject.h"
#include "saving/SaveJob.h"
#include "saving/SaveSummary.h"
#include "saving/SavedMarks.h"
#include "saving/Sha256.h"
#include "tests/saving/PoorFileSystem.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

class SaveJobTest : public ::testing::Test {
  protected:
    std::shared_ptr<MyImageObject> item(const QString& name, SectorRun run, const QByteArray& picture = {}) {
        std::shared_ptr<MyImageObject> made = MyImageObject::initWithImage_data(picture, name, name);
        made->setOrigin(name.section(u'.', -1), {{run}, false}, {run.first + 1, run.end + 1});
        return made;
    }
    SaveRequest request(std::vector<ChosenItem> items, const SavePolicy& policy = {}) {
        SaveRequest made;
        made.items = std::move(items);
        made.saver = std::make_shared<const ItemSaver>(folder.path(), policy);
        made.openMedium = [this] { return std::make_unique<ScriptedReader>(medium); };
        made.destination = folder.path();
        return made;
    }
    QStringList files(const char* type) const {
        return QDir(folder.filePath(QLatin1String(type))).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
    ScriptedMedium medium = mediumWith(wavFile(20'000), 10, 100);
};

TEST_F(SaveJobTest, CountsAndReportsAsTheCommandDoes) {
    SaveRequest wish = request({{4, item("a.WAV", {10, 50}, "\x89PNGabc")},
                                {2, item("b.WAV", {10, 50}, "none")},
                                {9, item("c.QQQ", {60, 62})}});
    wish.placeholder = "none";
    wish.report = ReportHead{};
    wish.report->medium = QStringLiteral("CANON_DC (sdb1)");
    SaveJob job(std::move(wish));
    job.run();
    const SaveReport& report = job.report();
    EXPECT_TRUE(job.isFinished());
    EXPECT_TRUE(report.mediumOpened);
    EXPECT_EQ(report.tally.saved, 2U);
    EXPECT_EQ(report.tally.unchecked, 1U);
    EXPECT_EQ(report.tally.unknownLength, 1U);
    EXPECT_EQ(report.tally.duplicates, 1U);
    EXPECT_EQ(report.indexes, (std::vector<std::size_t>{4, 2, 9}));
    EXPECT_EQ(report.items[0].firstSector, 11U) << "as published";
    EXPECT_EQ(job.progress().done, 3U);
    EXPECT_EQ(job.progress().share, job.total());
    EXPECT_EQ(contentsOf(folder.filePath("WAV/a.WAV")), wavFile(20'000));

    const QByteArray html = contentsOf(report.written.html);
    EXPECT_EQ(report.written.html, folder.filePath("Recovery report.html"));
    EXPECT_TRUE(html.contains("CANON_DC (sdb1)"));
    EXPECT_EQ(html.count("<img "), 1) << "pictures, without the one that stands for none";
    EXPECT_EQ(contentsOf(report.written.csv).count("\r\n"), 4);
}

// Two files that only a directory tells of: a text, and a sound where a shorter one lies now.
SaveRequest withToldFiles(SaveRequest wish) {
    CardTable table;
    for (const auto& [name, first] : {std::pair{"NOTES.TXT", 60U}, std::pair{"VOICE.WAV", 70U}}) {
        CardFile file;
        file.folder = QStringLiteral("DOCS");
        file.name = QString::fromLatin1(name);
        file.bytes = file.validBytes = 700;
        file.runs = {{first, first + 4}};
        file.runsKnownBy = first == 60U ? RunsKnownBy::Chain : RunsKnownBy::Guess;
        file.state = FileState::Deleted;
        table.files.push_back(std::move(file));
    }
    wish.card = std::make_shared<const CardIndex>(std::move(table));
    for (const CardFile& file : wish.card->table().files) {
        wish.told.emplace_back(wish.card, &file);
    }
    return wish;
}

TEST_F(SaveJobTest, WhatOnlyTheCardTellsOf_IsSavedBehindTheItemsAndReported) {
    for (std::size_t sector = 60; sector < 64; ++sector) {
        std::fill(medium.bytes[sector].begin(), medium.bytes[sector].end(), 't');
    }
    const QByteArray other = wavFile(400, 3);
    std::memcpy(medium.bytes[70].data(), other.constData(), static_cast<std::size_t>(other.size()));
    SaveRequest wish = withToldFiles(request({{5, item("a.WAV", {10, 50}, "\x89PNGabc")}}));
    wish.report = ReportHead{};
    SaveJob job(std::move(wish));
    EXPECT_EQ(job.count(), 3U);
    EXPECT_EQ(job.total(), 40U + 2U + 2U) << "whole sectors of what the directory counts";
    job.run();
    const SaveReport& report = job.report();
    EXPECT_EQ(contentsOf(folder.filePath("DOCS/NOTES.TXT")), QByteArray(700, 't'));
    EXPECT_FALSE(QFile::exists(folder.filePath("DOCS/VOICE.WAV")));
    EXPECT_EQ(report.indexes, std::vector<std::size_t>{5});
    ASSERT_EQ(report.items.size(), 2U) << "what proves to be no file of its type is not spoken of";
    EXPECT_EQ(report.items[1].name, QStringLiteral("NOTES.TXT"));
    EXPECT_EQ(report.items[1].firstSector, 60U);
    EXPECT_EQ(report.tally.saved, 2U);
    EXPECT_TRUE(report.toldFailed.empty());
    EXPECT_EQ(job.progress().done, 3U);
    EXPECT_EQ(job.progress().share, job.total());
    const QByteArray html = contentsOf(report.written.html);
    EXPECT_TRUE(html.contains("NOTES.TXT"));
    EXPECT_EQ(html.count("<img "), 1);
}

TEST_F(SaveJobTest, WhatOnlyTheCardTellsOf_ComesAgainWhereItWasCancelledOrFailed) {
    SaveJob cancelled(withToldFiles(request({{5, item("a.WAV", {10, 50})}})));
    medium.beforeRead = [&](std::uint64_t read) {
        if (read == 5) {
            cancelled.cancel();
        }
    };
    cancelled.run();
    EXPECT_EQ(cancelled.report().toldFailed.size(), 2U);
    EXPECT_EQ(cancelled.report().tally.failed, 0U);
    EXPECT_EQ(files("DOCS"), QStringList());
    medium.beforeRead = nullptr;

    medium.badForEver = {60, 61, 62, 63};
    SaveJob failing(withToldFiles(request({})));
    failing.run();
    ASSERT_FALSE(failing.report().toldFailed.empty());
    EXPECT_EQ(failing.report().toldFailed.front()->name, QStringLiteral("NOTES.TXT"));
    EXPECT_EQ(failing.report().tally.failed, 1U);
}

// A sound whose second half lies in front of its first.
class MendedJob : public SaveJobTest {
  protected:
    MendedJob() {
        medium = ScriptedMedium(200);
        put(50, m_file.left(kHalf));
        put(20, m_file.mid(kHalf));
    }
    void put(std::size_t sector, const QByteArray& bytes) {
        for (qsizetype at = 0; at < bytes.size(); at += 512) {
            medium.put(sector++, bytes.mid(at, 512).toStdString());
        }
    }
    SaveReport saved(Mend mend) {
        const auto mended = std::make_shared<MendedItems>();
        mended->add(QStringLiteral("WAV"), 50, std::move(mend));
        SaveRequest wish = request({{0, item("a.WAV", {50, 60})}});
        wish.mended = mended;
        wish.report = ReportHead{};
        SaveJob job(std::move(wish));
        job.run();
        return job.report();
    }
    Mend inPieces(MendKind kind) const {
        Mend mend;
        mend.kind = kind;
        mend.assembly = {{{50, 60}, {20, 28}}, 9000, AssemblyProof::Proved, false};
        mend.twin.data = {0, 9000};
        return mend;
    }

    static constexpr qsizetype kHalf = 5120;
    const QByteArray m_file = wavFile(9000);
};

TEST_F(MendedJob, WhatIsProved_IsSavedInPlaceOfTheItem_AndItsRunsAreReported) {
    const SaveReport report = saved(inPieces(MendKind::Completed));
    EXPECT_EQ(contentsOf(folder.filePath("WAV/a.WAV")), m_file);
    EXPECT_EQ(files("WAV"), QStringList{"a.WAV"});
    ASSERT_EQ(report.items.size(), 1U);
    EXPECT_EQ(report.items[0].outcome.verdict, Verdict::Complete);
    EXPECT_TRUE(contentsOf(report.written.csv).contains(",2,50+10 20+8,"))
        << contentsOf(report.written.csv).constData();
    EXPECT_TRUE(contentsOf(report.written.html).contains("50 to 60, 20 to 28"));
}

TEST_F(MendedJob, WhatIsOnlyLikely_LiesBesideTheItem_WithARowOfItsOwn) {
    const SaveReport report = saved(inPieces(MendKind::PutTogether));
    EXPECT_EQ(files("WAV"), (QStringList{"a put together.WAV", "a.WAV"}));
    EXPECT_EQ(contentsOf(folder.filePath("WAV/a put together.WAV")), m_file);
    EXPECT_NE(contentsOf(folder.filePath("WAV/a.WAV")), m_file);
    EXPECT_EQ(report.indexes, std::vector<std::size_t>{0});
    ASSERT_EQ(report.items.size(), 2U);
    EXPECT_EQ(report.items[1].name, QStringLiteral("a put together.WAV"));
    EXPECT_NE(report.items[1].outcome.verdict, Verdict::Complete) << "not proved";
    EXPECT_EQ(report.items[1].outcome.sha256, Sha256::of(m_file));
    EXPECT_EQ(report.tally.saved, 2U);
    EXPECT_EQ(report.tally.mended, 1U);
    const QByteArray csv = contentsOf(report.written.csv);
    EXPECT_TRUE(csv.contains(",2,50+10 20+8,put together")) << csv.constData();
    EXPECT_TRUE(contentsOf(report.written.html).contains("Put together from 2 pieces: please look"));
}

TEST_F(MendedJob, ARepairedMovie_LiesBesideTheItem_HeadAndIndexAroundItsBytes) {
    Mend mend;
    mend.kind = MendKind::Repaired;
    mend.twin = {QByteArray("HEAD"), {100, 4000}, QByteArray("INDEX")};
    saved(std::move(mend));
    EXPECT_EQ(contentsOf(folder.filePath("WAV/a repaired.WAV")), "HEAD" + m_file.mid(100, 3900) + "INDEX");
}

TEST_F(SaveJobTest, WhatWasSavedIntoAFolderThatWent_IsNotSaved) {
    SaveRequest wish = withToldFiles(request({{4, item("a.WAV", {10, 50})}, {2, item("b.WAV", {10, 50})}}));
    wish.report = ReportHead{};
    SaveJob job(std::move(wish));
    medium.beforeRead = [&](std::uint64_t) {
        if (job.progress().done == 3) {
            folder.remove();
        }
    };
    job.run();
    const SaveReport& report = job.report();
    EXPECT_EQ(report.tally.saved, 0U);
    EXPECT_EQ(report.tally.duplicates, 0U);
    EXPECT_EQ(report.tally.failed, report.items.size());
    ASSERT_GE(report.items.size(), 3U);
    for (const ReportedItem& reported : report.items) {
        EXPECT_FALSE(reported.outcome.saved);
        EXPECT_TRUE(reported.outcome.path.isEmpty());
        EXPECT_FALSE(reported.outcome.error.isEmpty());
    }
    for (std::size_t place = 0; place < 3; ++place) {
        EXPECT_TRUE(report.items[place].outcome.error.contains(QStringLiteral("is no longer there")))
            << report.items[place].outcome.error.toStdString();
    }
    EXPECT_EQ(report.toldFailed.size(), 2U) << "to be saved elsewhere";
    EXPECT_FALSE(QFileInfo::exists(folder.path())) << "not made anew";
}

TEST_F(SaveJobTest, WhatWasSavedIntoAFolderThatWentBehindTheLastItem_IsNotSaved) {
    const auto flushesOf = [&](QTemporaryDir& into, int gone) {
        SaveRequest wish = request({{4, item("a.WAV", {10, 50})}, {2, item("b.QQQ", {60, 62})}});
        wish.saver = std::make_shared<const ItemSaver>(into.path());
        wish.destination = into.path();
        wish.report = ReportHead{};
        SaveJob job(std::move(wish));
        const int before = test::flushesSoFar();
        test::beforeFlush(gone, [&into] { into.remove(); });
        job.run();
        test::beforeFlush(0, {});
        const SaveTally& tally = job.report().tally;
        EXPECT_EQ(tally.saved + tally.failed, 2U);
        EXPECT_EQ(tally.saved, QFileInfo::exists(into.path()) ? 2U : 0U) << "gone before flush " << gone;
        EXPECT_EQ(tally.failedBeside(tally.failures.size()), 0U);
        for (const ReportedItem& reported : job.report().items) {
            EXPECT_EQ(reported.outcome.saved, tally.saved != 0);
        }
        return test::flushesSoFar() - before;
    };
    QTemporaryDir undisturbed;
    const int all = flushesOf(undisturbed, 1000);
    ASSERT_GE(all, 2 + 2 + 2) << "files, folders, and the page and table of the report";
    for (int gone = 2; gone < all; ++gone) {
        QTemporaryDir into;
        flushesOf(into, gone);
        EXPECT_FALSE(QFileInfo::exists(into.path()));
    }
}

TEST_F(SaveJobTest, WithoutAReport_NoneIsWritten) {
    SaveJob job(request({{0, item("a.WAV", {10, 50})}}));
    job.run();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

TEST_F(SaveJobTest, Cancel_GivesUpTheItemAtHandAndLeavesNothingOfIt) {
    SaveJob job(
        request({{0, item("a.WAV", {10, 50})}, {1, item("b.QQQ", {60, 80})}, {2, item("c.QQQ", {80, 90})}}));
    medium.beforeRead = [&](std::uint64_t read) {
        if (read == 45) {  // the first took forty: in the midst of the second
            job.cancel();
        }
    };
    job.run();
    EXPECT_TRUE(job.isCancelled());
    EXPECT_EQ(job.report().tally.saved, 1U);
    EXPECT_EQ(job.report().tally.failed, 0U);
    EXPECT_EQ(job.report().items.size(), 1U);
    EXPECT_EQ(files("WAV"), QStringList{"a.WAV"});
    EXPECT_EQ(files("QQQ"), QStringList());
    EXPECT_LT(medium.reads, 65U);
}

TEST_F(SaveJobTest, Skip_GivesUpTheItemAtHandOnly) {
    SaveJob job(
        request({{0, item("a.WAV", {10, 50})}, {1, item("b.QQQ", {60, 80})}, {2, item("c.QQQ", {80, 90})}}));
    medium.badForEver = {62};
    std::uint64_t refused = 0;
    medium.beforeRead = [&](std::uint64_t read) {
        if (read == 45) {
            refused = job.progress().refused;
            job.skip(0);  // is saved already
            job.skip(1);
        }
    };
    job.run();
    EXPECT_FALSE(job.isCancelled());
    EXPECT_EQ(refused, 1U);
    EXPECT_EQ(job.report().tally.saved, 2U);
    EXPECT_EQ(job.report().tally.failures, QStringList{"b.QQQ: Skipped"});
    EXPECT_EQ(job.report().items.size(), 3U);
    EXPECT_EQ(files("QQQ"), QStringList{"c.QQQ"});
}

TEST_F(SaveJobTest, WithoutAMedium_NothingIsSaid) {
    SaveRequest wish = request({{0, item("a.WAV", {10, 50})}});
    wish.openMedium = [] { return nullptr; };
    wish.report = ReportHead{};
    SaveJob job(std::move(wish));
    job.run();
    EXPECT_TRUE(job.isFinished());
    EXPECT_FALSE(job.report().mediumOpened);
    EXPECT_TRUE(job.report().items.empty());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

TEST_F(SaveJobTest, OneSaverOverSeveralJobs_KnowsWhatIsSaved) {
    SaveRequest first = request({{0, item("a.WAV", {10, 50})}});
    SaveRequest second = request({{0, item("a.WAV", {10, 50})}});
    second.saver = first.saver;
    SaveJob one(std::move(first));
    one.run();
    SaveJob two(std::move(second));
    two.run();
    EXPECT_EQ(two.report().tally.duplicates, 1U);
    EXPECT_EQ(files("WAV"), QStringList{"a.WAV"});
}

TEST(SavedMarks, SavedAndLeftOutNeedNoWorry_FailedDo) {
    SavedMarks marks;
    SaveOutcome saved, failed, small;
    saved.saved = true;
    small.leftOut = LeftOut::TooSmall;
    marks.note(0, saved);
    marks.note(1, failed);
    marks.note(2, small);
    EXPECT_EQ(marks.saved(), 1U);
    EXPECT_EQ(marks.settled(), 2U);
    marks.note(2, saved);
    marks.note(0, small);
    EXPECT_EQ(marks.saved(), 2U);
    EXPECT_EQ(marks.settled(), 2U);
    EXPECT_TRUE(marks.isSaved(0));
    EXPECT_FALSE(marks.isSaved(1));
    SaveOutcome inPart = saved;
    inPart.mediumGone = true;
    marks.note(3, inPart);
    EXPECT_FALSE(marks.isSaved(3)) << "put back in, the medium gives the rest";
    marks.clear();
    EXPECT_EQ(marks.settled(), 0U);
}

TEST(SaveSummary, SaysEverythingOnce) {
    SaveSummary summary;
    summary.destination = QStringLiteral("/out");
    summary.tally.saved = 1204;
    summary.tally.complete = 1200;
    summary.tally.cutOff = 3;
    summary.tally.unknownLength = 1;
    summary.tally.duplicates = 1;
    summary.tally.failed = 7;
    summary.tally.failures = {"a: full", "b: full", "c: full", "d: full", "e: full", "f: full", "g: full"};
    summary.report = QStringLiteral("/out/Recovery report (2).html");
    EXPECT_EQ(summaryHeadline(summary), QStringLiteral("1,204 files were saved."));
    EXPECT_EQ(
        summaryDetails(summary),
        QStringLiteral("Of these: 1,200 complete, 3 cut off, 1 of unknown length.\n"
                       "They are in /out.\n"
                       "Not written again: 1 item, the same contents are saved already.\n"
                       "7 items could not be saved:\n   a: full\n   b: full\n   c: full\n   d: full\n"
                       "   e: full\n   and 2 more\n"
                       "“Recovery report (2).html” in the destination folder tells more of each file."));
    summary.tally = {};
    summary.report.clear();
    summary.cancelled = true;
    EXPECT_EQ(summaryHeadline(summary), QStringLiteral("Nothing was saved."));
    EXPECT_EQ(summaryDetails(summary), QStringLiteral("The rest was not saved because you cancelled."));
}

}  // namespace
}  // namespace vantor

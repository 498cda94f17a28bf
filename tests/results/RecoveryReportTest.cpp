// The report says what happened, to people and to machines, and runs nothing.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "results/RecoveryReport.h"
#include "tests/results/Files.h"

namespace vantor {
namespace {

ReportHead head() {
    ReportHead h;
    h.medium = "/dev/sdb <1> & \"more\"";
    h.sectors = 1000;
    h.mode = "photos";
    return h;
}

std::vector<ReportedItem> items() {
    ReportedItem saved{"a,\"b\".JPG", "JPG", 4, 40, {}};
    saved.outcome.saved = true;
    saved.outcome.path = "/out/JPG/a b:100%.JPG";
    saved.outcome.bytes = 18432;
    saved.outcome.verdict = Verdict::Complete;
    saved.outcome.taken = CivilTime{2026, 5, 17, 14, 3, 22, true};
    saved.outcome.width = 64;
    saved.outcome.height = 48;
    saved.outcome.sha256 = QByteArray(32, '\xAB');
    ReportedItem failed{"<script>alert(1)</script>", "J&G", 50, 60, {}};
    failed.outcome.error = "No <room>";
    return {saved, failed};
}

}  // namespace

TEST(RecoveryReport, TableForMachines) {
    const QList<QByteArray> lines = reportCsv(head(), items(), "/out").split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[0].startsWith("name,type,medium,first_sector,end_sector,bytes,sha256,soundness,"));
    EXPECT_EQ(lines[1], "\"a,\"\"b\"\".JPG\",\"JPG\",\"/dev/sdb <1> & \"\"more\"\"\",4,40,18432," +
                            QByteArray("ab").repeated(32) +
                            ",complete,yes,0,2026-05-17 14:03:22 UTC,64,48,saved,\"JPG/a b:100%.JPG\"\r");
    EXPECT_TRUE(lines[2].endsWith(",failed,\"No <room>\"\r"));
}

TEST(RecoveryReport, PageEscapesEverything) {
    const QByteArray page = reportHtml(head(), items(), "/out");
    EXPECT_FALSE(page.contains("<script"));
    EXPECT_TRUE(page.contains("&lt;script&gt;alert(1)"));
    EXPECT_TRUE(page.contains("/dev/sdb &lt;1&gt; &amp; &quot;more&quot;"));
    EXPECT_TRUE(page.contains("No &lt;room&gt;"));
    EXPECT_TRUE(page.contains("<td>J&amp;G</td>"));
    EXPECT_TRUE(page.contains("href=\"./JPG/a%20b%3A100%25.JPG\""));
    EXPECT_TRUE(page.contains("64 × 48"));
    EXPECT_FALSE(page.contains("<img"));
}

TEST(RecoveryReport, ThumbnailsAreWithinThePage) {
    const auto thumbnail = [](const ReportedItem&) { return QByteArray("\xFF\xD8picture"); };
    const QByteArray page = reportHtml(head(), items(), "/out", thumbnail);
    EXPECT_EQ(page.count("<img"), 1) << "none for what was not saved";
    EXPECT_TRUE(page.contains("data:image/jpeg;base64," + QByteArray("\xFF\xD8picture").toBase64()));
}

TEST(RecoveryReport, ReplacesNothing) {
    const QTemporaryDir folder;
    const WrittenReport first = writeReport(folder.path(), head(), items());
    const WrittenReport second = writeReport(folder.path(), head(), {});
    EXPECT_EQ(first.html, folder.filePath("Recovery report.html"));
    EXPECT_EQ(first.csv, folder.filePath("Recovery report.csv"));
    EXPECT_EQ(second.html, folder.filePath("Recovery report (2).html"));
    EXPECT_EQ(contentsOf(first.csv), reportCsv(head(), items(), folder.path()));
    EXPECT_FALSE(writeReport("/nowhere/at/all", head(), {}).error.isEmpty());
}

}  // namespace vantor

// The report says what happened, to people and to machines, and runs nothing.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "results/Mend.h"
#include "saving/RecoveryReport.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

ReportHead head() {
    ReportHead h;
    h.medium = "/dev/sdb <1> & \"more\"";
    h.sectors = 1000;
    h.mode = "photos";
    return h;
}

class RecoveryReport : public testing::Test {
  protected:
    std::vector<ReportedItem> items() const {
        ReportedItem saved{"a,\"b\".JPG", "JPG", 4, 40, {}};
        saved.outcome.saved = true;
        saved.outcome.path = folder.filePath("JPG/a b:100%.JPG");
        saved.outcome.bytes = 18432;
        saved.outcome.verdict = Verdict::Complete;
        saved.outcome.checked = contentChecked;
        saved.outcome.taken = CivilTime{2026, 5, 17, 14, 3, 22, true};
        saved.outcome.width = 64;
        saved.outcome.height = 48;
        saved.outcome.sha256 = QByteArray(32, '\xAB');
        ReportedItem failed{"<script>alert(1)</script>", "J&G", 50, 60, {}};
        failed.outcome.error = "No <room>";
        return {saved, failed};
    }
    QByteArray page(const ReportThumbnail& thumbnail = {}) const {
        return contentsOf(writeReport(folder.path(), head(), items(), thumbnail).html);
    }
    QByteArray table() const { return contentsOf(writeReport(folder.path(), head(), items()).csv); }

    bool contentChecked = true;
    const QTemporaryDir folder;
};

}  // namespace

TEST_F(RecoveryReport, TableForMachines) {
    const QList<QByteArray> lines = table().split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[0].startsWith("name,type,medium,first_sector,end_sector,bytes,sha256,soundness,"));
    EXPECT_EQ(lines[1],
              "\"a,\"\"b\"\".JPG\",\"JPG\",\"/dev/sdb <1> & \"\"more\"\"\",4,40,18432," +
                  QByteArray("ab").repeated(32) +
                  ",complete,yes,0,2026-05-17 14:03:22 UTC,64,48,saved,\"JPG/a b:100%.JPG\",yes,,,,1,,\r");
    EXPECT_TRUE(lines[2].endsWith(",failed,\"No <room>\",no,,,,1,,\r"));
}

TEST_F(RecoveryReport, TellsWhatTheCardTold) {
    CardFile file;
    file.folder = "DCIM/1<b>";
    file.name = "IMG_0412.JPG";
    file.state = FileState::Deleted;
    file.modified = QDateTime(QDate(2026, 5, 17), QTime(14, 3, 22)).toSecsSinceEpoch();
    std::vector<ReportedItem> told = items();
    told[0].outcome.original = std::make_shared<const CardFile>(file);
    told[0].outcome.pieces = 3;
    told[0].outcome.runs = {{1200, 1264}, {2048, 2060}, {90, 91}};
    const WrittenReport written = writeReport(folder.path(), head(), told);
    EXPECT_TRUE(contentsOf(written.csv)
                    .split('\n')[1]
                    .endsWith(",\"DCIM/1<b>/IMG_0412.JPG\",deleted,2026-05-17 14:03:22,3,1200+64 2048+12 "
                              "90+1,\r"));
    const QByteArray html = contentsOf(written.html);
    EXPECT_TRUE(html.contains("DCIM/1&lt;b&gt;/IMG_0412.JPG (deleted, changed 2026-05-17 14:03:22)"));
    EXPECT_TRUE(html.contains("put together from 3 pieces"));
    told[0].outcome.mend = std::make_shared<const Mend>();
    const WrittenReport mended = writeReport(folder.path(), head(), told);
    EXPECT_TRUE(contentsOf(mended.csv).split('\n')[1].endsWith(",put together\r"));
    EXPECT_TRUE(contentsOf(mended.html).contains("please look"));
}

TEST_F(RecoveryReport, NamesSayNothingToATerminal) {
    CardFile file;
    file.folder = QString::fromUtf8("D\x1b[31m");
    file.name = QString::fromUtf8(
        "a\xc2\x9b"
        "2J\nb\xe2\x80\x8d.JPG");
    std::vector<ReportedItem> told = items();
    told[0].outcome.original = std::make_shared<const CardFile>(file);
    told[1].outcome.error = "No \a";
    ReportHead named = head();
    named.medium = "card\x1b]0;x\a.img";
    const WrittenReport written = writeReport(folder.path(), named, told);
    for (const QString& path : {written.csv, written.html}) {
        const QString text = QString::fromUtf8(contentsOf(path));
        EXPECT_TRUE(text.contains(QString::fromUtf8("D\\u001b[31m/a\\u009b2J\\u000ab\xe2\x80\x8d.JPG")));
        EXPECT_TRUE(text.contains("card\\u001b]0;x\\u0007.img"));
        EXPECT_TRUE(text.contains("No \\u0007"));
        for (const QChar c : text) {
            EXPECT_TRUE(c == u'\n' || c == u'\r' || c.category() != QChar::Other_Control)
                << static_cast<int>(c.unicode());
        }
    }
}

TEST_F(RecoveryReport, FilesOfWhichOnlyLengthsWereFollowed_AreSaidToEndWhereTheySay) {
    EXPECT_TRUE(page().contains("<span class=\"complete\">complete</span>"));
    EXPECT_FALSE(page().contains("content not checked"));
    contentChecked = false;
    EXPECT_TRUE(page().contains("<span class=\"unchecked\">ends where it says, content not checked</span>"));
    EXPECT_TRUE(table().split('\n')[1].endsWith(",no,,,,1,,\r"));
    EXPECT_TRUE(table().contains(",complete,yes,"));  // the words for machines stay
}

TEST_F(RecoveryReport, PageEscapesEverything) {
    const QByteArray html = page();
    EXPECT_FALSE(html.contains("<script"));
    EXPECT_TRUE(html.contains("&lt;script&gt;alert(1)"));
    EXPECT_TRUE(html.contains("/dev/sdb &lt;1&gt; &amp; &quot;more&quot;"));
    EXPECT_TRUE(html.contains("No &lt;room&gt;"));
    EXPECT_TRUE(html.contains("<td>J&amp;G</td>"));
    EXPECT_TRUE(html.contains("href=\"./JPG/a%20b%3A100%25.JPG\""));
    EXPECT_TRUE(html.contains("64 × 48"));
    EXPECT_FALSE(html.contains("<img"));
}

TEST_F(RecoveryReport, ThumbnailsAreWithinThePage) {
    const auto thumbnail = [](const ReportedItem&) { return QByteArray("\xFF\xD8picture"); };
    const QByteArray html = page(thumbnail);
    EXPECT_EQ(html.count("<img"), 1) << "none for what was not saved";
    EXPECT_TRUE(html.contains("data:image/jpeg;base64," + QByteArray("\xFF\xD8picture").toBase64()));
}

TEST_F(RecoveryReport, ReplacesNothing) {
    const WrittenReport first = writeReport(folder.path(), head(), items());
    const WrittenReport second = writeReport(folder.path(), head(), {});
    EXPECT_EQ(first.html, folder.filePath("Recovery report.html"));
    EXPECT_EQ(first.csv, folder.filePath("Recovery report.csv"));
    EXPECT_EQ(second.html, folder.filePath("Recovery report (2).html")) << "nobody knows when";
    EXPECT_EQ(contentsOf(first.csv), table());
    EXPECT_FALSE(writeReport("/nowhere/at/all", head(), {}).error.isEmpty());
}

TEST_F(RecoveryReport, BesideAnother_ItsNameTellsWhen) {
    ReportHead when = head();
    when.ended = QDateTime({2026, 11, 22}, {14, 5, 33});
    EXPECT_EQ(writeReport(folder.path(), when, {}).html, folder.filePath("Recovery report.html"));
    const QString dated = folder.filePath("Recovery report 2026-11-22 14.05.33");
    const WrittenReport second = writeReport(folder.path(), when, {});
    EXPECT_EQ(second.html, dated + ".html");
    EXPECT_EQ(second.csv, dated + ".csv");
    EXPECT_EQ(writeReport(folder.path(), when, {}).html, dated + " (2).html") << "in the same second";
    ASSERT_TRUE(QFile::remove(folder.filePath("Recovery report.html")));
    when.ended = when.ended.addSecs(1);
    EXPECT_EQ(writeReport(folder.path(), when, {}).html,
              folder.filePath("Recovery report 2026-11-22 14.05.34.html"))
        << "while either of the two is there";
}

}  // namespace vantor

// The command from outside: what it prints, saves and exits with.
#include <gtest/gtest.h>
#include <signal.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

#include "tests/cli/CommandRun.h"
#include "tests/cli/SmallCard.h"
#include "tests/support/Files.h"

namespace vantor {
namespace {

QByteArray sha256Of(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex();
}

}  // namespace

TEST(Command, HelpAndVersion) {
    const CommandRun help = runCommand({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    for (const char* option :
         {"--mode", "--types", "--range", "--no-thorough", "--catalogue", "--save", "--list-json"}) {
        EXPECT_TRUE(help.out.contains(option)) << option;
    }
    const CommandRun version = runCommand({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_TRUE(version.out.startsWith("vantor-recovery-cli "));
}

TEST(Command, ListsAndSavesPhotos) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    const CommandRun run =
        runCommand({"--catalogue", writeCatalogues(folder, record("JPG", "FFD8FFE0")), "--list-json",
                    "--no-thorough", "--save", folder.filePath("out"), image});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    const auto lines = run.json();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0]["pass"], "GEN");
    EXPECT_EQ(lines[0]["name"], "GND00001.JPG");
    EXPECT_EQ(lines[0]["first_sector"], 4);
    EXPECT_EQ(lines[0]["end_sector"], 40);
    EXPECT_EQ(lines[0]["bytes"], 36 * 512);
    EXPECT_EQ(lines[2]["end"], "completed");
    EXPECT_EQ(lines[2]["alerts"].toArray().size(), 0);
    EXPECT_EQ(filesUnder(folder.filePath("out")), QStringList({"JPG/GND00001.JPG", "JPG/GND00002.JPG"}));
    EXPECT_EQ(sha256Of(folder.filePath("out/JPG/GND00001.JPG")), lines[0]["sha256"].toString().toLatin1());
}

TEST(Command, SavedRawItemsAreTheirSectors) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    const CommandRun run =
        runCommand({"--mode", "rawfile", "--catalogue",
                    writeCatalogues(folder, {}, record("PDF", "255044462D") + record("JPG", "FFD8FFE0")),
                    "--types", "PDF", "--list-json", "--save", folder.filePath("out"), image});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    const auto lines = run.json();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0]["name"], "PDF00001.PDF");
    EXPECT_EQ(lines[0]["uid"], "PDF00001.PDF");
    EXPECT_EQ(lines[0]["first_sector"], 20);
    EXPECT_EQ(lines[0]["end_sector"], 64);
    EXPECT_EQ(lines[1]["rows"].toArray()[0].toObject()["count"], 1);
    EXPECT_EQ(sha256Of(folder.filePath("out/PDF/PDF00001.PDF")), lines[0]["sha256"].toString().toLatin1());
}

TEST(Command, NothingIsEverOverwritten) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    const QStringList arguments{"--catalogue",          writeCatalogues(folder, record("JPG", "FFD8FFE0")),
                                "--no-thorough",        "--save",
                                folder.filePath("out"), image};
    EXPECT_EQ(runCommand(arguments).exitCode, 0);
    // Somebody else's file bears a name by now; the other file is known by its bytes.
    const QString first = folder.filePath("out/JPG/GND00001.JPG");
    QFile other(first);
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("mine");
    other.close();
    const CommandRun again = runCommand(arguments);
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_EQ(filesUnder(folder.filePath("out")),
              QStringList({"JPG/GND00001 (2).JPG", "JPG/GND00001.JPG", "JPG/GND00002.JPG"}))
        << again.out.constData();
    EXPECT_EQ(contentsOf(first), "mine");
}

TEST(Command, TypeNamesNeverLeadOutOfTheDestination) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    const CommandRun run =
        runCommand({"--mode", "rawfile", "--catalogue",
                    writeCatalogues(
                        folder, {},
                        record("x..", "255044462D") + record("A/B", "FFD8FFE0") + record("/etc", "7A7A7A7A")),
                    "--save", folder.filePath("out/inner"), image});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    const QStringList all = filesUnder(folder.path());
    EXPECT_GE(all.size(), 6);
    for (const QString& file : all) {
        EXPECT_TRUE(file.startsWith("out/inner/") || file.startsWith("catalogue/") || file == "card.img")
            << file.toStdString();
    }
}

TEST(Command, APresetStandsForItsTypes) {
    const QTemporaryDir folder;
    const QString catalogue =
        writeCatalogues(folder, {}, record("JPG", "FFD8FF") + record("PDF", "25504446"));
    const auto found = [&](const QString& types) {
        return runCommand({"--mode", "rawfile", "--types", types, "--catalogue", catalogue, "--list-json",
                           writeImage(folder)});
    };
    const CommandRun office = found("@office");
    EXPECT_EQ(office.exitCode, 0);
    ASSERT_EQ(office.json().size(), 2) << office.out.constData();
    EXPECT_EQ(office.json()[0]["name"], "PDF00001.PDF");
    EXPECT_EQ(found("@office,JPG").json().size(), 4);
    EXPECT_EQ(found("@everything").json().size(), 4);
    for (const QString unknown : {"@recorder", "@nosuchpreset", "@"}) {
        const CommandRun run = found(unknown);
        EXPECT_EQ(run.exitCode, 2) << unknown.toStdString();
        EXPECT_TRUE(run.err.contains(unknown.toLatin1()));
    }
}

TEST(Command, ListsTheTypesOfAMode) {
    const QTemporaryDir folder;
    const QString catalogue =
        writeCatalogues(folder, {}, record("PDF", "25504446") + record("JPG", "FFD8FF"));
    const CommandRun run = runCommand({"--list-types", "--mode", "rawfile", "--catalogue", catalogue});
    EXPECT_EQ(run.exitCode, 0);
    QStringList types;
    for (const QByteArray& line : run.out.trimmed().split('\n')) {
        types << QString::fromUtf8(line.left(line.indexOf(' ')));
    }
    EXPECT_EQ(types.join(' '), "@photos @office @phone @everything JPG PDF");
    EXPECT_TRUE(run.out.contains("Office documents"));
    const auto json =
        runCommand({"--list-types", "--mode", "rawfile", "--catalogue", catalogue, "--list-json"}).json();
    ASSERT_EQ(json.size(), 6);
    EXPECT_EQ(json[1]["type"], "@office");
    EXPECT_EQ(json[5]["type"], "PDF");
    EXPECT_EQ(json[5]["description"], "x");
}

TEST(Command, QuietSaysNothing_ButWhatWentWrong) {
    const QTemporaryDir folder;
    const QString catalogue = writeCatalogues(folder, record("JPG", "FFD8FF"));
    const QString image = writeImage(folder), out = folder.filePath("out");
    const QStringList plain{"--catalogue", catalogue, "--save", out, "--report", image};
    const CommandRun loud = runCommand(plain);
    EXPECT_TRUE(loud.out.contains("Report:"));
    QDir(out).removeRecursively();
    const CommandRun quiet = runCommand(QStringList{"--quiet"} + plain);
    EXPECT_EQ(quiet.exitCode, loud.exitCode);
    EXPECT_EQ(quiet.out, QByteArray());
    EXPECT_EQ(quiet.err, loud.err);
    EXPECT_FALSE(QDir(out).isEmpty()) << "it did what it was told";
    EXPECT_EQ(runCommand({"-q", "--catalogue", catalogue, "--list-json", image}).json().size(), 2 * 2 + 1)
        << "two in each pass, and the end";
    EXPECT_FALSE(runCommand({"-q", folder.filePath("absent")}).err.isEmpty());
}

TEST(Command, CompletedSearchSaysNothingOfItsEnd) {
    const QTemporaryDir folder;
    const CommandRun run =
        runCommand({"--catalogue", writeCatalogues(folder, record("JPG", "FFD8FFE0")), writeImage(folder)});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
}

TEST(Command, TableHasTheUnitsAndSeparatorsOfTheWindow) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder, "card.img", 4000);
    const CommandRun run = runCommand(
        {"--no-thorough", "--catalogue", writeCatalogues(folder, record("JPG", "FFD8FFE0")), image});
    EXPECT_TRUE(run.out.contains("sectors 4 to 40  18.4 kB\n")) << run.out.constData();
    EXPECT_TRUE(run.out.contains("sectors 40 to 1,993  999.9 kB\n")) << run.out.constData();
    EXPECT_TRUE(run.out.contains("2 found: 2 JPG\n")) << run.out.constData();
}

// Ctrl-C, a request to end, and a terminal that is closed.
class CommandStopped : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(BySignal, CommandStopped, testing::Values(SIGINT, SIGTERM, SIGHUP));

TEST_P(CommandStopped, PublishesAndSavesWhatWasFound) {
    const QTemporaryDir folder;
    // Sparse and large enough that the scan is still running when the signal comes.
    const QString image = writeImage(folder);
    ASSERT_EQ(::truncate(image.toLocal8Bit().constData(), off_t{1} << 42), 0);
    QProcess process;
    process.start(VANTOR_CLI, {"--catalogue", writeCatalogues(folder, record("JPG", "FFD8FFE0")),
                               "--list-json", "--save", folder.filePath("out"), "--report", image});
    ASSERT_TRUE(process.waitForStarted());
    while (!QFile::exists(folder.filePath("out/JPG/GND00001.JPG")) && !process.waitForFinished(5)) {
    }
    ASSERT_EQ(process.state(), QProcess::Running) << process.readAllStandardError().constData();
    ::kill(static_cast<pid_t>(process.processId()), GetParam());
    ASSERT_TRUE(process.waitForFinished(600000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 3);
    CommandRun run;
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    const auto lines = run.json();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines.last()["end"], "stopped");
    EXPECT_TRUE(run.err.contains("The search was stopped at ")) << run.err.constData();
    const QRegularExpression rest(QStringLiteral("To go on from there: --range [0-9]+:8589934592\n"));
    EXPECT_TRUE(rest.match(QString::fromUtf8(run.err)).hasMatch()) << run.err.constData();
    EXPECT_EQ(
        filesUnder(folder.filePath("out")),
        QStringList({"JPG/GND00001.JPG", "JPG/GND00002.JPG", "Recovery report.csv", "Recovery report.html"}));
    const QByteArray page = contentsOf(folder.filePath("out/Recovery report.html"));
    EXPECT_TRUE(page.contains("The search was stopped at ")) << page.constData();
}

TEST(Command, MediumIsNeverWritten) {
    const QTemporaryDir folder;
    const QString image = writeImage(folder);
    const QByteArray before = sha256Of(image);
    ASSERT_TRUE(QFile::setPermissions(image, QFile::ReadOwner));
    EXPECT_EQ(runCommand({"--save", folder.filePath("out"), image}).exitCode, 0);
    EXPECT_EQ(sha256Of(image), before);
}

TEST(Command, ListsMedia) {
    const CommandRun table = runCommand({"--list-media"});
    EXPECT_EQ(table.exitCode, 0);
    EXPECT_FALSE(table.out.isEmpty());
    const CommandRun json = runCommand({"--list-media", "--list-json"});
    EXPECT_EQ(json.exitCode, 0);
    for (const QJsonObject& medium : json.json()) {
        EXPECT_FALSE(medium["identifier"].toString().isEmpty());
    }
    EXPECT_EQ(runCommand({"--list-media", "card.img"}).exitCode, 2);
}

TEST(Command, ErasedCard_IsToldAndSearchedAllTheSame) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("erased.img");
    QFile image(path);
    ASSERT_TRUE(image.open(QIODevice::WriteOnly) && image.resize(8 << 20));
    const CommandRun erased = runCommand({path});
    EXPECT_EQ(erased.exitCode, 0);
    EXPECT_TRUE(erased.err.contains("reads as erased")) << erased.err.constData();
    EXPECT_TRUE(erased.out.contains("0 found")) << erased.out.constData();
    for (qint64 at = 0; at < image.size(); at += 512) {
        ASSERT_TRUE(image.seek(at) && image.putChar('y'));
    }
    image.close();
    EXPECT_FALSE(runCommand({path}).err.contains("erased"));
    EXPECT_FALSE(runCommand({"--range", "0:100", path}).err.contains("erased"));
}

TEST(Command, ListsWhatTheDirectoriesOfTheSampleCardTell) {
    const CommandRun run = runCommand({"--list-files", VANTOR_SAMPLE_CARD});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    qsizetype systems = 0;
    qsizetype files = 0;
    for (const QJsonObject& line : run.json()) {
        systems += line.contains("file_system") ? 1 : 0;
        files += line["path"].toString().isEmpty() || line["bytes"].toInteger() == 0 ? 0 : 1;
    }
    EXPECT_EQ(systems, 1);
    EXPECT_GT(files, 5);
    EXPECT_EQ(runCommand({"--list-files"}).exitCode, 2);
    EXPECT_EQ(runCommand({"--list-files", "/nowhere.img"}).exitCode, 5);
}

TEST(Command, RecoversTheSampleCard) {
    const CommandRun photos = runCommand({"--list-json", VANTOR_SAMPLE_CARD});
    EXPECT_EQ(photos.exitCode, 0);
    EXPECT_GE(photos.json().size(), 40);
    const CommandRun files = runCommand({"--mode", "rawfile", "--list-json", VANTOR_SAMPLE_CARD});
    EXPECT_EQ(files.exitCode, 0);
    EXPECT_GE(files.json().size(), 100);
    const CommandRun videos = runCommand({"--mode", "video", "--list-json", VANTOR_SAMPLE_CARD});
    EXPECT_EQ(videos.exitCode, 0);
    EXPECT_GE(videos.json().size(), 8);
}

}  // namespace vantor
// Saving by the command: whole files, whatever happens to the run, the disk or the program.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QUrl>
#include <random>

#include "formats/Registry.h"
#include "tests/cli/CommandRun.h"
#include "tests/cli/Saved.h"

namespace vantor {
namespace {

struct SampleFile {
    QByteArray name, type, sha256, folder;
    int firstSector = 0;
    bool inOnePiece = false;
};

QList<SampleFile> cardFiles() {
    QList<SampleFile> files;
    const QList<QByteArray> lines = contentsOf(QStringLiteral(VANTOR_SAMPLE_LIST)).split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QList<QByteArray> fields = lines[i].split('\t');
        if (fields.size() >= 6) {
            files.append({fields[0], fields[1], fields[4], fields[5].mid(fields[5].lastIndexOf("; ") + 2),
                          fields[2].toInt(), fields[5].startsWith("in one piece")});
        }
    }
    return files;
}

const QStringList kModes{"photo", "video", "rawfile"};

// The checksums of all files that a run without any disturbance saves in the mode.
QSet<QByteArray> undisturbed(const QString& mode) {
    const QTemporaryDir folder;
    EXPECT_EQ(runCommand({"--mode", mode, "--save", folder.path(), VANTOR_SAMPLE_CARD}).exitCode, 0);
    return checksumsUnder(folder.path());
}

}  // namespace

TEST(SavingCommand, ReportLeadsToTheFilesOfAFolderThatWasNamedFromHere) {
    const QTemporaryDir folder;
    const QString here = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    const CommandRun run = runCommand({"--report", "--save", "out", VANTOR_SAMPLE_CARD});
    ASSERT_TRUE(QDir::setCurrent(here));
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QString page = QString::fromUtf8(contentsOf(folder.filePath("out/Recovery report.html")));
    static const QRegularExpression kLink("href=\"\\./([^\"]*)\"");
    int links = 0;
    for (auto link = kLink.globalMatch(page); link.hasNext(); ++links) {
        const QString target = QUrl::fromPercentEncoding(link.next().captured(1).toLatin1());
        EXPECT_TRUE(QFileInfo(folder.filePath("out/" + target)).isFile()) << target.toStdString();
    }
    EXPECT_GT(links, 10);
}

TEST(SavingCommand, FilesOfTheSampleCardComeBackToTheByte) {
    const QList<SampleFile> files = cardFiles();
    ASSERT_GT(files.size(), 80);
    QSet<QByteArray> saved;
    QHash<int, QSet<QByteArray>> typesAt;  // sector: the types that were found there
    for (const QString& mode : kModes) {
        const QTemporaryDir folder;
        const CommandRun run =
            runCommand({"--mode", mode, "--list-json", "--save", folder.path(), VANTOR_SAMPLE_CARD});
        ASSERT_EQ(run.exitCode, 0) << run.err.constData();
        saved += checksumsUnder(folder.path());
        for (const QJsonObject& item : run.json()) {
            const QByteArray name = item["name"].toString().toLatin1();
            typesAt[item["first_sector"].toInt()].insert(name.mid(name.lastIndexOf('.') + 1));
        }
    }
    int found = 0;
    for (const SampleFile& file : files) {
        const bool endIsTold = formatFor(file.type.toStdString()) != nullptr;
        if (!file.inOnePiece || !endIsTold || !typesAt[file.firstSector].contains(file.type)) {
            continue;
        }
        ++found;
        EXPECT_TRUE(saved.contains(file.sha256)) << file.name.constData();
    }
    EXPECT_GT(found, 80);
}

TEST(SavingCommand, PhotosOfTheSampleCardComeBackInTheirFoldersUnderTheirNames) {
    const QTemporaryDir folder;
    const CommandRun run = runCommand({"--save", folder.path(), VANTOR_SAMPLE_CARD});
    ASSERT_EQ(run.exitCode, 0) << run.err.constData();
    int photos = 0;
    for (const SampleFile& file : cardFiles()) {
        if (file.type == "JPG" && file.inOnePiece) {
            ++photos;
            const QByteArray path = file.folder + '/' + file.name;
            EXPECT_EQ(Sha256::of(contentsOf(folder.filePath(path))).toHex(), file.sha256) << path.constData();
        }
    }
    EXPECT_GT(photos, 20);
}

TEST(SavingCommand, NamesAndFoldersAreAsListedWhereTheUserWantsThat) {
    const QTemporaryDir folder;
    ASSERT_EQ(
        runCommand({"--names", "found", "--folders", "type", "--save", folder.path(), VANTOR_SAMPLE_CARD})
            .exitCode,
        0);
    EXPECT_TRUE(filesUnder(folder.path()).contains("JPG/GND00001.JPG"));
    EXPECT_FALSE(QDir(folder.filePath("DCIM")).exists());
}

TEST(SavingCommand, AsPublishedSavesExactlyWhatIsListed) {
    for (const QString& mode : kModes) {
        const QTemporaryDir folder;
        const CommandRun run = runCommand(
            {"--mode", mode, "--list-json", "--as-published", "--save", folder.path(), VANTOR_SAMPLE_CARD});
        ASSERT_EQ(run.exitCode, 0);
        QSet<QByteArray> listed;
        for (const QJsonObject& item : run.json()) {
            if (item.contains("sha256")) {
                listed.insert(item["sha256"].toString().toLatin1());
            }
        }
        EXPECT_FALSE(listed.isEmpty());
        EXPECT_EQ(checksumsUnder(folder.path()), listed) << mode.toStdString();
    }
}

TEST(SavingCommand, ListIsTheSameWhateverIsSaved) {
    const QTemporaryDir folder;
    const QByteArray plain = runCommand({"--list-json", VANTOR_SAMPLE_CARD}).out;
    const CommandRun saving =
        runCommand({"--list-json", "--save", folder.path(), "--report", "--by-date", VANTOR_SAMPLE_CARD});
    EXPECT_EQ(saving.out, plain);
}

TEST(SavingCommand, SummaryAndReportAgree) {
    const QTemporaryDir folder;
    const CommandRun run = runCommand({"--save", folder.path(), "--report", VANTOR_SAMPLE_CARD});
    ASSERT_EQ(run.exitCode, 0);
    const QByteArray csv = contentsOf(folder.filePath("Recovery report.csv"));
    const auto files = filesUnder(folder.path()).size() - 2;
    const auto saved = csv.count(",saved,");
    QSet<QByteArray> paths;  // the same bytes may stand under several names
    for (const QByteArray& line : csv.split('\n')) {
        for (const QByteArray result : {",saved,\"", ",duplicate,\""}) {
            if (const auto at = line.indexOf(result); at >= 0) {
                const auto begin = at + result.size();
                paths.insert(line.mid(begin, line.indexOf('"', begin) - begin));
            }
        }
    }
    EXPECT_EQ(paths.size(), files);
    EXPECT_TRUE(run.out.contains(QByteArray::number(saved) + " saved in ")) << run.out.right(400).constData();
    EXPECT_TRUE(run.out.contains(" complete"));
    EXPECT_TRUE(run.out.contains("Recovery report.html"));
    EXPECT_GT(contentsOf(folder.filePath("Recovery report.html")).count("<tr>"), files);
}

TEST(SavingCommand, AFolderThatSpeaksToTheTerminal_IsSpeltOut) {
    const QTemporaryDir folder;
    const CommandRun run = runCommand({"--range", "0:2000", "--report", "--save",
                                       folder.filePath(QStringLiteral("out\x1b[2J")), VANTOR_SAMPLE_CARD});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_TRUE(run.out.contains("saved in ") && run.out.contains("Report: ")) << run.out.constData();
    EXPECT_FALSE((run.out + run.err).contains('\x1b')) << run.out.constData();
}

TEST(SavingCommand, FiltersAndDates) {
    const QTemporaryDir folder;
    const QString dated = folder.filePath("dated"), large = folder.filePath("large");
    EXPECT_EQ(runCommand({"--save", dated, "--by-date", VANTOR_SAMPLE_CARD}).exitCode, 0);
    EXPECT_FALSE(QDir(dated + "/JPG").entryList({"20*"}, QDir::Dirs).isEmpty());
    const CommandRun filtered = runCommand({"--save", large, "--min-bytes", "100000", VANTOR_SAMPLE_CARD});
    EXPECT_TRUE(filtered.out.contains("left out: smaller than asked for"));
    const QStringList files = filesUnder(large);
    EXPECT_FALSE(files.isEmpty());
    EXPECT_LT(files.size(), filesUnder(dated).size());
    for (const QString& file : files) {
        EXPECT_GE(QFileInfo(large + u'/' + file).size(), 100000) << file.toStdString();
    }
    EXPECT_TRUE(runCommand({"--save", folder.filePath("none"), "--min-pixels", "100000", "--report",
                            VANTOR_SAMPLE_CARD})
                    .out.contains("left out: smaller than asked for"));
}

TEST(SavingCommand, WhatIsCertainlyNoFileOfItsType_IsLeftOutOnRequest) {
    const QTemporaryDir folder;
    const QString image = folder.filePath("card.img");
    QFile card(image);
    ASSERT_TRUE(card.open(QIODevice::WriteOnly));
    QByteArray sectors(8 * 512, 'x');
    sectors.replace(512, 4, "\x89PNG");  // begins like a picture and goes on as none
    card.write(sectors);
    card.close();
    QFile catalogue(folder.filePath("ZelExt2.dll"));
    ASSERT_TRUE(catalogue.open(QIODevice::WriteOnly));
    catalogue.write(
        "Extension : PNG\nSize : 1048576\nHeader :89504E47\nOffset : 1\nReserved : 0\nDescription : x\n");
    catalogue.close();
    const QStringList arguments{"--no-thorough", "--catalogue", folder.path(), "--save"};
    const CommandRun all = runCommand(arguments + QStringList{folder.filePath("all"), image});
    ASSERT_EQ(all.exitCode, 0) << all.err.constData();
    EXPECT_EQ(filesUnder(folder.filePath("all")).size(), 1) << all.out.constData();
    const CommandRun sound =
        runCommand(arguments + QStringList{folder.filePath("sound"), "--skip-unsound", image});
    ASSERT_EQ(sound.exitCode, 0) << sound.err.constData();
    EXPECT_TRUE(filesUnder(folder.filePath("sound")).isEmpty());
    EXPECT_TRUE(sound.out.contains("1 left out: no files of their type")) << sound.out.constData();
}

TEST(SavingCommand, OptionsThatMakeNoSenseAreRefused) {
    for (const QStringList& arguments : {QStringList{"--report", "x"},
                                         {"--as-published", "x"},
                                         {"--min-bytes", "5", "x"},
                                         {"--save", "/tmp", "--min-bytes", "many", "x"},
                                         {"--skip-unsound", "x"},
                                         {"--parts", "x"},
                                         {"--save", "/tmp", "--as-published", "--parts", "x"},
                                         {"--complete", "x"},
                                         {"--repair-movies", "x"},
                                         {"--save", "/tmp", "--reference", "y", "x"},
                                         {"--save", "/tmp", "--as-published", "--skip-unsound", "x"},
                                         {"--save", "/tmp", "--as-published", "--by-date", "x"}}) {
        EXPECT_EQ(runCommand(arguments).exitCode, 2) << arguments.join(' ').toStdString();
    }
}

TEST(SavingCommand, KilledRunLeavesWholeFilesOnly) {
    const QSet<QByteArray> whole = undisturbed("rawfile");
    ASSERT_GT(whole.size(), 80);
    std::mt19937 random(5);
    int filesSeen = 0;
    for (int turn = 0; turn < 12; ++turn) {
        const QTemporaryDir folder;
        QProcess process;
        process.start(VANTOR_CLI, {"--mode", "rawfile", "--save", folder.path(), VANTOR_SAMPLE_CARD});
        ASSERT_TRUE(process.waitForStarted());
        const auto pid = static_cast<pid_t>(process.processId());
        while (filesUnder(folder.path()).isEmpty() && process.state() == QProcess::Running) {
            process.waitForFinished(1);
        }
        QThread::usleep(random() % 200'000);
        // One that has ended by itself already is no process of ours any more.
        if (process.state() == QProcess::Running) {
            ::kill(pid, SIGKILL);
            ASSERT_TRUE(process.waitForFinished(600000));
        }
        for (const QString& file : filesUnder(folder.path())) {
            ++filesSeen;
            EXPECT_TRUE(whole.contains(Sha256::of(contentsOf(folder.filePath(file))).toHex()))
                << file.toStdString();
        }
    }
    EXPECT_GT(filesSeen, 0);
}

TEST(SavingCommand, FullDiskLeavesWholeFilesOnlyAndTellsTheRest) {
    const QSet<QByteArray> whole = undisturbed("photo");
    for (const char* size : {"size=200k", "size=1m", "size=3m", "size=5m"}) {
        const QTemporaryDir folder;
        if (::mount("tmpfs", folder.path().toLocal8Bit().constData(), "tmpfs", 0, size) != 0) {
            GTEST_SKIP() << "needs root to mount a small file system";
        }
        const CommandRun run = runCommand({"--save", folder.path(), VANTOR_SAMPLE_CARD});
        const QStringList files = filesUnder(folder.path());
        const QSet<QByteArray> saved = checksumsUnder(folder.path());
        ::umount(folder.path().toLocal8Bit().constData());
        EXPECT_EQ(run.exitCode, 6) << size;
        EXPECT_TRUE(run.err.contains("not enough room")) << run.err.constData();
        EXPECT_FALSE(files.isEmpty()) << size;
        EXPECT_TRUE(whole.contains(saved)) << size;
    }
}

// The list is told before the report is written.
TEST(Command, ReportIsWrittenWhereNobodyReadsTheList) {
    const QTemporaryDir folder;
    const CommandRun run =
        runCommand({"-c", R"("$0" --list-json --save "$1" --report "$2" | true; exit "${PIPESTATUS[0]}")",
                    VANTOR_CLI, folder.path(), VANTOR_SAMPLE_CARD},
                   QStringLiteral("bash"));
    EXPECT_EQ(run.exitCode, 6);
    EXPECT_TRUE(QFile::exists(folder.filePath("Recovery report.csv")));
}

}  // namespace vantor

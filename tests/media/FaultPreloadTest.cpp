// The built command under real error numbers: what it publishes, how often it asks, and how it opens the
// medium.
#include <fcntl.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <cerrno>

namespace vantor::test {
namespace {

class FaultPreloadTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!QLatin1String(VANTOR_SANITIZE).isEmpty()) {
            GTEST_SKIP() << "a sanitizer's own library must be loaded first";
        }
        // A card of pictures of 40 sectors each, one every 100 sectors.
        QByteArray bytes(4000 * 512, '\0');
        for (int s = 0; s < 4000; s += 100) {
            bytes.replace(s * 512, 11, QByteArray::fromHex("ffd8ffe000104a46494600"));
            for (int filled = s; filled < s + 40; ++filled) {
                bytes[filled * 512 + 100] = 'x';
            }
        }
        QFile file(card);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("catalogue")));
        for (const char* name : {"ZelExt2", "ZelExt2Adv", "ZelVideo", "ZelVideoAdv", "ZelRaw", "ZelRawAdv"}) {
            QFile catalogue(folder.filePath(QStringLiteral("catalogue/%1.dll").arg(QLatin1String(name))));
            ASSERT_TRUE(catalogue.open(QIODevice::WriteOnly));
            if (QLatin1String(name) == u"ZelRaw") {
                catalogue.write(
                    "Extension : JPG\nSize : 1048576\nHeader : FFD8FFE000104A46\nOffset : 1\nReserved : 0\n"
                    "Description : JPEG picture\n");
            }
        }
    }

    // Runs the command over the card; its JSON lines.
    QList<QJsonObject> run(const QByteArray& badSectors, int error = EIO) {
        QFile::remove(log);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(VANTOR_FAULT_PRELOAD));
        environment.insert(QStringLiteral("VANTOR_FAULT_FILE"), QFileInfo(card).canonicalFilePath());
        environment.insert(QStringLiteral("VANTOR_FAULT_SECTORS"), QString::fromLatin1(badSectors));
        environment.insert(QStringLiteral("VANTOR_FAULT_ERRNO"), QString::number(error));
        environment.insert(QStringLiteral("VANTOR_FAULT_LOG"), log);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VANTOR_CLI),
                      {QStringLiteral("--mode"), QStringLiteral("rawfile"), QStringLiteral("--no-thorough"),
                       QStringLiteral("--catalogue"), folder.filePath(QStringLiteral("catalogue")),
                       QStringLiteral("--list-json"), card});
        EXPECT_TRUE(process.waitForFinished(600000));
        exitCode = process.exitCode();
        errors = process.readAllStandardError();
        QList<QJsonObject> lines;
        for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
            if (!line.isEmpty()) {
                lines << QJsonDocument::fromJson(line).object();
            }
        }
        return lines;
    }

    QList<QByteArray> logged(const char* what) {
        QFile file(log);
        QList<QByteArray> lines;
        if (file.open(QIODevice::ReadOnly)) {
            for (const QByteArray& line : file.readAll().split('\n')) {
                if (line.startsWith(what)) {
                    lines << line;
                }
            }
        }
        return lines;
    }

    QTemporaryDir folder;
    QString card = folder.filePath(QStringLiteral("card.img"));
    QString log = folder.filePath(QStringLiteral("log"));
    int exitCode = -1;
    QByteArray errors;
};

TEST_F(FaultPreloadTest, HealthyCard_IsOnlyEverOpenedForReading) {
    const auto lines = run("");
    ASSERT_EQ(lines.size(), 41) << errors.toStdString();
    EXPECT_EQ(exitCode, 0);
    const auto openings = logged("open ") + logged("fopen ");
    ASSERT_FALSE(openings.isEmpty());
    for (const QByteArray& opening : openings) {
        ASSERT_TRUE(opening.startsWith("open ")) << opening.toStdString();
        const int flags = opening.mid(5).toInt(nullptr, 8);
        EXPECT_EQ(flags & O_ACCMODE, O_RDONLY) << opening.toStdString();
        EXPECT_EQ(flags & (O_CREAT | O_TRUNC), 0) << opening.toStdString();
        EXPECT_TRUE(flags & O_CLOEXEC) << opening.toStdString();
    }
}

TEST_F(FaultPreloadTest, BadSectors_CostNoPictureBesideThem) {
    for (const int error : {EIO, ENODATA, EREMOTEIO, EILSEQ}) {
        const auto lines = run("1010,1020-1024,1511,1512", error);
        ASSERT_EQ(lines.size(), 41) << error << errors.toStdString();
        EXPECT_EQ(lines.last().value(QStringLiteral("end")), QStringLiteral("completed"));
        // Ten pictures lie before the first bad sector, where they lie.
        for (int i = 0; i <= 10; ++i) {
            EXPECT_EQ(lines[i].value(QStringLiteral("first_sector")).toInt(), 100 * i);
        }
    }
}

TEST_F(FaultPreloadTest, BadSectorsInAPass_AreAskedForTwiceAtMost) {
    run("1010,1020-1024");
    // The checksums open the card anew, item by item, and meet the bad places again; the pass comes first.
    QMap<int, int> singles;
    int windows = 0;
    for (const QByteArray& line : logged("refused ")) {
        const auto fields = line.split(' ');
        const int first = fields.at(1).toInt();
        if (fields.at(2) != "1") {
            windows += first < 1010 ? 1 : 0;
            continue;
        }
        ++singles[first];
        if (first == 1024) {
            break;
        }
    }
    EXPECT_GE(windows, 1);
    EXPECT_EQ(singles.value(1010), 1);  // the window was the first attempt
    for (int s = 1020; s < 1024; ++s) {
        EXPECT_EQ(singles.value(s), 2) << s;
    }
}

TEST_F(FaultPreloadTest, BadLastSector_EndsWithTheReadError) {
    const auto lines = run("3999");
    EXPECT_EQ(lines.last().value(QStringLiteral("end")), QStringLiteral("read-error"));
    EXPECT_NE(exitCode, 0);
}

TEST_F(FaultPreloadTest, DeviceThatIsGone_EndsWithTheReadErrorAndNoPhantoms) {
    for (const int error : {ENODEV, ENXIO}) {
        const auto lines = run("1024-3999", error);
        EXPECT_EQ(lines.last().value(QStringLiteral("end")), QStringLiteral("read-error"));
        EXPECT_EQ(lines.size(), 12);  // pictures 0 to 10, and the end
    }
}

}  // namespace
}  // namespace vantor::test

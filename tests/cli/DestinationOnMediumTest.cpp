// The command never saves onto the medium that it reads, whatever becomes of the destination meanwhile.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "cli/CliSession.h"
#include "tests/cli/CommandRun.h"
#include "tests/support/Records.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

dev_t deviceOf(const QString& path) {
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_dev : 0;
}

// A search of the first sectors of the device under the root folder, where its file system's mark is found.
class DestinationOnMedium : public testing::Test {
  protected:
    void SetUp() override {
        for (const QByteArray& line : contentsOf("/proc/self/mountinfo").split('\n')) {
            const auto fields = line.split(' ');
            const auto dash = fields.indexOf("-");
            if (fields.value(4) == "/" && dash > 0) {
                m_device = QFile::decodeName(fields.value(dash + 2));
            }
        }
        if (deviceOf(onRoot.path()) != deviceOf("/") || !m_device.startsWith("/dev/") ||
            !QFile::exists(m_device)) {
            GTEST_SKIP() << "the root folder lies on no device that is visible here";
        }
        QFile catalogue(onRoot.filePath("ZelExt2.dll"));
        ASSERT_TRUE(catalogue.open(QIODevice::WriteOnly));
        catalogue.write(
            "Extension : SUP\nSize : 1048576\nHeader :53EF\nOffset : 57\nReserved : 0\nDescription : x\n");
    }
    // A seek of the toolkit does not work on devices.
    bool fileSystemIsReadable() const {
        QFile device(m_device);
        return device.open(QIODevice::ReadOnly) && device.read(4096).mid(1024 + 56, 2) == "\x53\xEF";
    }
    CommandRun save(const QString& destination, const QStringList& environment = {}) const {
        return runCommand(environment + QStringList{VANTOR_CLI, "--no-thorough", "--catalogue", onRoot.path(),
                                                    "--range", "0:8", "--save", destination, m_device},
                          "/usr/bin/env");
    }

    const QTemporaryDir onRoot;

  private:
    QString m_device;
};

}  // namespace

TEST(DestinationOfASession, IsAskedAboutForEachFile) {
    const QTemporaryDir out;
    CliOptions options;
    options.mode = kRawFileMode;
    options.medium = "x";
    options.saveFolder = out.path();
    options.report = true;
    CliSession session(options, 8);
    ScriptedMedium medium = emptyMediumWith("HEAD", 2, 8);
    std::memcpy(medium.bytes.at(5).data(), "HEAD", 4);
    session.setMediumOpener([&](const QString&) { return std::make_unique<ScriptedReader>(medium); });
    int asked = 0;
    session.setLiesOnMedium([&](const QString& destination) {
        EXPECT_EQ(destination, out.path());
        return ++asked == 2;
    });
    session.RawFile_Array = recordsOf({{"XYZ", "48454144"}});
    session.chooseAllTypes();
    session.run();
    EXPECT_EQ(session.saveTally().saved, 1U);
    ASSERT_EQ(session.saveTally().failed, 1U);
    EXPECT_TRUE(session.saveTally().failures.constFirst().contains("lies on the medium"));
    ASSERT_EQ(session.reportedItems().size(), 2U);
    EXPECT_TRUE(session.reportedItems()[0].outcome.saved);
    EXPECT_FALSE(session.reportedItems()[1].outcome.saved);
    EXPECT_EQ(filesUnder(out.path()), QStringList{"XYZ/XYZ00001.XYZ"});
}

TEST_F(DestinationOnMedium, IsRefusedAndNotMade) {
    const CommandRun run = save(onRoot.filePath("out"));
    EXPECT_EQ(run.exitCode, 6);
    EXPECT_TRUE(run.err.contains("lies on the medium")) << run.err.constData();
    EXPECT_FALSE(run.out.contains("found")) << "nothing is searched";
    EXPECT_FALSE(QFile::exists(onRoot.filePath("out")));
}

TEST_F(DestinationOnMedium, IsRefusedForEachFileToo) {
    if (!fileSystemIsReadable()) {
        GTEST_SKIP() << "the device under the root folder cannot be read here";
    }
    const QTemporaryDir elsewhere("/dev/shm/vantor-XXXXXX");
    if (!elsewhere.isValid() || deviceOf(elsewhere.path()) == deviceOf("/")) {
        GTEST_SKIP() << "no other file system to begin with";
    }
    ASSERT_TRUE(QDir(onRoot.path()).mkdir("card"));
    const CommandRun run = save(elsewhere.filePath("planted"), {"LD_PRELOAD=" VANTOR_PLANT_PRELOAD,
                                                                "VANTOR_PLANT=" + onRoot.filePath("card")});
    EXPECT_EQ(run.exitCode, 6) << run.err.constData();
    EXPECT_TRUE(run.out.contains("1 found: 1 SUP")) << run.out.constData();
    EXPECT_TRUE(run.err.contains("lies on the medium")) << run.err.constData();
    EXPECT_TRUE(QFile::exists(elsewhere.filePath("planted"))) << "the link";
    EXPECT_TRUE(filesUnder(onRoot.filePath("card")).isEmpty());
}

}  // namespace vantor

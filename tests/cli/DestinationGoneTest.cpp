// A destination that goes away behind the last item takes along what was saved in it, and that is said.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "cli/Options.h"
#include "media/FileDescriptor.h"
#include "tests/cli/Saved.h"

namespace vantor {
namespace {

// A command whose list is held up: it begins to be printed when all is saved, into a pipe that nobody reads.
class HeldUpCommand {
  public:
    HeldUpCommand(const QTemporaryDir& folder, const QStringList& arguments) {
        const QString pipe = folder.filePath("list");
        EXPECT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        m_list = FileDescriptor(::open(QFile::encodeName(pipe).constData(), O_RDWR | O_CLOEXEC));
        EXPECT_GT(::fcntl(m_list.get(), F_SETPIPE_SZ, 4096), 0);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "C.UTF-8");
        m_process.setProcessEnvironment(environment);
        m_process.setStandardOutputFile(pipe);
        m_process.start(VANTOR_CLI, arguments);
        pollfd full{m_list.get(), POLLOUT, 0};
        while (m_process.state() != QProcess::NotRunning && ::poll(&full, 1, 0) == 1) {
            m_process.waitForFinished(10);
        }
        EXPECT_NE(m_process.state(), QProcess::NotRunning) << "the list is too short to be held up";
    }

    void goOn() {
        ::fcntl(m_list.get(), F_SETFL, O_NONBLOCK);
        QByteArray piece(4096, '\0');
        while (m_process.state() != QProcess::NotRunning) {
            while (::read(m_list.get(), piece.data(), static_cast<std::size_t>(piece.size())) > 0) {
            }
            m_process.waitForFinished(10);
        }
        m_err = m_process.readAllStandardError();
    }
    int exitCode() const { return m_process.exitCode(); }
    const QByteArray& err() const { return m_err; }

  private:
    FileDescriptor m_list{-1};
    QProcess m_process;
    QByteArray m_err;
};

void expectAllIsLost(const HeldUpCommand& command, const QString& destination) {
    EXPECT_EQ(command.exitCode(), kExitDestinationTrouble);
    const QByteArray& err = command.err();
    EXPECT_EQ(err.count("The folder " + QFile::encodeName(destination) + " is no longer there\n"), 1)
        << err.constData();
    EXPECT_TRUE(err.contains("\n0 saved in ") || err.startsWith("0 saved in ")) << err.constData();
    EXPECT_TRUE(err.contains(" could not be saved:\n"));
    EXPECT_FALSE(err.contains("  and others"));
    EXPECT_FALSE(err.contains("not written again"));
    EXPECT_FALSE(err.contains("under the names that the card still tells"));
    EXPECT_FALSE(err.contains("Report: "));
}

}  // namespace

TEST(DestinationGone, WhatWasSavedIsNotSaidToBeSaved) {
    const QTemporaryDir folder;
    const QString out = folder.filePath("out");
    HeldUpCommand command(folder, {"--list-json", "--report", "--save", out, VANTOR_SAMPLE_CARD});
    ASSERT_FALSE(filesUnder(out).isEmpty());
    ASSERT_TRUE(QDir(out).removeRecursively());
    command.goOn();
    expectAllIsLost(command, out);
    EXPECT_FALSE(QFileInfo::exists(out)) << "not made anew";
}

TEST(DestinationGone, AFolderThatWasMadeAnewInItsPlaceHoldsNothingOfWhatWasSaved) {
    const QTemporaryDir folder;
    const QString out = folder.filePath("out");
    HeldUpCommand command(folder, {"--list-json", "--report", "--save", out, VANTOR_SAMPLE_CARD});
    ASSERT_FALSE(filesUnder(out).isEmpty());
    const bool tells = QFileInfo(out).birthTime().isValid();
    ASSERT_TRUE(QDir(out).removeRecursively());
    ASSERT_TRUE(QDir().mkdir(out));
    command.goOn();
    if (!tells) {
        GTEST_SKIP() << "a file system that does not tell when a folder was made";
    }
    expectAllIsLost(command, out);
    EXPECT_TRUE(filesUnder(out).isEmpty());
}

TEST(DestinationGone, NothingIsWrittenIntoThePlaceOfADiskThatWasTakenOut) {
    const QTemporaryDir folder;
    const QString out = folder.filePath("out");
    const QByteArray mountPoint = QFile::encodeName(out);
    ASSERT_TRUE(QDir().mkpath(out));
    if (::mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=64m") != 0) {
        GTEST_SKIP() << "needs root to mount a file system";
    }
    HeldUpCommand command(folder, {"--list-json", "--report", "--save", out, VANTOR_SAMPLE_CARD});
    ASSERT_EQ(::umount(mountPoint.constData()), 0);
    command.goOn();
    expectAllIsLost(command, out);
    EXPECT_TRUE(filesUnder(out).isEmpty());
}

}  // namespace vantor

// What a killed program left in the preview folder goes at the next start, and what a live one needs stays.
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "tests/window/WindowTest.h"
#include "window/preview/PreviewFile.h"

namespace vantor {
namespace {

// Another program that has its previews in the folder, until it is killed.
class OtherProgram {
  public:
    explicit OtherProgram(const QString& folder) {
        const QByteArray path = QFile::encodeName(folder);
        int ready[2];
        EXPECT_EQ(::pipe(ready), 0);
        m_pid = ::fork();
        if (m_pid == 0) {
            const int fd = ::open(path.constData(), O_RDONLY | O_DIRECTORY);
            if (fd < 0 || ::flock(fd, LOCK_SH) != 0 || ::write(ready[1], "r", 1) != 1) {
                ::_exit(1);
            }
            for (;;) {
                ::pause();
            }
        }
        ::close(ready[1]);
        char word = 0;
        EXPECT_EQ(::read(ready[0], &word, 1), 1);
        ::close(ready[0]);
    }
    ~OtherProgram() { kill(); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    void kill() {
        if (m_pid > 0) {
            ::kill(m_pid, SIGKILL);
            ::waitpid(m_pid, nullptr, 0);
            m_pid = 0;
        }
    }

  private:
    pid_t m_pid = 0;
};

class PreviewFolder : public WindowTest {
  protected:
    void leave(const char* name) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    bool isThere(const char* name) const { return QFile::exists(folder.filePath(QString::fromLatin1(name))); }
};

TEST_F(PreviewFolder, WhatAKilledProgramLeft_GoesAtTheNextStart) {
    leave("dprv.JPG");
    leave("dprv");
    leave("mydprv.JPG");
    leave("dprv.x.JPG");
    open();
    EXPECT_FALSE(isThere("dprv.JPG"));
    EXPECT_FALSE(isThere("dprv"));
    EXPECT_TRUE(isThere("mydprv.JPG"));
    EXPECT_TRUE(isThere("dprv.x.JPG"));
    EXPECT_TRUE(isThere("NoPreview.png"));
}

TEST_F(PreviewFolder, WhatALiveProgramShows_StaysUntilItDies) {
    OtherProgram other(folder.path());
    leave("dprv.JPG");
    open();
    EXPECT_TRUE(isThere("dprv.JPG"));
    close();
    open();
    EXPECT_TRUE(isThere("dprv.JPG"));
    close();
    other.kill();
    open();
    EXPECT_FALSE(isThere("dprv.JPG"));
}

TEST_F(PreviewFolder, AProgramThatStartsLater_LeavesWhatThisOneShows) {
    open();
    leave("dprv.MP4");
    const PreviewFolderHold later(folder.path());
    EXPECT_TRUE(isThere("dprv.MP4"));
}

TEST_F(PreviewFolder, AFolderThatIsNotThere_IsNoMatter) {
    const PreviewFolderHold none(folder.filePath(QStringLiteral("absent")));
    EXPECT_FALSE(QDir(folder.filePath(QStringLiteral("absent"))).exists());
}

}  // namespace
}  // namespace vantor

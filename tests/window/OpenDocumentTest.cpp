// Documents go to the desktop's opener, which says when it has no program for them.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "window/widgets/OpenDocument.h"

namespace vantor {
namespace {

class OpenDocument : public testing::Test {
  protected:
    void SetUp() override { qputenv("PATH", folder.path().toLocal8Bit() + ':' + path); }
    void TearDown() override { qputenv("PATH", path); }

    // What stands in for the desktop's opener.
    void opener(const QByteArray& script) {
        QFile file(folder.filePath(QStringLiteral("xdg-open")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script + "\n");
        file.close();
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    const QByteArray path = qgetenv("PATH");
    QTemporaryDir folder;
};

TEST_F(OpenDocument, IsHandedOver) {
    opener("printf %s \"$1\" > \"$0.asked\"");
    EXPECT_TRUE(openInDesktop(QStringLiteral("/some where/Help.pdf"), std::chrono::minutes(1)));
    QFile asked(folder.filePath(QStringLiteral("xdg-open.asked")));
    ASSERT_TRUE(asked.open(QIODevice::ReadOnly));
    EXPECT_EQ(asked.readAll(), "/some where/Help.pdf");
}

TEST_F(OpenDocument, WithoutAProgramForIt_ThatIsTold) {
    opener("exit 3");
    EXPECT_FALSE(openInDesktop(QStringLiteral("/Help.pdf"), std::chrono::minutes(1)));
}

TEST_F(OpenDocument, AnOpenerThatCannotRun) {
    opener("");
    QFile file(folder.filePath(QStringLiteral("xdg-open")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/no/such/interpreter\n");
    file.close();
    EXPECT_FALSE(openInDesktop(QStringLiteral("/Help.pdf"), std::chrono::minutes(1)));
}

TEST_F(OpenDocument, AViewerThatStaysIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(folder.filePath(QStringLiteral("hold")).toLocal8Bit().constData(), 0600), 0);
    opener("read line < \"" + folder.path().toLocal8Bit() + "/hold\"\nexit 3");
    EXPECT_TRUE(openInDesktop(QStringLiteral("/Help.pdf"), std::chrono::milliseconds(0)));
    // It ends when it is let go.
    QFile hold(folder.filePath(QStringLiteral("hold")));
    ASSERT_TRUE(hold.open(QIODevice::WriteOnly));
}

}  // namespace
}  // namespace vantor

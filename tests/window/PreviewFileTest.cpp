// Where the preview file lies, and who can read it.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "tests/support/ScriptedMedium.h"
#include "window/preview/PreviewFile.h"

namespace vantor {
namespace {

constexpr mode_t kEverything = 0777;

mode_t modeOf(const QString& path) {
    struct stat facts {};
    EXPECT_EQ(lstat(QFile::encodeName(path).constData(), &facts), 0);
    return facts.st_mode & kEverything;
}

class PreviewFile : public testing::Test {
  protected:
    PreviewFile() : m_umask(umask(0)) { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path())); }
    ~PreviewFile() override {
        umask(m_umask);
        m_before.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", m_before);
    }
    QString made(const QString& path) {
        PreviewFileRequest request;
        request.openMedium = [this] { return std::make_unique<ScriptedReader>(m_medium); };
        request.newFile = path;
        request.end = 2;
        const std::atomic<int> stop{0};
        EXPECT_TRUE(makePreviewFile(request, stop));
        return path;
    }
    QString runtimeFolder() const { return m_runtime.filePath(QStringLiteral("vantor-recovery")); }

    const QByteArray m_before = qgetenv("XDG_RUNTIME_DIR");
    const mode_t m_umask;  // none, so that it is the program that keeps others out
    ScriptedMedium m_medium{10};
    QTemporaryDir m_runtime;
    QTemporaryDir m_resources;  // nobody else's
};

TEST_F(PreviewFile, IsItsOwnersAlone) {
    const QString file = made(m_resources.filePath(QStringLiteral("dprv.PDF")));
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_EQ(QFileInfo(file).size(), 2 * 512);
}

TEST_F(PreviewFile, WhatStoodThere_IsReplacedAndNotWrittenInto) {
    const QString path = m_resources.filePath(QStringLiteral("dprv.PDF"));
    const QString elsewhere = m_resources.filePath(QStringLiteral("letter"));
    QFile letter(elsewhere);
    ASSERT_TRUE(letter.open(QIODevice::WriteOnly) && letter.write("dear") == 4);
    letter.close();
    ASSERT_TRUE(QFile::link(elsewhere, path));
    made(path);
    EXPECT_FALSE(QFileInfo(path).isSymLink());
    EXPECT_EQ(QFileInfo(elsewhere).size(), 4) << "the link led here";
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0644), 0);
    made(path);
    EXPECT_EQ(modeOf(path), 0600U) << "a file of before";
}

TEST_F(PreviewFile, LiesInAResourcesFolderThatIsOurs) {
    EXPECT_EQ(previewFolder(m_resources.path()), m_resources.path());
}

TEST_F(PreviewFile, LiesInAPrivateFolder_WhereOthersCouldLookIntoTheResources) {
    for (const mode_t mode : {0755, 0750, 0701}) {
        ASSERT_EQ(chmod(QFile::encodeName(m_resources.path()).constData(), mode), 0);
        EXPECT_EQ(previewFolder(m_resources.path()), runtimeFolder()) << mode;
        EXPECT_EQ(modeOf(runtimeFolder()), 0700U);
    }
    // One that stands there already and is open.
    ASSERT_EQ(chmod(QFile::encodeName(runtimeFolder()).constData(), 0777), 0);
    EXPECT_EQ(previewFolder(m_resources.path()), runtimeFolder());
    EXPECT_EQ(modeOf(runtimeFolder()), 0700U);
}

TEST_F(PreviewFile, LiesInAPrivateFolder_WhereThereAreNoResources) {
    EXPECT_EQ(previewFolder(m_resources.filePath(QStringLiteral("none"))), runtimeFolder());
}

// Developers look for it there, and nobody else uses a build.
TEST_F(PreviewFile, LiesBesideABuiltProgram) {
    const QString build = m_runtime.filePath(QStringLiteral("build"));
    const QString resources = build + QStringLiteral("/share/vantor-recovery");
    ASSERT_TRUE(QDir().mkpath(resources));
    EXPECT_EQ(previewFolder(resources), runtimeFolder());
    QFile cache(build + QStringLiteral("/CMakeCache.txt"));
    ASSERT_TRUE(cache.open(QIODevice::WriteOnly));
    EXPECT_EQ(previewFolder(resources), resources);
}

}  // namespace
}  // namespace vantor

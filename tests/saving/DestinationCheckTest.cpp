// Folders on the medium that is read are told from all others.
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdlib>
#include <cstring>

#include "saving/DestinationCheck.h"
#include "tests/media/LoopDevice.h"

namespace vantor {

TEST(DestinationCheck, TheFolderThatHoldsAnImageIsAllowed) {
    const QTemporaryDir folder;
    QFile image(folder.filePath("card.img"));
    ASSERT_TRUE(image.open(QIODevice::WriteOnly));
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), image.fileName()));
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), "/nowhere/at/all"));
}

TEST(DestinationCheck, FolderOnTheReadDiskIsSeen) {
    // The device under the root folder, where the system shows one.
    QFile mounts("/proc/self/mountinfo");
    ASSERT_TRUE(mounts.open(QIODevice::ReadOnly));
    QString device;
    for (const QByteArray& line : mounts.readAll().split('\n')) {
        const auto fields = line.split(' ');
        const auto dash = fields.indexOf("-");
        if (fields.value(4) == "/" && dash > 0) {
            device = QString::fromLocal8Bit(fields.value(dash + 2));
        }
    }
    if (!device.startsWith("/dev/") || !QFile::exists(device)) {
        GTEST_SKIP() << "the root folder lies on no device that is visible here";
    }
    EXPECT_TRUE(destinationIsOnMedium("/", device));
    EXPECT_TRUE(destinationIsOnMedium("/not/yet/there", device));
    EXPECT_FALSE(destinationIsOnMedium("/proc", device));
}

TEST(DestinationCheck, FoldersOfAMountedCardAreSeenThroughLinks) {
    const QTemporaryDir folder;
    const QString image = folder.filePath("card.img");
    QFile file(image);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(4 << 20));
    file.close();
    // Not by Qt, after whose forks the thread sanitizer no longer sees this thread's locks.
    if (std::system(QFile::encodeName("/sbin/mke2fs -q -F '" + image + "'").constData()) != 0) {
        GTEST_SKIP() << "no file system can be made here";
    }
    const test::LoopDevice card(image);
    if (!card.isThere()) {
        GTEST_SKIP() << card.why().toStdString();
    }
    const QByteArray place = QFile::encodeName(folder.filePath("card"));
    ASSERT_TRUE(QDir().mkpath(folder.filePath("card")));
    if (::mount(QFile::encodeName(card.node()).constData(), place.constData(), "ext4", MS_RDONLY, nullptr) !=
        0) {
        GTEST_SKIP() << "no file system can be mounted here: " << std::strerror(errno);
    }
    EXPECT_TRUE(QFile::link(folder.filePath("card"), folder.filePath("link")));
    EXPECT_TRUE(destinationIsOnMedium(folder.filePath("card"), card.node()));
    EXPECT_TRUE(destinationIsOnMedium(folder.filePath("card/not/yet"), card.node()));
    EXPECT_TRUE(destinationIsOnMedium(folder.filePath("link"), card.node()));
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), card.node()));
    EXPECT_TRUE(destinationIsOnMedium(folder.filePath("card"), image)) << "what is mounted is the image";
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), image));
    ::umount2(place.constData(), MNT_DETACH);
}

TEST(RefuseDestination, OnlyAFolderThatTakesFilesWillDo) {
    const QTemporaryDir folder;
    EXPECT_FALSE(refuseDestination(folder.path()));
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        << "the trial leaves nothing behind";
    const auto absent = refuseDestination(folder.filePath(QStringLiteral("gone")));
    ASSERT_TRUE(absent);
    EXPECT_TRUE(absent->contains(QStringLiteral("is not there")));
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(QStringLiteral("gone"))));
    QFile file(folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(refuseDestination(file.fileName())->contains(QStringLiteral("is not a folder")));
    const auto readOnly = refuseDestination(QStringLiteral("/proc/self"));
    ASSERT_TRUE(readOnly) << "nobody writes there, whatever their rights";
    EXPECT_TRUE(readOnly->contains(QStringLiteral("Nothing can be written")));
    EXPECT_TRUE(readOnly->endsWith(QStringLiteral(": You do not have the right to do this.")))
        << readOnly->toStdString();
    EXPECT_EQ(fileSystemOf(folder.path()), fileSystemOf(file.fileName()));
    EXPECT_NE(fileSystemOf(folder.path()), fileSystemOf(QStringLiteral("/proc")));
    EXPECT_FALSE(fileSystemOf(folder.filePath(QStringLiteral("gone"))));
}

}  // namespace vantor

// The table of mounts is never older than the last mount, and not read more often than that.
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "saving/MountTable.h"

namespace vantor {
namespace {

dev_t deviceAt(const QString& path) {
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_dev : 0;
}

TEST(MountTable, SeesEachMountAndUnmount) {
    const QTemporaryDir home;
    const QByteArray place = QFile::encodeName(home.path());
    MountTable table(QStringLiteral("/proc/self/mountinfo"));
    table.of(0);
    for (int turn = 0; turn < 3; ++turn) {
        if (::mount("a source", place.constData(), "tmpfs", 0, "size=64k") != 0) {
            GTEST_SKIP() << "nothing can be mounted here";
        }
        const dev_t device = deviceAt(home.path());
        const QList<Mount> mounts = table.of(device);
        const bool isUnmounted = ::umount2(place.constData(), 0) == 0;
        ASSERT_EQ(mounts.size(), 1);
        EXPECT_EQ(mounts.constFirst().source, "a source");
        EXPECT_EQ(mounts.constFirst().type, "tmpfs");
        ASSERT_TRUE(isUnmounted);
        EXPECT_TRUE(table.of(device).isEmpty());
    }
}

TEST(MountTable, IsNotReadAgainWhileNothingIsMounted) {
    const QTemporaryDir home;
    MountTable table(QStringLiteral("/proc/self/mountinfo"));
    constexpr int kAskings = 10'000;
    for (int i = 0; i < kAskings; ++i) {
        table.of(deviceAt("/"));
    }
    EXPECT_GE(table.readings(), 1);
    EXPECT_LT(table.readings(), kAskings / 10) << "others may mount something meanwhile";
}

TEST(MountTable, WhatCannotBeWatchedIsReadEachTime) {
    const QTemporaryDir home;
    QFile file(home.filePath("mountinfo"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    MountTable table(file.fileName());
    EXPECT_TRUE(table.of(0x811).isEmpty());
    file.write("36 25 8:17 / /mnt/a rw - vfat /dev/sd\\040b1 rw,flush\n");
    const QList<Mount> mounts = table.of(0x811);
    ASSERT_EQ(mounts.size(), 1);
    EXPECT_EQ(mounts.constFirst().source, "/dev/sd b1");
    EXPECT_EQ(mounts.constFirst().options, QList<QByteArray>({"rw", "flush"}));
    EXPECT_TRUE(MountTable(home.filePath("absent")).of(0x811).isEmpty());
}

}  // namespace
}  // namespace vantor

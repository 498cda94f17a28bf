// Layers under a folder, as the kernel's tables tell them.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "saving/StorageBelow.h"

namespace vantor {
namespace {

struct stat statOf(const QString& path) {
    struct stat info {};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &info), 0) << path.toStdString();
    return info;
}

class StorageBelow : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(m_home.path()).mkpath("sys/dev/block"));
        ASSERT_TRUE(QDir(m_home.path()).mkpath("sys/block"));
        // What lies in the made-up world's folder lies on its disk "sdh".
        addDevice(statOf(m_home.path()).st_dev, "sdh");
        write("mountinfo", "");
    }

    void write(const QString& name, const QByteArray& text) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(m_home.filePath(name)).path()));
        QFile file(m_home.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    void addDevice(dev_t number, const QString& path) {
        ASSERT_TRUE(QDir(m_home.path()).mkpath("sys/devices/" + path + "/slaves"));
        QFile::link(m_home.filePath("sys/devices/" + path),
                    m_home.filePath(QString("sys/dev/block/%1:%2").arg(major(number)).arg(minor(number))));
    }
    void addLoop(dev_t number, const QString& name, const QString& file) {
        addDevice(number, name);
        write("sys/block/" + name + "/loop/backing_file", QFile::encodeName(file) + '\n');
    }
    void addMount(const QByteArray& number, const QByteArray& type, const QByteArray& source,
                  const QByteArray& options) {
        QFile file(m_home.filePath("mountinfo"));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write("40 1 " + number + " / /mnt rw - " + type + ' ' + source + ' ' + options + '\n');
    }
    Storage below(dev_t device) const { return storageBelow(device, tables()); }
    KernelTables tables() const {
        return {m_home.filePath("sys"), std::make_shared<MountTable>(m_home.filePath("mountinfo"))};
    }
    FileIdentity identityOf(const QString& name) const {
        const struct stat info = statOf(m_home.filePath(name));
        return {info.st_dev, info.st_ino};
    }

    QTemporaryDir m_home;
};

TEST_F(StorageBelow, FileBehindALoopDeviceAndTheDiskItLiesOn) {
    write("card.img", "x");
    addLoop(makedev(7, 0), "loop0", m_home.filePath("card.img"));
    addDevice(makedev(259, 5), "loop0/loop0p1");
    write("sys/devices/loop0/loop0p1/partition", "1");
    for (const dev_t device : {makedev(7, 0), makedev(259, 5)}) {
        const Storage found = below(device);
        EXPECT_EQ(found.disks, (QSet<QString>{"loop0", "sdh"}));
        EXPECT_EQ(found.files, QSet<FileIdentity>{identityOf("card.img")});
    }
    // The image is the medium, the disk that holds it is not.
    const Storage medium = storageOfMedium(m_home.filePath("card.img"), tables());
    EXPECT_TRUE(medium.disks.isEmpty());
    EXPECT_TRUE(below(makedev(7, 0)).sharesWith(medium));
    EXPECT_FALSE(below(statOf(m_home.path()).st_dev).sharesWith(medium));
}

TEST_F(StorageBelow, EveryPartOfASplitImageIsTheMedium) {
    write("card.001", "x");
    write("card.002", "y");
    addLoop(makedev(7, 1), "loop1", m_home.filePath("card.002"));
    EXPECT_TRUE(below(makedev(7, 1)).sharesWith(storageOfMedium(m_home.filePath("card.001"), tables())));
}

TEST_F(StorageBelow, WhatAnOverlayWritesGoesToItsUpperFolder) {
    ASSERT_TRUE(QDir(m_home.path()).mkpath("upper folder"));
    addMount(
        "0:77", "overlay", "overlay",
        "rw,lowerdir=/usr,upperdir=" + QFile::encodeName(m_home.path()) + "/upper\\040folder,workdir=/w");
    EXPECT_EQ(below(makedev(0, 77)).disks, QSet<QString>{"sdh"});
    EXPECT_TRUE(below(makedev(0, 78)).disks.isEmpty());
}

TEST_F(StorageBelow, AllMembersOfAFileSystemOverSeveralDevices) {
    // A node that is a block device is needed as the source: the first that this machine has.
    QString node;
    for (const QFileInfo& file : QDir("/dev").entryInfoList(QDir::System)) {
        if (S_ISBLK(statOf(file.filePath()).st_mode)) {
            node = file.filePath();
            break;
        }
    }
    if (node.isEmpty()) {
        GTEST_SKIP() << "no block device is visible here";
    }
    const dev_t member = statOf(node).st_rdev;
    const QByteArray number = QByteArray::number(major(member)) + ':' + QByteArray::number(minor(member));
    addDevice(member, "sdx");
    addDevice(makedev(8, 200), "sdy");
    write("sys/fs/btrfs/one/devices/first/dev", number + '\n');
    write("sys/fs/btrfs/one/devices/second/dev", "8:200\n");
    write("sys/fs/btrfs/other/devices/third/dev", "8:216\n");
    addDevice(makedev(8, 216), "sdz");
    addMount("0:50", "btrfs", QFile::encodeName(node), "rw");
    EXPECT_EQ(below(makedev(0, 50)).disks, (QSet<QString>{"sdx", "sdy"}));
}

TEST_F(StorageBelow, LayersThatStandOnEachOtherEnd) {
    write("a.img", "x");
    addLoop(makedev(7, 0), "loop0", m_home.filePath("a.img"));
    // The file's own file system is said to come from the loop device again.
    addLoop(statOf(m_home.path()).st_dev, "loop0", m_home.filePath("a.img"));
    EXPECT_TRUE(below(makedev(7, 0)).disks.contains("loop0"));
}

TEST_F(StorageBelow, NothingAtThePathIsNothing) {
    const Storage nothing = storageOfMedium("/nowhere/at/all", tables());
    EXPECT_TRUE(nothing.disks.isEmpty() && nothing.files.isEmpty());
    EXPECT_FALSE(below(makedev(8, 99)).sharesWith(nothing));
}

}  // namespace
}  // namespace vantor

// Devices stacked on others, as the kernel lists them.
#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "saving/WholeDisks.h"

namespace vantor {
namespace {

class WholeDisksTest : public testing::Test {
  protected:
    // A device of the number at the path below devices/; partitions say so by a file.
    void addDevice(int number, const QString& path) {
        ASSERT_TRUE(QDir(m_sys.path()).mkpath("devices/" + path + "/slaves"));
        ASSERT_TRUE(QDir(m_sys.path()).mkpath("dev/block"));
        ASSERT_TRUE(QFile::link(m_sys.filePath("devices/" + path),
                                m_sys.filePath(QString("dev/block/8:%1").arg(number))));
    }
    void addPartition(int number, const QString& path) {
        addDevice(number, path);
        QFile mark(m_sys.filePath("devices/" + path + "/partition"));
        ASSERT_TRUE(mark.open(QIODevice::WriteOnly));
    }
    void stack(const QString& upper, const QString& lower) {
        ASSERT_TRUE(QFile::link(m_sys.filePath("devices/" + lower),
                                m_sys.filePath("devices/" + upper + "/slaves/" + lower.section('/', -1))));
    }
    QSet<QString> disksOf(unsigned number) { return wholeDisksOf(makedev(8, number), m_sys.path()); }

    QTemporaryDir m_sys;
};

TEST_F(WholeDisksTest, PartitionsBelongToTheirDisk) {
    addDevice(0, "usb/sdb");
    addPartition(1, "usb/sdb/sdb1");
    EXPECT_EQ(disksOf(0), QSet<QString>{"sdb"});
    EXPECT_EQ(disksOf(1), QSet<QString>{"sdb"});
    EXPECT_TRUE(disksOf(2).isEmpty()) << "no such device";
}

TEST_F(WholeDisksTest, UnlockedAndJoinedVolumesBelongToEveryDiskBelow) {
    addDevice(0, "usb/sdb");
    addPartition(1, "usb/sdb/sdb1");
    addDevice(16, "usb/sdc");
    addDevice(32, "virtual/dm-0");  // unlocked from a partition
    stack("virtual/dm-0", "usb/sdb/sdb1");
    addDevice(33, "virtual/dm-1");  // a volume over that and a whole disk
    stack("virtual/dm-1", "virtual/dm-0");
    stack("virtual/dm-1", "usb/sdc");
    EXPECT_EQ(disksOf(32), QSet<QString>{"sdb"});
    EXPECT_EQ(disksOf(33), (QSet<QString>{"sdb", "sdc"}));
}

TEST_F(WholeDisksTest, DevicesThatStandOnEachOtherEnd) {
    addDevice(32, "virtual/dm-0");
    addDevice(33, "virtual/dm-1");
    stack("virtual/dm-0", "virtual/dm-1");
    stack("virtual/dm-1", "virtual/dm-0");
    EXPECT_TRUE(disksOf(32).isEmpty());
}

}  // namespace
}  // namespace vantor

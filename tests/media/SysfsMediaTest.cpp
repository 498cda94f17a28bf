// Media from the kernel's texts alone.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "media/DiskSequence.h"
#include "media/SysfsBackend.h"
#include "media/SysfsMedia.h"

namespace vantor::test {
namespace {

QVariant factOf(const MediumRecord& medium, const char* key) {
    return medium.facts.value(QLatin1String(key));
}

SysfsDisk plainUsbStick() {
    SysfsDisk disk;
    disk.disk = {QStringLiteral("sdb"), QStringLiteral("62333952\n"), QStringLiteral("8:16\n"), {}};
    disk.removable = QStringLiteral("1\n");
    disk.vendor = QStringLiteral("SanDisk \n");
    disk.model = QStringLiteral("Ultra           \n");
    disk.hardwarePath = QStringLiteral("/sys/devices/pci0000:00/0000:00:14.0/usb2/2-1/host6/block/sdb");
    disk.diskSequence = QStringLiteral("17\n");
    disk.volumes << SysfsDevice{
        QStringLiteral("sdb1"), QStringLiteral("62331904\n"), QStringLiteral("8:17\n"),
        QStringLiteral(
            "S:disk/by-label/CANON_DC\nE:ID_FS_LABEL=CANON_DC\nE:ID_FS_TYPE=vfat\nE:ID_FS_VERSION=FAT32\n")};
    return disk;
}

SysfsDisk plain(const char* name, const char* removable, const char* sectors) {
    SysfsDisk disk;
    disk.disk = {QLatin1String(name), QLatin1String(sectors), QStringLiteral("9:9"), {}};
    disk.removable = QLatin1String(removable);
    disk.hardwarePath = QStringLiteral("/sys/devices/pci0000:00/ata1/block/") + QLatin1String(name);
    return disk;
}

TEST(SysfsMedia, UsbStick_OffersDiskAndVolumeWithTheirFacts) {
    const auto media = sysfsMedia(
        {plainUsbStick()},
        QStringLiteral(
            "22 1 254:0 / / rw,relatime - ext4 /dev/vda rw\n"
            "90 22 8:17 / /media/anna/CANON\\040DC rw,nosuid shared:5 master:1 - vfat /dev/sdb1 rw\n"
            "91 22 8:17 /DCIM /mnt/second rw - vfat /dev/sdb1 rw\n"));
    ASSERT_EQ(media.size(), 2);
    EXPECT_EQ(factOf(media[0], "DeviceIdentifier"), QStringLiteral("sdb"));
    EXPECT_EQ(factOf(media[0], "VolumeName"), QStringLiteral("SanDisk Ultra"));
    EXPECT_EQ(media[0].path, QStringLiteral("/dev/sdb"));
    EXPECT_EQ(factOf(media[1], "DeviceIdentifier"), QStringLiteral("sdb1"));
    EXPECT_EQ(factOf(media[1], "VolumeName"), QStringLiteral("CANON_DC"));
    EXPECT_EQ(factOf(media[1], "FilesystemUserVisibleName"), QStringLiteral("MS-DOS (FAT32)"));
    EXPECT_EQ(factOf(media[1], "ParentWholeDisk"), QStringLiteral("sdb"));
    EXPECT_EQ(factOf(media[1], "IOKitSize").toULongLong(), 31913934848ULL);
    EXPECT_EQ(factOf(media[1], "BusProtocol"), QStringLiteral("USB"));
    EXPECT_EQ(media[1].path, QStringLiteral("/media/anna/CANON DC"));
    EXPECT_EQ(media[1].target.path, QStringLiteral("/dev/sdb1"));
    EXPECT_EQ(media[1].target.identity.diskSequence, 17U);
    EXPECT_EQ(media[1].target.identity.sectors, 62331904U);
    EXPECT_EQ(media[1].target.identity.label, QStringLiteral("CANON_DC"));
    EXPECT_EQ(media[1].target.identity.partition, QStringLiteral("1"));
    EXPECT_EQ(media[0].target.identity.partition, QString());
}

TEST(SysfsMedia, IdentityIsThatOfTheCardAndItsFileSystem) {
    SysfsDisk card = plain("mmcblk0", "0\n", "124735488\n");
    card.cardType = QStringLiteral("SD\n");
    card.disk.udevDatabase = QStringLiteral("E:ID_SERIAL=0x1a2b3c4d\n");
    card.volumes << SysfsDevice{QStringLiteral("mmcblk0p2"), QStringLiteral("1000\n"),
                                QStringLiteral("179:2\n"),
                                QStringLiteral("E:ID_SERIAL=of-the-volume\nE:ID_FS_UUID=1234-ABCD\n")};
    const auto media = sysfsMedia({card}, {});
    ASSERT_EQ(media.size(), 2);
    EXPECT_EQ(media[1].target.identity.serial, QStringLiteral("0x1a2b3c4d"));
    EXPECT_EQ(media[1].target.identity.fileSystemId, QStringLiteral("1234-ABCD"));
    EXPECT_EQ(media[1].target.identity.partition, QStringLiteral("2"));
}

TEST(SysfsMedia, MountTableGivesTheFileSystemWhereUdevIsSilent) {
    SysfsDisk disk = plainUsbStick();
    disk.volumes[0].udevDatabase.clear();
    const auto media = sysfsMedia({disk}, QStringLiteral("90 22 8:17 / /mnt rw - exfat /dev/sdb1 rw\n"));
    EXPECT_EQ(factOf(media[1], "FilesystemUserVisibleName"), QStringLiteral("ExFAT"));
    EXPECT_EQ(factOf(media[1], "VolumeName"), QString());
}

TEST(SysfsMedia, CardSlot_IsOfferedThoughItsFolderSaysNotRemovable) {
    SysfsDisk card = plain("mmcblk0", "0\n", "124735488\n");
    card.cardType = QStringLiteral("SD\n");
    SysfsDisk soldered = plain("mmcblk1", "0\n", "124735488\n");
    soldered.cardType = QStringLiteral("MMC\n");
    const auto media = sysfsMedia({card, soldered}, {});
    ASSERT_EQ(media.size(), 1);
    EXPECT_EQ(factOf(media[0], "BusProtocol"), QStringLiteral("Secure Digital"));
}

TEST(SysfsMedia, EmptySlotsAndSystemDisks_AreNotOffered) {
    EXPECT_TRUE(sysfsMedia({plain("sda", "0\n", "1000\n"), plain("sdc", "1\n", "0\n"),
                            plain("sdd", "1\n", "junk"), plain("vda", "0\n", "5"), plain("zram0", "0", "8")},
                           {})
                    .isEmpty());
}

TEST(SysfsMedia, LoopDevicesAndOpticalDrives_AreReportedAsSuch) {
    const auto media = sysfsMedia({plain("loop0", "0\n", "8\n"), plain("sr0", "1\n", "700\n")}, {});
    ASSERT_EQ(media.size(), 2);
    EXPECT_EQ(factOf(media[0], "BusProtocol"), QStringLiteral("Disk Image"));
    EXPECT_EQ(factOf(media[1], "OpticalDeviceType"), QStringLiteral("CD-ROM"));
}

TEST(SysfsMedia, JunkInTheMountTable_IsPassedOver) {
    for (const char* junk :
         {"", "\n\n", "-", "1 2 8:17", "1 2 8:17 / /mnt -", "1 2 8:17 / /mnt rw -", "1 2 8:17 / \\9 rw - x",
          "1 2 8:17 / \\04 rw - x", "1 2 8:17 / \\777\\ rw - x"}) {
        EXPECT_EQ(sysfsMedia({plainUsbStick()}, QLatin1String(junk)).size(), 2) << junk;
    }
}

class SysfsBackendTest : public testing::Test {
  protected:
    void write(const QString& path, const QByteArray& text) {
        const QString whole = root.filePath(path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(whole).path()));
        QFile file(whole);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    // A stick under the folders that the links of sys/block lead to.
    void plugInStick() {
        const QString device = QStringLiteral("sys/devices/usb1/1-1/block/sdb");
        write(device + QStringLiteral("/size"), "2048\n");
        write(device + QStringLiteral("/dev"), "8:16\n");
        write(device + QStringLiteral("/removable"), "1\n");
        write(device + QStringLiteral("/diskseq"), "23\n");
        write(device + QStringLiteral("/device/vendor"), "ACME\n");
        write(device + QStringLiteral("/device/model"), "Stick\n");
        write(device + QStringLiteral("/sdb1/partition"), "1\n");
        write(device + QStringLiteral("/sdb1/size"), "2000\n");
        write(device + QStringLiteral("/sdb1/dev"), "8:17\n");
        write(device + QStringLiteral("/queue/scheduler"), "none\n");
        write(QStringLiteral("run/udev/data/b8:17"), "E:ID_FS_TYPE=ntfs\nE:ID_FS_LABEL=HOLIDAY\n");
        QDir().mkpath(root.filePath(QStringLiteral("sys/block")));
        QDir().mkpath(root.filePath(QStringLiteral("sys/class/block")));
        QFile::link(root.filePath(device), root.filePath(QStringLiteral("sys/block/sdb")));
        QFile::link(root.filePath(device), root.filePath(QStringLiteral("sys/class/block/sdb")));
        QFile::link(root.filePath(device) + QStringLiteral("/sdb1"),
                    root.filePath(QStringLiteral("sys/class/block/sdb1")));
    }

    QTemporaryDir root;
};

TEST_F(SysfsBackendTest, FoldersBecomeMedia) {
    plugInStick();
    write(QStringLiteral("proc/self/mountinfo"), "90 22 8:17 / /mnt/holiday rw - ntfs3 /dev/sdb1 rw\n");
    SysfsBackend backend(root.path());
    const auto media = backend.list();
    ASSERT_TRUE(media);
    ASSERT_EQ(media->size(), 2);
    EXPECT_EQ(factOf(media->at(0), "MediaName"), QStringLiteral("ACME Stick"));
    EXPECT_EQ(factOf(media->at(1), "VolumeName"), QStringLiteral("HOLIDAY"));
    EXPECT_EQ(factOf(media->at(1), "FilesystemUserVisibleName"), QStringLiteral("NTFS"));
    EXPECT_EQ(media->at(1).path, QStringLiteral("/mnt/holiday"));
    EXPECT_EQ(media->at(1).target.identity.diskSequence, 23U);
}

TEST_F(SysfsBackendTest, NothingThere_IsAnEmptyList) {
    SysfsBackend backend(root.path());
    const auto media = backend.list();
    ASSERT_TRUE(media);
    EXPECT_TRUE(media->isEmpty());
}

TEST_F(SysfsBackendTest, DiskSequence_IsThatOfTheWholeDisk) {
    plugInStick();
    EXPECT_EQ(diskSequenceOf(QStringLiteral("sdb"), root.path()), 23U);
    EXPECT_EQ(diskSequenceOf(QStringLiteral("sdb1"), root.path()), 23U);
    EXPECT_EQ(diskSequenceOf(QStringLiteral("sdc"), root.path()), 0U);
}

}  // namespace
}  // namespace vantor::test

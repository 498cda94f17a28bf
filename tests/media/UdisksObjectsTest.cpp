// Which of the disk service's objects are media, and what is said of them.
#include <gtest/gtest.h>

#include "media/FileSystemName.h"
#include "tests/media/UdisksTrees.h"

namespace vantor::test {
namespace {

QStringList identifiers(const UdisksObjects& objects) {
    QStringList all;
    for (const MediumRecord& medium : udisksMedia(objects)) {
        all << medium.facts.value(QStringLiteral("DeviceIdentifier")).toString();
    }
    return all;
}

QVariant fact(const MediumRecord& medium, const char* key) {
    return medium.facts.value(QLatin1String(key));
}

TEST(UdisksMedia, UsbStick_OffersDiskAndVolumeWithTheirFacts) {
    const auto media = udisksMedia(usbStick());
    ASSERT_EQ(media.size(), 2);
    const MediumRecord& disk = media[0];
    EXPECT_EQ(fact(disk, "DeviceIdentifier"), QStringLiteral("sdb"));
    EXPECT_EQ(fact(disk, "VolumeName"), QStringLiteral("SanDisk Ultra"));
    EXPECT_EQ(fact(disk, "FilesystemUserVisibleName"), QString());
    EXPECT_EQ(fact(disk, "ParentWholeDisk"), QStringLiteral("sdb"));
    EXPECT_EQ(fact(disk, "IOKitSize").toULongLong(), 31914983424U);
    EXPECT_EQ(disk.path, QStringLiteral("/dev/sdb"));

    const MediumRecord& volume = media[1];
    EXPECT_EQ(fact(volume, "DeviceIdentifier"), QStringLiteral("sdb1"));
    EXPECT_EQ(fact(volume, "VolumeName"), QStringLiteral("CANON_DC"));
    EXPECT_EQ(fact(volume, "FilesystemUserVisibleName"), QStringLiteral("MS-DOS (FAT32)"));
    EXPECT_EQ(fact(volume, "ParentWholeDisk"), QStringLiteral("sdb"));
    EXPECT_EQ(fact(volume, "IOKitSize").toULongLong(), 31913934848U);  // not the file system's, which is 0
    EXPECT_EQ(fact(volume, "BusProtocol"), QStringLiteral("USB"));
    EXPECT_EQ(fact(volume, "MediaName"), QStringLiteral("SanDisk Ultra"));
    EXPECT_FALSE(volume.facts.contains(QStringLiteral("OpticalDeviceType")));
    EXPECT_EQ(volume.path, QStringLiteral("/media/anna/CANON DC"));
    EXPECT_EQ(volume.target.path, QStringLiteral("/dev/sdb1"));
    EXPECT_EQ(volume.target.identity.sectors, 31913934848U / 512);
}

TEST(UdisksMedia, SdCard_IsOfferedThoughNotMounted) {
    const auto media = udisksMedia(sdReaderWithCard());
    ASSERT_EQ(media.size(), 2);
    EXPECT_EQ(fact(media[1], "DeviceIdentifier"), QStringLiteral("mmcblk0p1"));
    EXPECT_EQ(fact(media[1], "ParentWholeDisk"), QStringLiteral("mmcblk0"));
    EXPECT_EQ(fact(media[1], "BusProtocol"), QStringLiteral("Secure Digital"));
    EXPECT_EQ(fact(media[1], "FilesystemUserVisibleName"), QStringLiteral("ExFAT"));
    EXPECT_EQ(fact(media[1], "VolumeName"), QString());
    EXPECT_EQ(media[1].path, QStringLiteral("/dev/mmcblk0p1"));
}

TEST(UdisksMedia, CardWithoutFileSystem_IsOffered) {
    const auto media = udisksMedia(cardWithoutFileSystem());
    ASSERT_EQ(media.size(), 1);
    EXPECT_EQ(fact(media[0], "VolumeName"), QString());
    EXPECT_EQ(fact(media[0], "FilesystemUserVisibleName"), QString());
    EXPECT_EQ(fact(media[0], "IOKitSize").toULongLong(), 4034838528U);
}

TEST(UdisksMedia, EmptySlotsAndSystemDisks_AreNotOffered) {
    EXPECT_EQ(identifiers(emptySdReader()), QStringList());
    EXPECT_EQ(identifiers(systemDisk()), QStringList());
    EXPECT_EQ(identifiers(phone()), QStringList{QStringLiteral("sde")});
    EXPECT_EQ(identifiers({}), QStringList());
}

TEST(UdisksMedia, LoopDevicesAndOpticalDrives_AreReportedAsSuch) {
    const auto loops = udisksMedia(loopDevice());
    ASSERT_EQ(loops.size(), 1);
    EXPECT_EQ(fact(loops[0], "BusProtocol"), QStringLiteral("Disk Image"));
    const auto discs = udisksMedia(opticalDrive());
    ASSERT_EQ(discs.size(), 1);
    EXPECT_EQ(fact(discs[0], "OpticalDeviceType"), QStringLiteral("CD-ROM, DVD-ROM"));
}

TEST(UdisksMedia, ContainersAndIgnoredDevices_AreNotOffered) {
    const QString id = QStringLiteral("SanDisk_Ultra_4C53");
    const auto objects = usbStick() +
                         block({.name = QStringLiteral("sdb2"),
                                .drive = id,
                                .bytes = 1024,
                                .table = QStringLiteral("sdb"),
                                .isContainer = true}) +
                         block({.name = QStringLiteral("sdb3"), .drive = id, .bytes = 4096, .ignored = true});
    EXPECT_EQ(identifiers(objects), (QStringList{QStringLiteral("sdb"), QStringLiteral("sdb1")}));
}

TEST(UdisksMedia, UnlockedVolumeOfACard_IsOfferedWithItsDrive) {
    const auto objects = usbStick() + block({.name = QStringLiteral("dm-0"),
                                             .bytes = 1 << 20,
                                             .type = QStringLiteral("ext4"),
                                             .label = QStringLiteral("secret"),
                                             .unlockedFrom = QStringLiteral("sdb1")});
    ASSERT_EQ(identifiers(objects).size(), 3);
    const MediumRecord unlocked = udisksMedia(objects)[0];
    EXPECT_EQ(fact(unlocked, "DeviceIdentifier"), QStringLiteral("dm-0"));
    EXPECT_EQ(fact(unlocked, "BusProtocol"), QStringLiteral("USB"));
    EXPECT_EQ(fact(unlocked, "FilesystemUserVisibleName"), QStringLiteral("Ext4"));
}

TEST(UdisksMedia, DevicesUnlockedFromEachOther_EndNowhere) {
    const auto objects =
        block({.name = QStringLiteral("dm-0"), .bytes = 4096, .unlockedFrom = QStringLiteral("dm-1")}) +
        block({.name = QStringLiteral("dm-1"), .bytes = 4096, .unlockedFrom = QStringLiteral("dm-0")});
    EXPECT_EQ(identifiers(objects), QStringList());
}

TEST(UdisksMedia, OrderIsThatOfTheDevicesByNumber) {
    UdisksObjects objects = usbStick() + sdReaderWithCard() + cardWithoutFileSystem();
    for (const char* name : {"sdb10", "sdb2", "sdaa"}) {
        objects = objects + block({.name = QLatin1String(name),
                                   .drive = QStringLiteral("SanDisk_Ultra_4C53"),
                                   .bytes = 4096,
                                   .table = QStringLiteral("sdb")});
    }
    EXPECT_EQ(identifiers(objects).join(u' '),
              QStringLiteral("mmcblk0 mmcblk0p1 sdaa sdb sdb1 sdb2 sdb10 sdd"));
}

TEST(UdisksObjectPath, EscapesWhatIsNeitherLetterNorDigit) {
    EXPECT_EQ(udisksObjectPath(QStringLiteral("/dev/sdb1")),
              QStringLiteral("/org/freedesktop/UDisks2/block_devices/sdb1"));
    EXPECT_EQ(udisksObjectPath(QStringLiteral("/dev/dm-0")),
              QStringLiteral("/org/freedesktop/UDisks2/block_devices/dm_2d0"));
}

TEST(FileSystemName, IsWhatPeopleKnow) {
    const auto name = [](const char* type, const char* version) {
        return fileSystemName(QLatin1String(type), QLatin1String(version)).toStdString();
    };
    EXPECT_EQ(name("vfat", "FAT32"), "MS-DOS (FAT32)");
    EXPECT_EQ(name("vfat", "FAT16"), "MS-DOS (FAT16)");
    EXPECT_EQ(name("vfat", ""), "MS-DOS (FAT)");
    EXPECT_EQ(name("exfat", "1.0"), "ExFAT");
    EXPECT_EQ(name("ext4", "1.0"), "Ext4");
    EXPECT_EQ(name("ntfs", ""), "NTFS");
    EXPECT_EQ(name("hfsplus", ""), "Mac OS Extended");
    EXPECT_EQ(name("fuseblk", ""), "");
    EXPECT_EQ(name("linux_raid_member", "1.2"), "");
    EXPECT_EQ(name("", ""), "");
}

}  // namespace
}  // namespace vantor::test

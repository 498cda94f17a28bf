// Object trees of the disk service as real machines show them, cut down to what says something.
#pragma once

#include <QByteArrayList>

#include "media/UdisksObjects.h"

namespace vantor::test {

inline QString udisksPath(const QString& rest) {
    return QStringLiteral("/org/freedesktop/UDisks2/") + rest;
}

inline QString interfaceName(const char* name) {
    return QStringLiteral("org.freedesktop.UDisks2.") + QLatin1String(name);
}

// The bytes of a path end with a zero byte.
inline QByteArray zeroEnded(const QString& text) {
    return text.toUtf8() + '\0';
}

struct DriveWords {
    QString id{}, vendor{}, model{}, bus{};
    bool removable = true;
    bool mediaRemovable = true;
    bool mediaAvailable = true;
    QStringList compatibility{};
};

inline UdisksObjects drive(const DriveWords& words) {
    return {{udisksPath(QStringLiteral("drives/") + words.id),
             {{interfaceName("Drive"),
               {{QStringLiteral("Vendor"), words.vendor},
                {QStringLiteral("Model"), words.model},
                {QStringLiteral("ConnectionBus"), words.bus},
                {QStringLiteral("Removable"), words.removable},
                {QStringLiteral("MediaRemovable"), words.mediaRemovable},
                {QStringLiteral("MediaAvailable"), words.mediaAvailable},
                {QStringLiteral("Ejectable"), words.mediaRemovable},
                {QStringLiteral("MediaCompatibility"), words.compatibility}}}}}};
}

struct BlockWords {
    QString name{}, drive{};
    quint64 bytes = 0;
    QString type{}, version{}, label{};  // of the file system
    QStringList mounts{};
    QString table{};  // name of the disk it is a partition of
    bool hasTable = false;
    bool isContainer = false;
    bool ignored = false;
    bool isLoop = false;
    QString unlockedFrom{};  // name of the encrypted device
};

inline QString blockPath(const QString& name) {
    return udisksObjectPath(QStringLiteral("/dev/") + name);
}

inline UdisksObjects block(const BlockWords& words) {
    const QString none = QStringLiteral("/");
    UdisksInterfaces interfaces;
    interfaces[interfaceName("Block")] = {
        {QStringLiteral("Device"), zeroEnded(QStringLiteral("/dev/") + words.name)},
        {QStringLiteral("Drive"),
         words.drive.isEmpty() ? none : udisksPath(QStringLiteral("drives/") + words.drive)},
        {QStringLiteral("CryptoBackingDevice"),
         words.unlockedFrom.isEmpty() ? none : blockPath(words.unlockedFrom)},
        {QStringLiteral("Size"), words.bytes},
        {QStringLiteral("IdType"), words.type},
        {QStringLiteral("IdVersion"), words.version},
        {QStringLiteral("IdLabel"), words.label},
        {QStringLiteral("HintIgnore"), words.ignored}};
    if (!words.table.isEmpty()) {
        interfaces[interfaceName("Partition")] = {{QStringLiteral("Table"), blockPath(words.table)},
                                                  {QStringLiteral("IsContainer"), words.isContainer}};
    }
    if (words.hasTable) {
        interfaces[interfaceName("PartitionTable")] = {{QStringLiteral("Type"), QStringLiteral("dos")}};
    }
    if (words.isLoop) {
        interfaces[interfaceName("Loop")] = {{QStringLiteral("Autoclear"), true}};
    }
    if (!words.type.isEmpty() && !words.type.startsWith(u"crypto")) {
        QByteArrayList mounts;
        for (const QString& mount : words.mounts) {
            mounts << zeroEnded(mount);
        }
        interfaces[interfaceName("Filesystem")] = {
            {QStringLiteral("MountPoints"), QVariant::fromValue(mounts)},
            {QStringLiteral("Size"), quint64{0}}};
    }
    return {{blockPath(words.name), interfaces}};
}

inline UdisksObjects operator+(UdisksObjects a, const UdisksObjects& b) {
    a.insert(b);
    return a;
}

// Mounted, one FAT volume.
inline UdisksObjects usbStick() {
    const QString id = QStringLiteral("SanDisk_Ultra_4C53");
    return drive({id, QStringLiteral("SanDisk "), QStringLiteral("Ultra"), QStringLiteral("usb")}) +
           block({.name = QStringLiteral("sdb"), .drive = id, .bytes = 31914983424, .hasTable = true}) +
           block({.name = QStringLiteral("sdb1"),
                  .drive = id,
                  .bytes = 31913934848,
                  .type = QStringLiteral("vfat"),
                  .version = QStringLiteral("FAT32"),
                  .label = QStringLiteral("CANON_DC"),
                  .mounts = {QStringLiteral("/media/anna/CANON DC")},
                  .table = QStringLiteral("sdb")});
}

// The slot of a notebook with a card in it, not mounted.
inline UdisksObjects sdReaderWithCard() {
    const QString id = QStringLiteral("SD64G_0x1234");
    return drive({id,
                  QString(),
                  QStringLiteral("SD64G"),
                  QStringLiteral("sdio"),
                  true,
                  true,
                  true,
                  {QStringLiteral("flash_sd")}}) +
           block({.name = QStringLiteral("mmcblk0"), .drive = id, .bytes = 63864569856, .hasTable = true}) +
           block({.name = QStringLiteral("mmcblk0p1"),
                  .drive = id,
                  .bytes = 63847792640,
                  .type = QStringLiteral("exfat"),
                  .version = QStringLiteral("1.0"),
                  .table = QStringLiteral("mmcblk0")});
}

// A reader on the USB with nothing in its slot.
inline UdisksObjects emptySdReader() {
    const QString id = QStringLiteral("Generic_SD_MMC");
    return drive({id, QStringLiteral("Generic-"), QStringLiteral("SD/MMC"), QStringLiteral("usb"), true, true,
                  false}) +
           block({.name = QStringLiteral("sdc"), .drive = id});
}

inline UdisksObjects cardWithoutFileSystem() {
    const QString id = QStringLiteral("Generic_CF");
    return drive({id, QStringLiteral("Generic"), QStringLiteral("CF Reader"), QStringLiteral("usb")}) +
           block({.name = QStringLiteral("sdd"), .drive = id, .bytes = 4034838528});
}

// A phone that shows its memory as a drive, its card slot being empty.
inline UdisksObjects phone() {
    const QString memory = QStringLiteral("Phone_0");
    const QString slot = QStringLiteral("Phone_1");
    return drive({memory, QStringLiteral("Linux"), QStringLiteral("File-CD Gadget"), QStringLiteral("usb")}) +
           block({.name = QStringLiteral("sde"),
                  .drive = memory,
                  .bytes = 2097152000,
                  .type = QStringLiteral("vfat"),
                  .version = QStringLiteral("FAT16"),
                  .label = QStringLiteral("PHONE")}) +
           drive({slot, QStringLiteral("Linux"), QStringLiteral("File-CD Gadget"), QStringLiteral("usb"),
                  true, true, false}) +
           block({.name = QStringLiteral("sdf"), .drive = slot});
}

inline UdisksObjects opticalDrive() {
    const QString id = QStringLiteral("HL_DT_ST_DVD");
    return drive({id,
                  QStringLiteral("HL-DT-ST"),
                  QStringLiteral("DVDRAM"),
                  QStringLiteral("usb"),
                  true,
                  true,
                  true,
                  {QStringLiteral("optical_cd"), QStringLiteral("optical_dvd")}}) +
           block({.name = QStringLiteral("sr0"),
                  .drive = id,
                  .bytes = 734003200,
                  .type = QStringLiteral("iso9660"),
                  .label = QStringLiteral("DISC"),
                  .mounts = {QStringLiteral("/media/anna/DISC")}});
}

inline UdisksObjects loopDevice() {
    return block({.name = QStringLiteral("loop3"),
                  .bytes = 104857600,
                  .type = QStringLiteral("squashfs"),
                  .mounts = {QStringLiteral("/snap/core/1")},
                  .isLoop = true});
}

inline UdisksObjects systemDisk() {
    const QString id = QStringLiteral("Samsung_SSD");
    return drive({id, QString(), QStringLiteral("Samsung SSD 980"), QString(), false, false}) +
           block({.name = QStringLiteral("nvme0n1"), .drive = id, .bytes = 500107862016, .hasTable = true}) +
           block({.name = QStringLiteral("nvme0n1p1"),
                  .drive = id,
                  .bytes = 499000000000,
                  .type = QStringLiteral("ext4"),
                  .version = QStringLiteral("1.0"),
                  .mounts = {QStringLiteral("/")},
                  .table = QStringLiteral("nvme0n1")});
}

}  // namespace vantor::test

// Reading the kernel's own texts about disks.
#include "media/SysfsMedia.h"

#include <QHash>
#include <algorithm>

#include "media/FileSystemName.h"
#include "media/MediumOrder.h"

namespace vantor {

namespace {

struct Mount {
    QString path;
    QString type;
};

// Blanks and the like in a mount path are written as a backslash and three octal digits.
QString withoutEscapes(QStringView text) {
    QByteArray bytes;
    const QByteArray escaped = text.toLocal8Bit();
    for (qsizetype i = 0; i < escaped.size(); ++i) {
        bool isOctal = false;
        const int code = escaped.at(i) == '\\' ? escaped.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        if (isOctal && i + 3 < escaped.size() && code > 0 && code < 256) {
            bytes += static_cast<char>(code);
            i += 3;
        } else {
            bytes += escaped.at(i);
        }
    }
    return QString::fromLocal8Bit(bytes);
}

// Device numbers -> first mount. A line: "36 35 8:17 / /media/card rw shared:1 - vfat /dev/sdb1 rw".
QHash<QString, Mount> mountsIn(const QString& mountInfo) {
    QHash<QString, Mount> mounts;
    for (const QStringView line : QStringView(mountInfo).split(u'\n')) {
        const auto fields = line.split(u' ', Qt::SkipEmptyParts);
        const qsizetype dash = fields.indexOf(QStringView(u"-"));
        if (dash < 6 || dash + 1 >= fields.size()) {
            continue;
        }
        const QString numbers = fields.at(2).toString();
        if (!mounts.contains(numbers)) {
            mounts[numbers] = {withoutEscapes(fields.at(4)), fields.at(dash + 1).toString()};
        }
    }
    return mounts;
}

QString udevValue(const SysfsDevice& device, QStringView key) {
    const QString begin = QStringLiteral("E:%1=").arg(key);
    for (const QStringView line : QStringView(device.udevDatabase).split(u'\n')) {
        if (line.startsWith(begin)) {
            return line.sliced(begin.size()).toString();
        }
    }
    return {};
}

bool isLoop(const SysfsDisk& disk) {
    return disk.disk.name.startsWith(u"loop");
}

bool isOptical(const SysfsDisk& disk) {
    return disk.disk.name.startsWith(u"sr");
}

bool isCardSlot(const SysfsDisk& disk) {
    return disk.disk.name.startsWith(u"mmcblk") && disk.cardType.trimmed() != u"MMC";
}

bool isOnUsb(const SysfsDisk& disk) {
    return disk.hardwarePath.contains(u"/usb");
}

// What the device manager knows of the drive (udisks(8), "DEVICE INFORMATION"), in the disk service's words.
QStringList mediaCompatibility(const SysfsDisk& disk) {
    static constexpr struct {
        const char16_t* key;
        const char* media;
    } kKnown[] = {
        {u"ID_DRIVE_FLASH", "flash"},           {u"ID_DRIVE_FLASH_CF", "flash_cf"},
        {u"ID_DRIVE_FLASH_MS", "flash_ms"},     {u"ID_DRIVE_FLASH_SM", "flash_sm"},
        {u"ID_DRIVE_FLASH_SD", "flash_sd"},     {u"ID_DRIVE_FLASH_SDHC", "flash_sdhc"},
        {u"ID_DRIVE_FLASH_SDXC", "flash_sdxc"}, {u"ID_DRIVE_FLASH_MMC", "flash_mmc"},
        {u"ID_DRIVE_THUMB", "thumb"},
    };
    QStringList media;
    for (const auto& known : kKnown) {
        if (udevValue(disk.disk, known.key) == u"1") {
            media << QLatin1String(known.media);
        }
    }
    return media;
}

bool isOffered(const SysfsDisk& disk) {
    return isLoop(disk) || isOptical(disk) || isCardSlot(disk) || isOnUsb(disk) ||
           disk.removable.trimmed() == u"1";
}

QString busName(const SysfsDisk& disk) {
    if (isLoop(disk)) {
        return QStringLiteral("Disk Image");
    }
    if (isCardSlot(disk)) {
        return QStringLiteral("Secure Digital");
    }
    return isOnUsb(disk) ? QStringLiteral("USB") : QString();
}

// "1" of sdb1 on sdb, of mmcblk0p1 on mmcblk0.
QString partitionOf(const QString& volume, const QString& disk) {
    const QString number = volume.sliced(std::min(disk.size(), volume.size()));
    return number.startsWith(u'p') ? number.sliced(1) : number;
}

class Lister {
  public:
    explicit Lister(const QString& mountInfo) : m_mounts(mountsIn(mountInfo)) {}

    void add(const SysfsDisk& disk, const SysfsDevice& device) {
        const quint64 sectors = device.size.trimmed().toULongLong();
        if (sectors == 0) {
            return;
        }
        const Mount mount = m_mounts.value(device.numbers.trimmed());
        const QString type = udevValue(device, u"ID_FS_TYPE");
        QString name = udevValue(device, u"ID_FS_LABEL");
        const QString hardware = QStringLiteral("%1 %2").arg(disk.vendor.trimmed(), disk.model.trimmed());
        if (name.isEmpty() && &device == &disk.disk && !disk.volumes.isEmpty()) {
            name = hardware.trimmed();
        }
        MediumRecord record;
        record.facts[QStringLiteral("DeviceIdentifier")] = device.name;
        record.facts[QStringLiteral("VolumeName")] = name;
        record.facts[QStringLiteral("FilesystemUserVisibleName")] =
            fileSystemName(type.isEmpty() ? mount.type : type, udevValue(device, u"ID_FS_VERSION"));
        record.facts[QStringLiteral("ParentWholeDisk")] = disk.disk.name;
        record.facts[QStringLiteral("IOKitSize")] = quint64{sectors * kSectorBytes};
        record.facts[QStringLiteral("BusProtocol")] = busName(disk);
        record.facts[QStringLiteral("MediaName")] = hardware.trimmed();
        record.facts[QStringLiteral("MediaCompatibility")] = mediaCompatibility(disk);
        if (isOptical(disk)) {
            record.facts[QStringLiteral("OpticalDeviceType")] = QStringLiteral("CD-ROM");
        }
        MediumIdentity identity{disk.diskSequence.trimmed().toULongLong(), sectors};
        identity.serial = udevValue(disk.disk, u"ID_SERIAL");
        identity.label = udevValue(device, u"ID_FS_LABEL");
        identity.fileSystemId = udevValue(device, u"ID_FS_UUID");
        identity.partition = partitionOf(device.name, disk.disk.name);
        record.target = {QStringLiteral("/dev/") + device.name, identity, std::make_shared<MediumMemory>()};
        record.path = mount.path.isEmpty() ? record.target.path : mount.path;
        m_media << record;
    }

    QList<MediumRecord> take() {
        sortByDevice(m_media);
        return std::move(m_media);
    }

  private:
    QHash<QString, Mount> m_mounts;
    QList<MediumRecord> m_media;
};

}  // namespace

QList<MediumRecord> sysfsMedia(const QList<SysfsDisk>& disks, const QString& mountInfo) {
    Lister lister(mountInfo);
    for (const SysfsDisk& disk : disks) {
        if (!isOffered(disk)) {
            continue;
        }
        lister.add(disk, disk.disk);
        for (const SysfsDevice& volume : disk.volumes) {
            lister.add(disk, volume);
        }
    }
    return lister.take();
}

}  // namespace vantor

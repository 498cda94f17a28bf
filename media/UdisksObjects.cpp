// Reading the object tree of the disk service; no bus is needed here.
#include "media/UdisksObjects.h"

#include <QByteArrayList>
#include <QFileInfo>

#include "media/FileSystemName.h"
#include "media/MediumOrder.h"

namespace vantor {

namespace {

constexpr char kBlock[] = "org.freedesktop.UDisks2.Block";
constexpr char kDrive[] = "org.freedesktop.UDisks2.Drive";
constexpr char kFilesystem[] = "org.freedesktop.UDisks2.Filesystem";
constexpr char kLoop[] = "org.freedesktop.UDisks2.Loop";
constexpr char kPartition[] = "org.freedesktop.UDisks2.Partition";
constexpr char kPartitionTable[] = "org.freedesktop.UDisks2.PartitionTable";
constexpr char kNothing[] = "/";  // the object path that stands for none

// The bytes of a path end with a zero byte.
QString pathText(const QByteArray& bytes) {
    return QString::fromLocal8Bit(bytes.constData());
}

class Tree {
  public:
    explicit Tree(const UdisksObjects& objects) : m_objects(objects) {}

    bool has(const QString& path, const char* interface) const {
        return m_objects.value(path).contains(QLatin1String(interface));
    }
    QVariant value(const QString& path, const char* interface, const char* name) const {
        return m_objects.value(path).value(QLatin1String(interface)).value(QLatin1String(name));
    }
    QString text(const QString& path, const char* interface, const char* name) const {
        return value(path, interface, name).toString();
    }
    bool isOn(const QString& path, const char* interface, const char* name) const {
        return value(path, interface, name).toBool();
    }

    QString identifier(const QString& block) const {
        const QByteArray device = value(block, kBlock, "Device").toByteArray();
        return QFileInfo(pathText(device)).fileName();
    }

    // The drive of a device, also of one that was unlocked from an encrypted device.
    QString driveOf(QString block) const {
        for (int depth = 0; depth < 8; ++depth) {
            const QString drive = text(block, kBlock, "Drive");
            if (!drive.isEmpty() && drive != QLatin1String(kNothing)) {
                return drive;
            }
            block = text(block, kBlock, "CryptoBackingDevice");
            if (block.isEmpty() || block == QLatin1String(kNothing)) {
                break;
            }
        }
        return {};
    }

  private:
    const UdisksObjects& m_objects;
};

bool isRemovable(const Tree& tree, const QString& drive) {
    return tree.isOn(drive, kDrive, "Removable") || tree.isOn(drive, kDrive, "MediaRemovable");
}

QString driveName(const Tree& tree, const QString& drive) {
    return QStringLiteral("%1 %2")
        .arg(tree.text(drive, kDrive, "Vendor").trimmed(), tree.text(drive, kDrive, "Model").trimmed())
        .trimmed();
}

// "CD-ROM, CD-R, DVD-ROM …" of what the drive takes; empty for one that is not optical.
QString opticalTypes(const Tree& tree, const QString& drive) {
    static constexpr struct {
        const char* media;
        const char* type;
    } kTypes[] = {
        {"optical_cd", "CD-ROM"},          {"optical_cd_r", "CD-R"},
        {"optical_cd_rw", "CD-RW"},        {"optical_dvd", "DVD-ROM"},
        {"optical_dvd_r", "DVD-R"},        {"optical_dvd_rw", "DVD-RW"},
        {"optical_dvd_ram", "DVD-RAM"},    {"optical_dvd_plus_r", "DVD+R"},
        {"optical_dvd_plus_rw", "DVD+RW"}, {"optical_dvd_plus_r_dl", "DVD+R DL"},
        {"optical_bd", "BD-ROM"},          {"optical_bd_r", "BD-R"},
        {"optical_bd_re", "BD-RE"},
    };
    const QStringList takes = tree.value(drive, kDrive, "MediaCompatibility").toStringList();
    QStringList types;
    for (const auto& known : kTypes) {
        if (takes.contains(QLatin1String(known.media))) {
            types << QLatin1String(known.type);
        }
    }
    return types.join(QStringLiteral(", "));
}

QString busName(const Tree& tree, const QString& block, const QString& drive) {
    if (tree.has(block, kLoop)) {
        return QStringLiteral("Disk Image");
    }
    const QString bus = tree.text(drive, kDrive, "ConnectionBus");
    if (bus == u"usb") {
        return QStringLiteral("USB");
    }
    if (bus == u"sdio") {
        return QStringLiteral("Secure Digital");
    }
    return bus == u"ieee1394" ? QStringLiteral("FireWire") : QString();
}

bool isOffered(const Tree& tree, const QString& block, const QString& drive) {
    if (tree.isOn(block, kBlock, "HintIgnore") || tree.isOn(block, kPartition, "IsContainer") ||
        tree.value(block, kBlock, "Size").toULongLong() == 0) {
        return false;
    }
    return tree.has(block, kLoop) || (!drive.isEmpty() && isRemovable(tree, drive));
}

QString mountPath(const Tree& tree, const QString& block) {
    const auto points = tree.value(block, kFilesystem, "MountPoints").value<QByteArrayList>();
    return points.isEmpty() ? QString() : pathText(points.first());
}

// A partitioned disk has no name of its own, so it goes by what stands on its case.
QString volumeName(const Tree& tree, const QString& block, const QString& drive) {
    const QString label = tree.text(block, kBlock, "IdLabel");
    return label.isEmpty() && tree.has(block, kPartitionTable) ? driveName(tree, drive) : label;
}

MediumRecord recordOf(const Tree& tree, const QString& block, const QString& drive) {
    const QString identifier = tree.identifier(block);
    const quint64 bytes = tree.value(block, kBlock, "Size").toULongLong();
    const QString table = tree.text(block, kPartition, "Table");
    const auto text = [&](const char* name) { return tree.text(block, kBlock, name); };

    MediumRecord record;
    record.facts[QStringLiteral("DeviceIdentifier")] = identifier;
    record.facts[QStringLiteral("VolumeName")] = volumeName(tree, block, drive);
    record.facts[QStringLiteral("FilesystemUserVisibleName")] =
        fileSystemName(text("IdType"), text("IdVersion"));
    record.facts[QStringLiteral("ParentWholeDisk")] = table.isEmpty() ? identifier : tree.identifier(table);
    record.facts[QStringLiteral("IOKitSize")] = bytes;
    record.facts[QStringLiteral("BusProtocol")] = busName(tree, block, drive);
    record.facts[QStringLiteral("MediaName")] = driveName(tree, drive);
    record.facts[QStringLiteral("MediaCompatibility")] =
        tree.value(drive, kDrive, "MediaCompatibility").toStringList();
    if (const QString optical = opticalTypes(tree, drive); !optical.isEmpty()) {
        record.facts[QStringLiteral("OpticalDeviceType")] = optical;
    }
    record.target.path = pathText(tree.value(block, kBlock, "Device").toByteArray());
    record.target.identity.sectors = bytes / kSectorBytes;
    const QString mounted = mountPath(tree, block);
    record.path = mounted.isEmpty() ? record.target.path : mounted;
    return record;
}

}  // namespace

QList<MediumRecord> udisksMedia(const UdisksObjects& objects) {
    const Tree tree(objects);
    QList<MediumRecord> media;
    for (auto it = objects.constBegin(); it != objects.constEnd(); ++it) {
        const QString drive = tree.driveOf(it.key());
        if (tree.has(it.key(), kBlock) && isOffered(tree, it.key(), drive)) {
            media << recordOf(tree, it.key(), drive);
        }
    }
    sortByDevice(media);
    return media;
}

QString udisksObjectPath(const QString& node) {
    QString path = kUdisksPath + QStringLiteral("/block_devices/");
    for (const char c : QFileInfo(node).fileName().toUtf8()) {
        const bool plain = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        path += plain
                    ? QString(QLatin1Char(c))
                    : QStringLiteral("_%1").arg(static_cast<uint>(static_cast<uchar>(c)), 2, 16, QChar(u'0'));
    }
    return path;
}

}  // namespace vantor

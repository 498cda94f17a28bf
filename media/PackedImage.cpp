// Telling packed images from plain ones by their first and last bytes.
#include <QFile>
#include <QObject>
#include <QString>
#include <optional>

#include "media/ImageFile.h"
#include "media/PlainFile.h"

namespace vantor {

namespace {

enum class Packing { Compressed, Archive, VirtualDisk, Evidence, SingleFiles, DiskImage };

struct Mark {
    qint64 offset;  // bytes; from the end when negative
    QByteArrayView bytes;
    const char* name;
    Packing packing;
};

// Public descriptions: RFC 1952 (gzip), the .xz file format, bzip2, RFC 8878 (Zstandard), LZ4 frame format,
// APPNOTE (zip), 7z and RAR signatures, QCOW2, VDI, VHD and VHDX specifications, VMware virtual disk format,
// EWF, AFF4 (a zip), and the trailer of a UDIF image.
constexpr Mark kMarks[] = {
    {0, "\x1f\x8b\x08", "gzip", Packing::Compressed},
    {0,
     QByteArrayView("\xfd"
                    "7zXZ\x00",
                    6),
     "xz", Packing::Compressed},
    {0, "BZh", "bzip2", Packing::Compressed},
    {0, "\x28\xb5\x2f\xfd", "Zstandard", Packing::Compressed},
    {0, "\x04\x22\x4d\x18", "LZ4", Packing::Compressed},
    {0, "PK\x03\x04", "ZIP", Packing::Archive},
    {0, "7z\xbc\xaf\x27\x1c", "7z", Packing::Archive},
    {0, "Rar!\x1a\x07", "RAR", Packing::Archive},
    {0, "QFI\xfb", "QCOW2", Packing::VirtualDisk},
    {0x40, "\x7f\x10\xda\xbe", "VDI", Packing::VirtualDisk},
    {0, "KDMV", "VMDK", Packing::VirtualDisk},
    {0, "COWD", "VMDK", Packing::VirtualDisk},
    {0, "# Disk DescriptorFile", "VMDK", Packing::VirtualDisk},
    {0, "vhdxfile", "VHDX", Packing::VirtualDisk},
    {0, "EVF2\x0d\x0a\x81", "Ex01", Packing::Evidence},
    {0, "LVF\x09\x0d\x0a\xff", "L01", Packing::SingleFiles},
    {0, "LEF2\x0d\x0a\x81", "Lx01", Packing::SingleFiles},
    {0, "AFF10\x0d\x0a", "AFF", Packing::Evidence},
    {-512, QByteArrayView("koly\x00\x00\x00\x04", 8), "Apple disk image", Packing::DiskImage},
};

// A dynamic or differencing VHD has a copy of its footer in front; a fixed one is a plain image with 512
// bytes behind it.
constexpr QByteArrayView kVhdCookie = "conectix";

bool standsAt(QFile& file, qint64 offset, QByteArrayView bytes) {
    const qint64 at = offset < 0 ? file.size() + offset : offset;
    return at >= 0 && at + bytes.size() <= file.size() && file.seek(at) && file.read(bytes.size()) == bytes;
}

QString advice(Packing packing) {
    switch (packing) {
        case Packing::Compressed:
        case Packing::Archive:
            return QObject::tr("Please unpack it first and open the image file that is inside.");
        case Packing::VirtualDisk:
            return QObject::tr(
                "Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and "
                "open "
                "that.");
        case Packing::Evidence:
            return QObject::tr("Please export it as a raw (dd) or E01 image first and open that.");
        case Packing::SingleFiles:
            return QObject::tr(
                "It holds single files rather than a storage medium. Please open an image of the medium.");
        case Packing::DiskImage:
            return QObject::tr("Please convert it to a raw image first and open that.");
    }
    return {};
}

QString sentence(const QString& path, const QString& format, Packing packing) {
    return QObject::tr("“%1” is packed (%2) and cannot be searched as it stands. %3")
        .arg(path, format, advice(packing));
}

}  // namespace

std::optional<QString> refusePackedImage(const QString& path) {
    QFile file(path);
    if (!openPlainFile(file)) {
        return std::nullopt;
    }
    for (const Mark& mark : kMarks) {
        if (standsAt(file, mark.offset, mark.bytes)) {
            return sentence(path, QLatin1String(mark.name), mark.packing);
        }
    }
    if (file.size() > 512 && standsAt(file, 0, kVhdCookie)) {
        return sentence(path, QStringLiteral("VHD"), Packing::VirtualDisk);
    }
    return std::nullopt;
}

}  // namespace vantor

// The table behind the display names.
#include "media/FileSystemName.h"

namespace vantor {

namespace {

struct Name {
    const char* type;
    const char* shown;
};

constexpr Name kNames[] = {
    {"exfat", "ExFAT"},
    {"fuseblk", ""},
    {"ntfs", "NTFS"},
    {"ntfs3", "NTFS"},
    {"ext2", "Ext2"},
    {"ext3", "Ext3"},
    {"ext4", "Ext4"},
    {"btrfs", "Btrfs"},
    {"xfs", "XFS"},
    {"f2fs", "F2FS"},
    {"hfs", "Mac OS Standard"},
    {"hfsplus", "Mac OS Extended"},
    {"apfs", "APFS"},
    {"udf", "UDF"},
    {"iso9660", "ISO 9660"},
    {"jfs", "JFS"},
    {"reiserfs", "ReiserFS"},
    {"crypto_LUKS", "LUKS (encrypted)"},
    {"BitLocker", "BitLocker (encrypted)"},
};

}  // namespace

QString fileSystemName(const QString& type, const QString& version) {
    if (type == u"vfat" || type == u"msdos") {
        return version.startsWith(u"FAT") ? QStringLiteral("MS-DOS (%1)").arg(version)
                                          : QStringLiteral("MS-DOS (FAT)");
    }
    for (const Name& name : kNames) {
        if (type == QLatin1String(name.type)) {
            return QLatin1String(name.shown);
        }
    }
    return {};
}

}  // namespace vantor

// What bytes that are written into a folder end up on, however many layers lie in between.
#pragma once

#include <sys/types.h>

#include <QSet>
#include <QString>
#include <memory>
#include <utility>

#include "saving/MountTable.h"

namespace vantor {

using FileIdentity = std::pair<dev_t, ino_t>;

// Whole disks by their kernel names, such as "sdb", and files that serve as disks.
struct Storage {
    QSet<QString> disks;
    QSet<FileIdentity> files;

    bool sharesWith(const Storage& other) const {
        return disks.intersects(other.disks) || files.intersects(other.files);
    }
};

// Where the kernel tells of its devices (Linux, Documentation/ABI/testing/sysfs-block) and mounts.
struct KernelTables {
    QString sysRoot = QStringLiteral("/sys");
    std::shared_ptr<MountTable> mounts = MountTable::ofThisProcess();
};

// Everything below the file systems of a device number (st_dev): disks under partitions, unlocked and joined
// volumes; the files behind loop devices and what those lie on; the upper folders of overlays; every member
// of a file system that spans several devices.
Storage storageBelow(dev_t device, const KernelTables& tables = {});

// The medium itself: the disks of a device and the files they are made of, or the parts of an image. What an
// image lies on is not it. Empty when there is nothing at the path.
Storage storageOfMedium(const QString& mediumPath, const KernelTables& tables = {});

}  // namespace vantor

// The partitions of a disk as the kernel read them, without opening it.
#pragma once

#include <QString>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

struct KernelPartition {
    QString name;  // "sdb1"
    SectorRun sectors;
};

// In their order on the disk; none for what is no disk or has none. See the folder /sys/class/block of the
// kernel (Documentation/ABI/stable/sysfs-block). `root` is "" but in tests.
std::vector<KernelPartition> kernelPartitionsOf(const QString& disk, const QString& root = {});

}  // namespace vantor

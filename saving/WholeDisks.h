// Which disks a block device is made of.
#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QSet>
#include <QString>
#include <optional>

namespace vantor {

// The names of the whole disks behind a block device number, such as "sdb": of a partition its disk, of an
// unlocked, joined or otherwise stacked device all disks below it. Empty when the system knows none.
// `sysRoot` is where the kernel shows its devices (Linux, Documentation/ABI/stable/sysfs-block: "slaves").
QSet<QString> wholeDisksOf(dev_t device, const QString& sysRoot = QStringLiteral("/sys"));

// The path of the file that a whole disk such as "loop0" is made of; nothing for real disks.
std::optional<QByteArray> backingFileOf(const QString& disk, const QString& sysRoot = QStringLiteral("/sys"));

}  // namespace vantor

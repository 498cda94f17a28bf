// Follows the kernel's links from a device down to disks.
#include "saving/WholeDisks.h"

#include <sys/sysmacros.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace vantor {

namespace {

constexpr int kMostDevices = 256;  // of one stack

}  // namespace

QSet<QString> wholeDisksOf(dev_t device, const QString& sysRoot) {
    QSet<QString> disks, seen;
    QStringList waiting{
        QStringLiteral("%1/dev/block/%2:%3").arg(sysRoot).arg(major(device)).arg(minor(device))};
    while (!waiting.isEmpty() && seen.size() < kMostDevices) {
        QString node = QFileInfo(waiting.takeLast()).canonicalFilePath();
        if (node.isEmpty() || seen.contains(node)) {
            continue;
        }
        seen.insert(node);
        if (QFileInfo::exists(node + QStringLiteral("/partition"))) {
            node = QFileInfo(node).path();
        }
        const QFileInfoList below =
            QDir(node + QStringLiteral("/slaves")).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
        if (below.isEmpty()) {
            disks.insert(QFileInfo(node).fileName());
        }
        for (const QFileInfo& slave : below) {
            waiting.append(slave.filePath());
        }
    }
    return disks;
}

std::optional<QByteArray> backingFileOf(const QString& disk, const QString& sysRoot) {
    QFile told(QStringLiteral("%1/block/%2/loop/backing_file").arg(sysRoot, disk));
    if (!told.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QByteArray path = told.readAll();
    if (path.endsWith('\n')) {
        path.chop(1);
    }
    return path;
}

}  // namespace vantor

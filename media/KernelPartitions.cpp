// Reading the kernel's texts; what is no number counts as absent.
#include "media/KernelPartitions.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <limits>
#include <optional>

namespace vantor {

namespace {

constexpr std::size_t kMostPartitions = 256;
constexpr qint64 kMostText = 64;

std::optional<std::uint64_t> numberIn(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    bool isNumber = false;
    const qulonglong number = file.readLine(kMostText).trimmed().toULongLong(&isNumber);
    return isNumber ? std::optional<std::uint64_t>(number) : std::nullopt;
}

}  // namespace

std::vector<KernelPartition> kernelPartitionsOf(const QString& disk, const QString& root) {
    std::vector<KernelPartition> partitions;
    if (disk.isEmpty() || disk.contains(u'/') || disk.startsWith(u'.')) {
        return partitions;
    }
    const QDir folder(root + QStringLiteral("/sys/class/block/") + disk);
    for (const QString& name : folder.entryList({disk + u'*'}, QDir::Dirs)) {
        const QString place = folder.filePath(name);
        const auto first = numberIn(place + QStringLiteral("/start"));
        const auto count = numberIn(place + QStringLiteral("/size"));
        if (!first || !count || *count == 0 || partitions.size() >= kMostPartitions ||
            *first > std::numeric_limits<std::uint64_t>::max() - *count) {
            continue;
        }
        partitions.push_back({name, {*first, *first + *count}});
    }
    std::sort(partitions.begin(), partitions.end(), [](const auto& a, const auto& b) {
        return std::pair(a.sectors.first, a.name) < std::pair(b.sectors.first, b.name);
    });
    return partitions;
}

}  // namespace vantor

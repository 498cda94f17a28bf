// Collecting the kernel's texts, and noticing when they change.
#include "media/SysfsBackend.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace vantor {

namespace {

constexpr int kWatchMs = 2000;
constexpr qint64 kMostText = 1 << 20;  // bytes; the longest is a mount table

QString textOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.read(kMostText)) : QString();
}

SysfsDevice readDevice(const QString& root, const QString& folder) {
    SysfsDevice device;
    device.name = QFileInfo(folder).fileName();
    device.size = textOf(folder + QStringLiteral("/size"));
    device.numbers = textOf(folder + QStringLiteral("/dev"));
    device.udevDatabase = textOf(root + QStringLiteral("/run/udev/data/b") + device.numbers.trimmed());
    return device;
}

bool sameMedium(const MediumRecord& a, const MediumRecord& b) {
    return a.path == b.path && a.facts == b.facts && a.target.path == b.target.path &&
           a.target.identity.diskSequence == b.target.identity.diskSequence;
}

}  // namespace

QList<SysfsDisk> readSysfsDisks(const QString& root) {
    QList<SysfsDisk> disks;
    const QDir block(root + QStringLiteral("/sys/block"));
    for (const QString& name : block.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString folder = block.filePath(name);
        SysfsDisk disk;
        disk.disk = readDevice(root, folder);
        disk.removable = textOf(folder + QStringLiteral("/removable"));
        disk.vendor = textOf(folder + QStringLiteral("/device/vendor"));
        disk.model = textOf(folder + QStringLiteral("/device/model"));
        if (disk.model.isEmpty()) {
            disk.model = textOf(folder + QStringLiteral("/device/name"));  // an SD card's product name
        }
        disk.cardType = textOf(folder + QStringLiteral("/device/type"));
        disk.diskSequence = textOf(folder + QStringLiteral("/diskseq"));
        disk.hardwarePath = QFileInfo(folder).canonicalFilePath();
        for (const QString& part : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString volume = folder + u'/' + part;
            if (QFileInfo::exists(volume + QStringLiteral("/partition"))) {
                disk.volumes << readDevice(root, volume);
            }
        }
        disks << disk;
    }
    return disks;
}

QList<MediumTarget> presentTargets(const QString& root) {
    QList<MediumTarget> targets;
    for (const MediumRecord& record : sysfsMedia(readSysfsDisks(root), {})) {
        targets << record.target;
    }
    return targets;
}

SysfsBackend::SysfsBackend(QString root) : m_root(std::move(root)) {
    m_watch.setInterval(kWatchMs);
    connect(&m_watch, &QTimer::timeout, this, &SysfsBackend::look);
}

QList<MediumRecord> SysfsBackend::current() const {
    return sysfsMedia(readSysfsDisks(m_root), textOf(m_root + QStringLiteral("/proc/self/mountinfo")));
}

std::optional<QList<MediumRecord>> SysfsBackend::list() {
    m_listed = current();
    m_watch.start();
    return m_listed;
}

void SysfsBackend::look() {
    const QList<MediumRecord> now = current();
    const bool same = std::equal(now.begin(), now.end(), m_listed.begin(), m_listed.end(), sameMedium);
    if (!same) {
        m_listed = now;
        if (changed) {
            changed();
        }
    }
}

}  // namespace vantor

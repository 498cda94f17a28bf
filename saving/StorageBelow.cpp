// Follows layer after layer by device numbers, as the kernel tells them.
#include "saving/StorageBelow.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <algorithm>
#include <optional>

#include "media/ImageParts.h"
#include "saving/WholeDisks.h"

namespace vantor {

namespace {

constexpr int kMostLayers = 256;

std::optional<struct stat> statOf(const QByteArray& path) {
    struct stat info {};
    if (::stat(path.constData(), &info) != 0) {
        return std::nullopt;
    }
    return info;
}

FileIdentity identityOf(const struct stat& info) {
    return {info.st_dev, info.st_ino};
}

class Descent {
  public:
    explicit Descent(const KernelTables& tables) : m_tables(tables) {}

    Storage from(dev_t device) {
        m_waiting.append(device);
        while (!m_waiting.isEmpty() && m_seen.size() < kMostLayers) {
            const dev_t next = m_waiting.takeLast();
            if (m_seen.contains(next)) {
                continue;
            }
            m_seen.insert(next);
            // Some file systems report a number of no device; then the table of mounts names what is below.
            if (major(next) != 0) {
                addDisks(next);
            }
            for (const Mount& mount : m_tables.mounts->of(next)) {
                addMount(mount);
            }
        }
        return m_storage;
    }

  private:
    void addDisks(dev_t device) {
        for (const QString& disk : wholeDisksOf(device, m_tables.sysRoot)) {
            m_storage.disks.insert(disk);
            if (const auto file = backingFileOf(disk, m_tables.sysRoot)) {
                addFile(*file);
            }
        }
    }

    // A file that serves as a disk lies on something itself.
    void addFile(const QByteArray& path) {
        if (const auto info = statOf(path)) {
            m_storage.files.insert(identityOf(*info));
            m_waiting.append(info->st_dev);
        }
    }

    void addMount(const Mount& mount) {
        if (mount.type == "overlay") {
            for (const QByteArray& option : mount.options) {
                if (option.startsWith("upperdir=") || option.startsWith("workdir=")) {
                    const auto info = statOf(unescapedMountField(option.mid(option.indexOf('=') + 1)));
                    if (info) {
                        m_waiting.append(info->st_dev);
                    }
                }
            }
            return;
        }
        const auto source = mount.source.startsWith('/') ? statOf(mount.source) : std::nullopt;
        if (source && S_ISBLK(source->st_mode)) {
            m_waiting.append(source->st_rdev);
            if (mount.type == "btrfs") {
                addMembers(source->st_rdev);
            }
        } else if (source && S_ISREG(source->st_mode)) {
            addFile(mount.source);
        }
    }

    // The other devices of the file system that this one is a member of.
    void addMembers(dev_t device) {
        const QByteArray number = QByteArray::number(major(device)) + ':' + QByteArray::number(minor(device));
        const QDir all(m_tables.sysRoot + QStringLiteral("/fs/btrfs"));
        for (const QString& one : all.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QDir members(all.filePath(one) + QStringLiteral("/devices"));
            QList<QByteArray> numbers;
            for (const QString& member : members.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
                QFile file(members.filePath(member) + QStringLiteral("/dev"));
                if (file.open(QIODevice::ReadOnly)) {
                    numbers.append(file.readAll().trimmed());
                }
            }
            if (!numbers.contains(number)) {
                continue;
            }
            for (const QByteArray& member : numbers) {
                const qsizetype colon = member.indexOf(':');
                m_waiting.append(makedev(member.left(colon).toUInt(), member.mid(colon + 1).toUInt()));
            }
        }
    }

    const KernelTables& m_tables;
    Storage m_storage;
    QList<dev_t> m_waiting;
    QSet<dev_t> m_seen;
};

}  // namespace

Storage storageBelow(dev_t device, const KernelTables& tables) {
    return Descent(tables).from(device);
}

Storage storageOfMedium(const QString& mediumPath, const KernelTables& tables) {
    Storage storage;
    const auto info = statOf(QFile::encodeName(mediumPath));
    if (info && S_ISBLK(info->st_mode)) {
        storage.disks = wholeDisksOf(info->st_rdev, tables.sysRoot);
        for (const QString& disk : storage.disks) {
            const auto path = backingFileOf(disk, tables.sysRoot);
            if (const auto file = path ? statOf(*path) : std::nullopt) {
                storage.files.insert(identityOf(*file));
            }
        }
    } else if (info && S_ISREG(info->st_mode)) {
        for (const QString& part : imageParts(mediumPath)) {
            if (const auto file = statOf(QFile::encodeName(part))) {
                storage.files.insert(identityOf(*file));
            }
        }
    }
    return storage;
}

}  // namespace vantor

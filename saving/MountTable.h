// What is mounted, read anew only when the kernel says that it has changed.
#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <mutex>

#include "media/FileDescriptor.h"

namespace vantor {

// One line of the table (Linux, Documentation/filesystems/proc.rst, "mountinfo").
struct Mount {
    QByteArray number;  // of the device, such as "8:17"
    QByteArray type;
    QByteArray source;
    QList<QByteArray> options;  // of the file system
};

// Blanks and the like stand in a field as three octal digits behind a backslash.
QByteArray unescapedMountField(const QByteArray& field);

// Any thread. The kernel marks the open table as changed with each mount and unmount (proc(5),
// "/proc/pid/mounts"), so that asking is one poll; what could not be opened or watched is read each time.
class MountTable {
  public:
    explicit MountTable(QString path);
    static std::shared_ptr<MountTable> ofThisProcess();

    // The mounts of a device number as they stand at this moment; none where there is no table.
    QList<Mount> of(dev_t device);

    int readings() const { return m_readings; }

  private:
    bool hasChanged();
    void read();

    std::mutex m_mutex;
    QString m_path;
    FileDescriptor m_table;  // opened with the first question
    bool m_isWatched = false;
    bool m_isRead = false;
    int m_readings = 0;
    QList<Mount> m_mounts;
};

}  // namespace vantor

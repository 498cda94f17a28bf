// From the texts of the kernel's block folder and mount table to media.
#pragma once

#include <QList>
#include <QString>

#include "media/MediaBackend.h"

namespace vantor {

// One disk or volume as its folder describes it, line ends and all; empty where there is no such file.
struct SysfsDevice {
    QString name;          // "sdb1"
    QString size;          // 512-byte sectors, whatever the medium's own block size
    QString numbers;       // "8:17"
    QString udevDatabase;  // lines such as "E:ID_FS_LABEL=CANON_DC"; the udev data of the device
};

struct SysfsDisk {
    SysfsDevice disk;
    QString removable;  // "1": the medium can leave the drive; card slots and some readers say "0"
    QString vendor, model;
    QString cardType;      // of an MMC or SD slot: "SD", "MMC"
    QString hardwarePath;  // where the folder's link leads: ".../usb2/2-1/..."
    QString diskSequence;
    QList<SysfsDevice> volumes;
};

// Disks and volumes that can be taken out of the machine, loop devices ("Disk Image") and optical drives, by
// device name; empty slots are left out. `mountInfo` is the text of /proc/self/mountinfo (proc(5)).
QList<MediumRecord> sysfsMedia(const QList<SysfsDisk>& disks, const QString& mountInfo);

}  // namespace vantor

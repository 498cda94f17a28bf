// From the objects of the disk service to media.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QVariantMap>

#include "media/MediaBackend.h"

namespace vantor {

inline const QString kUdisksService = QStringLiteral("org.freedesktop.UDisks2");
inline const QString kUdisksPath = QStringLiteral("/org/freedesktop/UDisks2");  // of its manager

// Object path -> interface -> properties, as org.freedesktop.UDisks2 manages them. Object paths among the
// values are strings, arrays of byte arrays are QByteArrayList.
using UdisksInterfaces = QMap<QString, QVariantMap>;
using UdisksObjects = QMap<QString, UdisksInterfaces>;

// Disks and volumes of removable drives that hold a medium, loop devices ("Disk Image"), and optical drives,
// by device name; a disk comes before its volumes. Property names and meanings: the UDisks2 reference manual.
QList<MediumRecord> udisksMedia(const UdisksObjects& objects);

// The object of a device node: "/dev/dm-0" is …/block_devices/dm_2d0.
QString udisksObjectPath(const QString& node);

}  // namespace vantor

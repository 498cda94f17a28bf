// Which storage media the machine has, and the facts of each.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <functional>
#include <memory>

#include "media/SectorReader.h"

namespace vantor {

// The facts of a volume under the disk utility's keys: "DeviceIdentifier", "VolumeName",
// "FilesystemUserVisibleName", "ParentWholeDisk", "IOKitSize" (bytes, quint64), "BusProtocol",
// "OpticalDeviceType", "MediaName". Absent keys stand for facts that are not known.
using MediaFacts = QVariantMap;

// A platform's answers. Main thread only; calls may block for a bounded time.
class MediaSource {
  public:
    MediaSource() = default;
    MediaSource(const MediaSource&) = delete;
    MediaSource& operator=(const MediaSource&) = delete;
    virtual ~MediaSource() = default;

    // The removable media, a mount path or device path each, in the platform's order.
    virtual QStringList mountedRemovableMedia() = 0;

    // All local volumes by device name, for the second enumerator.
    virtual QStringList localVolumes() { return mountedRemovableMedia(); }

    // The facts of one of these paths or of a device identifier; empty when it cannot be queried.
    virtual MediaFacts diskInfo(const QString& path) = 0;

    // Called on the main thread when media were put in, pulled out, mounted or renamed.
    std::function<void()> changed;
};

}  // namespace vantor

// Which storage media the machine has, and the facts of each.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <functional>
#include <memory>

#include "media/MediumTargets.h"
#include "media/RawDevice.h"
#include "media/SectorReader.h"

namespace vantor {

// The facts of a volume under the disk utility's keys: "DeviceIdentifier", "VolumeName",
// "FilesystemUserVisibleName", "ParentWholeDisk", "IOKitSize" (bytes, quint64), "BusProtocol",
// "OpticalDeviceType", "MediaName", and what the drive takes under "MediaCompatibility". Absent keys stand
// for facts that are not known.
using MediaFacts = QVariantMap;

// What became of an image file that the user wants as a medium.
struct OpenedImage {
    QString identifier;  // its "DeviceIdentifier" from now on; empty when refused
    QString refusal;     // a sentence for the user
};

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

    // Keeps an image file (or all parts of a split one) as a further medium, across refreshes. The same image
    // twice is one medium.
    virtual OpenedImage addImage(const QString& path) {
        return {{}, QObject::tr("“%1” cannot be opened.").arg(path)};
    }

    // Where the media of the last listing are to be opened; lives on with whoever keeps it.
    virtual std::shared_ptr<const MediumTargets> targets() const { return nullptr; }

    // How to get at a device that the user may not open; empty where there is no way.
    virtual DescriptorRequest descriptorRequest() const { return {}; }

    // Called on the main thread when media were put in, pulled out, mounted or renamed.
    std::function<void()> changed;
};

}  // namespace vantor

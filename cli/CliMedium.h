// From what the user named to a medium that can be searched.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "media/HeldImage.h"
#include "media/MediaSource.h"
#include "media/MediumCopy.h"
#include "scan/ScanSession.h"

namespace vantor {

struct CliMedium {
    std::uint64_t sectors = 0;
    QString path;                       // of the image or the device's node
    MediumOpener open;                  // for every pass and copy; also when the medium cannot be opened
    MediumCopy::OpenMedium openSource;  // the medium itself, for whoever copies it
    QString complaint;                  // a sentence for the user; empty when all is well
    // How the last opening went; null where the complaint says it.
    std::shared_ptr<const LastRefusal> refusal;
    std::shared_ptr<const HeldImage> image;  // null of a device that the machine lists
};

// Finds the medium by path or identifier. `stop` ends waits for a device that hangs and for the user's
// consent. The source is asked only for what is no file. `map` is the path of an image's map; empty: the one
// beside it, if there is one. Main thread.
CliMedium findMedium(const QString& name, MediaSource& source, StopRequest stop, const QString& map = {});

}  // namespace vantor

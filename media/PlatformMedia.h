// The media of this machine, and how the scans open them.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "media/ImageShelf.h"
#include "media/MediaSource.h"
#include "media/RawDevice.h"

namespace vantor {

// The disk service where it answers, else the kernel's own texts (Linux); the disk utility (macOS). With
// both, a shelf of opened images, whose file systems `teller` names. Needs an application object; main
// thread.
std::unique_ptr<MediaSource> makePlatformMediaSource(FileSystemTeller teller = {});

// The media in the machine's slots at the moment, as they are compared with those listed before. Any thread.
QList<MediumTarget> mediaPresent();

// Opens "/dev/r" + identifier: the node or image that the source listed last under that identifier, and only
// the same medium, which may have been taken out and put back. Any thread but the main one, since asking the
// user for consent may take minutes; `stop` ends that wait as it ends any other; `refusal` is told how it
// went. Lives on without the source.
std::function<std::unique_ptr<SectorReader>(const QString& devicePath)> makeMediumOpener(
    const MediaSource& source, StopRequest stop = {}, std::shared_ptr<LastRefusal> refusal = {});

// As makeMediumOpener(), for whoever reads the medium itself: `also` ends the waits beside `stop`.
std::function<std::unique_ptr<BlockSource>(const QString& devicePath, StopRequest also)> makeSourceOpener(
    const MediaSource& source, StopRequest stop = {}, std::shared_ptr<LastRefusal> refusal = {});

// True when one of the two is; either may be absent.
StopRequest eitherStop(StopRequest one, StopRequest other);

}  // namespace vantor

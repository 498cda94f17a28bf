// Evidence images (E01): how the program gets at the medium inside.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "media/AbandonableSource.h"
#include "media/BlockSource.h"
#include "media/FileDescriptor.h"
#include "media/HeldImage.h"

namespace vantor {

// Makes a medium of the segments of an evidence image, which are open for reading, in their order. Null, and
// a sentence for the user without its full stop, when they hold none that can be read. The thread that calls
// it reads the medium and lets go of it. May take as long as the image has segments.
using EvidenceOpener =
    std::function<std::unique_ptr<BlockSource>(std::vector<FileDescriptor> segments, QString* why)>;

// Such images are hostile input that only a helper may take apart, and helpers are the affair of a room
// above: this is where it says how. To be called once, before a medium is opened.
void setEvidenceOpener(EvidenceOpener opener);

// The medium in the evidence image of which `path` is a segment, read by a thread of its own; `stop` ends its
// waits. Null, with a sentence as above or else errno.
std::unique_ptr<BlockSource> openEvidenceImage(const HeldImage& image, StopRequest stop, QString* why);

}  // namespace vantor

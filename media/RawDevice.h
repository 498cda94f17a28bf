// Opening a medium for reading: a block device's node or an image file.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "media/AbandonableSource.h"
#include "media/FileDescriptor.h"
#include "media/OpenRefusal.h"
#include "media/SameMedium.h"
#include "media/SectorReader.h"

namespace vantor {

// What a path turned out to be, as far as it can be told without reading it.
struct MediumFacts {
    bool isImage = false;       // a regular file rather than a device
    std::uint64_t sectors = 0;  // whole 512-byte sectors; a trailing partial one is dropped
    std::uint64_t notRead = 0;  // of an image with a map: sectors that its medium did not give
};

// The facts of the device or image at `path`, all parts of a split image together; nothing, and a sentence
// for the user, when it is neither or cannot be opened for reading. `map` is the path of an image's map;
// empty: the one that lies beside it, if there is one. A map that cannot be read is a reason to refuse.
// `held` keeps an image from now on; null: nobody comes back to it.
std::optional<MediumFacts> probeMedium(const QString& path, QString* why = nullptr, const QString& map = {},
                                       HeldImage* held = nullptr);

// Gets a read-only descriptor of a device node that the user may not open, by asking the user for consent; an
// empty one when that is refused. May take minutes and is to return soon after a stop request. Any thread.
using DescriptorRequest = std::function<FileDescriptor(const QString& node, const StopRequest& stop)>;

struct OpenTerms {
    StopRequest stop = {};                      // ends waits for a device that hangs
    DescriptorRequest askForDescriptor = {};    // absent: without permission the medium cannot be opened
    MediumIdentity identity = {};               // another medium in the slot counts as one that is gone
    std::shared_ptr<LastRefusal> refusal = {};  // is told how the opening went; absent: nobody asks
    std::shared_ptr<MediumMemory> memory = {};  // absent: a medium that left its slot is gone for good
    PresentMedia present = {};                  // where one that was put back is looked for
    QString map = {};                           // of an image; empty: the one beside it, if there is one
    std::shared_ptr<HeldImage> image = {};  // shared by all openings of one search; null: by name each time
};

// The medium itself, below any reader; null when it cannot be opened. As openMedium().
std::unique_ptr<BlockSource> openMediumSource(const QString& path, OpenTerms terms = {});

// A reader at sector 0, or null when the medium cannot be opened. Opens read-only, whatever the permissions,
// and never hands the descriptor to a child process. Any thread; on a device it may wait for minutes unless
// the stop request ends that.
//
// A device and an evidence image are read by a thread of their own, since a read that hangs cannot be ended;
// an image file is read ahead of the search, since both together cost no more than the slower of the two.
std::unique_ptr<SectorReader> openMedium(const QString& path, OpenTerms terms = {});

}  // namespace vantor

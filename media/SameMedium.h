// Opening a listed medium where it is now, and nothing else in its place.
#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "media/BlockDevice.h"
#include "media/HeldImage.h"
#include "media/MediumIdentity.h"
#include "media/MediumMemory.h"

namespace vantor {

struct MediumTarget {
    QString path;  // device node, or an image file
    MediumIdentity identity;
    // Shared by all who read it; null of an image file.
    std::shared_ptr<MediumMemory> memory = {};
    // Likewise; null of a device.
    std::shared_ptr<HeldImage> image = {};
};

// The media that are in the machine's slots at the moment. Any thread.
using PresentMedia = std::function<QList<MediumTarget>()>;

struct OpenedNode {
    std::unique_ptr<BlockSource> source;
    BlockDeviceFacts facts;
};
// Nothing when the node cannot be opened as a block device.
using NodeOpener = std::function<std::optional<OpenedNode>(const QString& node)>;

// The medium where it was listed or was found last, as long as it has not left its slot; else wherever a
// medium of the same identity is that holds what is remembered of this one. Null when there is none. What is
// read of it is remembered. The thread that owns the medium.
std::unique_ptr<BlockSource> openSameMedium(const MediumTarget& wanted, const PresentMedia& present,
                                            const NodeOpener& open);

// All nodes at which the medium may be found now.
QStringList nodesOf(const MediumTarget& medium, const PresentMedia& present);

}  // namespace vantor

// One way to learn which media there are; a source tries several.
#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <optional>

#include "media/MediaSource.h"

namespace vantor {

struct MediumRecord {
    QString path;  // mount path, or device node of what is not mounted
    MediaFacts facts;
    MediumTarget target;
};

// Main thread only.
class MediaBackend {
  public:
    MediaBackend() = default;
    MediaBackend(const MediaBackend&) = delete;
    MediaBackend& operator=(const MediaBackend&) = delete;
    virtual ~MediaBackend() = default;

    // Everything there is, loop devices and optical drives included; nothing when this way does not answer
    // within a few seconds.
    virtual std::optional<QList<MediumRecord>> list() = 0;

    // Another backend answered: no need to look for changes until asked again.
    virtual void rest() {}

    virtual DescriptorRequest descriptorRequest() const { return {}; }

    // Called on the main thread when the list may have changed.
    std::function<void()> changed;
};

}  // namespace vantor

// The media source of a machine that can be asked in several ways.
#pragma once

#include <QList>
#include <memory>
#include <vector>

#include "media/MediaBackend.h"
#include "media/MediaSource.h"

namespace vantor {

// Takes each listing from the first backend that answers. One listing is one question; the facts of its media
// come from it.
class BackendMediaSource : public MediaSource {
  public:
    explicit BackendMediaSource(std::vector<std::unique_ptr<MediaBackend>> backends);
    ~BackendMediaSource() override;

    QStringList mountedRemovableMedia() override;
    // `path`: a mount path, a device node, or an identifier.
    MediaFacts diskInfo(const QString& path) override;
    std::shared_ptr<const MediumTargets> targets() const override { return m_targets; }
    DescriptorRequest descriptorRequest() const override;

  private:
    void listAnew();

    std::vector<std::unique_ptr<MediaBackend>> m_backends;
    QList<MediumRecord> m_media;
    bool m_listed = false;
    std::shared_ptr<MediumTargets> m_targets = std::make_shared<MediumTargets>();
};

}  // namespace vantor

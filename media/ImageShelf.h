// Image files that the user opened, beside the media of the machine.
#pragma once

#include <QList>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

#include "media/MediaSource.h"

namespace vantor {

// The media of another source, and behind them the opened images in the order of opening. An image whose file
// is gone has no facts and so no row; it is back when the file is.
class ImageShelf : public MediaSource {
  public:
    explicit ImageShelf(std::unique_ptr<MediaSource> machine);

    QStringList mountedRemovableMedia() override;
    QStringList localVolumes() override { return m_machine->localVolumes(); }
    MediaFacts diskInfo(const QString& path) override;
    OpenedImage addImage(const QString& path) override;
    std::shared_ptr<const MediumTargets> targets() const override { return m_targets; }
    DescriptorRequest descriptorRequest() const override { return m_machine->descriptorRequest(); }

  private:
    struct Image {
        QString identifier;
        QString path;                     // canonical; the first part of a split image
        std::shared_ptr<HeldImage> held;  // since it was listed
        // Of one that takes long to be opened; of others what the file says now.
        std::optional<std::uint64_t> sectors = {};
    };

    void updateTargets();
    static MediaFacts factsOf(const Image& image);

    std::unique_ptr<MediaSource> m_machine;
    QList<Image> m_images;
    std::shared_ptr<MediumTargets> m_targets = std::make_shared<MediumTargets>();
};

}  // namespace vantor

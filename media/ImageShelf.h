// Image files that the user opened, beside the media of the machine.
#pragma once

#include <QList>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "media/MediaSource.h"
#include "media/SectorReader.h"

namespace vantor {

// Names the file systems of a medium of so many sectors, for people; empty where none is known.
using FileSystemTeller = std::function<QString(SectorReader& medium, std::uint64_t sectors)>;

// The media of another source, and behind them the opened images in the order of opening. An image whose file
// is gone has no facts and so no row; it is back when the file is.
class ImageShelf : public MediaSource {
  public:
    // Without a teller no image has a file system.
    explicit ImageShelf(std::unique_ptr<MediaSource> machine, FileSystemTeller teller = {});

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
        std::optional<QString> fileSystem = {};  // nothing: not looked at yet
    };

    void updateTargets();
    MediaFacts factsOf(Image& image) const;

    std::unique_ptr<MediaSource> m_machine;
    const FileSystemTeller m_teller;
    QList<Image> m_images;
    std::shared_ptr<MediumTargets> m_targets = std::make_shared<MediumTargets>();
};

}  // namespace vantor

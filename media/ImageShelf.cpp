// Keeping images as media.
#include "media/ImageShelf.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <cerrno>
#include <utility>

#include "media/ImageFile.h"
#include "media/ImageParts.h"
#include "media/OpenRefusal.h"
#include "media/RawDevice.h"

namespace vantor {

ImageShelf::ImageShelf(std::unique_ptr<MediaSource> machine, FileSystemTeller teller)
    : m_machine(std::move(machine)), m_teller(std::move(teller)) {
    m_machine->changed = [this] {
        if (changed) {
            changed();
        }
    };
}

QStringList ImageShelf::mountedRemovableMedia() {
    QStringList paths = m_machine->mountedRemovableMedia();
    for (Image& image : m_images) {
        if (!image.held->isAsNamed()) {
            image.held = std::make_shared<HeldImage>();
            image.fileSystem.reset();
        }
        paths << image.path;
    }
    updateTargets();
    return paths;
}

MediaFacts ImageShelf::diskInfo(const QString& path) {
    for (Image& image : m_images) {
        if (path == image.path || path == image.identifier) {
            return factsOf(image);
        }
    }
    return m_machine->diskInfo(path);
}

OpenedImage ImageShelf::addImage(const QString& path) {
    // What is named by a descriptor has no other name in text.
    const QString real = QFileInfo(path).canonicalFilePath();
    const QString canonical = QFileInfo::exists(real) ? real : path;
    const QString first = imageParts(canonical).constFirst();
    for (const Image& image : m_images) {
        if (image.path == first) {
            return {image.identifier, {}};
        }
    }
    if (const auto refusal = refusePackedImage(canonical == first ? path : first)) {
        return {{}, *refusal};
    }
    QString why;
    const auto facts = probeMedium(first, &why);
    if (!facts) {
        const QString refusal = QObject::tr("“%1” cannot be opened: %2.").arg(path, why);
        const bool forbidden = ::eaccess(QFile::encodeName(first).constData(), R_OK) != 0 && errno == EACCES;
        return {{}, forbidden ? refusal + u' ' + wordsForRefusal(OpenRefusal::MayNotReadImage) : refusal};
    }
    if (!facts->isImage) {
        return {{}, QObject::tr("“%1” is no image file.").arg(path)};
    }
    if (facts->sectors == 0) {
        return {{}, QObject::tr("“%1” is empty. Please choose an image file of a storage medium.").arg(path)};
    }
    m_images << Image{QStringLiteral("image%1").arg(m_images.size() + 1), first,
                      std::make_shared<HeldImage>()};
    if (isEvidenceSegment(first)) {
        m_images.last().sectors = facts->sectors;
    }
    updateTargets();
    return {m_images.constLast().identifier, {}};
}

void ImageShelf::updateTargets() {
    const auto machine = m_machine->targets();
    auto targets = machine ? machine->all() : QHash<QString, MediumTarget>();
    for (const Image& image : m_images) {
        targets[image.identifier] = {image.path, {}, {}, image.held};
    }
    m_targets->replace(targets);
}

MediaFacts ImageShelf::factsOf(Image& image) const {
    std::optional<std::uint64_t> sectors = image.sectors;
    if (!sectors) {
        const auto facts = probeMedium(image.path);
        sectors = facts ? std::optional(facts->sectors) : std::nullopt;
    }
    if (!sectors || !QFileInfo(image.path).isFile()) {
        return {};
    }
    if (!image.fileSystem && m_teller) {
        const std::unique_ptr<SectorReader> medium = openMedium(image.path);
        image.fileSystem = medium ? m_teller(*medium, *sectors) : QString();
    }
    const QString name = QFileInfo(image.path).fileName();
    return {{QStringLiteral("DeviceIdentifier"), image.identifier},
            {QStringLiteral("VolumeName"), name},
            {QStringLiteral("FilesystemUserVisibleName"), image.fileSystem.value_or(QString())},
            {QStringLiteral("ParentWholeDisk"), image.identifier},
            {QStringLiteral("IOKitSize"), quint64{*sectors * kSectorBytes}},
            {QStringLiteral("BusProtocol"), QStringLiteral("Image File")},
            {QStringLiteral("MediaName"), name}};
}

}  // namespace vantor

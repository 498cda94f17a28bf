// From a path to a reader; nothing here can write.
#include "media/RawDevice.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <QObject>
#include <cerrno>
#include <utility>

#include "media/BlockDevice.h"
#include "media/CopyMapFile.h"
#include "media/EvidenceImage.h"
#include "media/ImageFile.h"
#include "media/ImageParts.h"
#include "media/MappedImage.h"
#include "media/SystemWords.h"
#include "media/WindowedReader.h"

namespace vantor {

namespace {

enum class Kind { Missing, Image, Device, Other };

// Without opening it, which may take as long as the device likes.
Kind kindOf(const QString& path) {
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0) {
        return Kind::Missing;
    }
    if (S_ISREG(info.st_mode)) {
        return Kind::Image;
    }
    return S_ISBLK(info.st_mode) ? Kind::Device : Kind::Other;
}

FileDescriptor openNode(const QString& path) {
    return FileDescriptor(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
}

bool isBlockDevice(int fd) {
    struct stat info {};
    return ::fstat(fd, &info) == 0 && S_ISBLK(info.st_mode);
}

void note(const OpenTerms& terms, OpenRefusal refusal) {
    if (terms.refusal) {
        terms.refusal->note(refusal);
    }
}

bool isForbidden(int error) {
    return error == EACCES || error == EPERM;
}

std::optional<OpenedNode> openDevice(const QString& path, const OpenTerms& terms) {
    FileDescriptor descriptor = openNode(path);
    if (!descriptor) {
        const int error = errno;
        if (isForbidden(error)) {
            note(terms, OpenRefusal::MayNotReadDevice);
            if (terms.askForDescriptor) {
                descriptor = terms.askForDescriptor(path, terms.stop);
            }
        } else if (error == ENOENT || error == ENXIO || error == ENODEV || error == ENOMEDIUM) {
            note(terms, OpenRefusal::NotThere);
        }
    }
    if (!descriptor || !isBlockDevice(descriptor.get())) {
        return std::nullopt;
    }
    const auto facts = blockDeviceFacts(descriptor.get());
    if (!facts || facts->sectors == 0) {
        note(terms, OpenRefusal::NotThere);
        return std::nullopt;
    }
    return OpenedNode{std::make_unique<BlockDevice>(std::move(descriptor), *facts), *facts};
}

// Null with errno, or with a sentence for the user where that says more.
std::unique_ptr<BlockSource> openImage(const QString& path, HeldImage* heldBySearch, StopRequest stop,
                                       QString* why = nullptr) {
    HeldImage once;
    HeldImage& held = heldBySearch != nullptr ? *heldBySearch : once;
    const auto parts = held.open(imageParts(path));
    if (!parts) {
        return nullptr;
    }
    return isEvidenceSegment(parts->front().descriptor.get()) ? openEvidenceImage(held, std::move(stop), why)
                                                              : ImageFile::open(parts);
}

bool isHeld(const OpenTerms& terms) {
    return terms.image && terms.image->isOpen();
}

// `map` as in OpenTerms. Null when the map cannot be used, with a sentence for the user.
std::unique_ptr<BlockSource> withMap(std::unique_ptr<BlockSource> image, const QString& path, QString map,
                                     std::uint64_t* notRead = nullptr, QString* why = nullptr) {
    if (map.isEmpty()) {
        map = mapBeside(path);
    }
    if (map.isEmpty()) {
        return image;
    }
    const auto read = loadCopyMap(map, why);
    if (!read) {
        return nullptr;
    }
    if (notRead != nullptr) {
        const CopyMap sectors = read->ofWholeSectors();
        *notRead = (sectors.bytes() - sectors.bytesIn(CopyState::Copied)) / kSectorBytes;
    }
    return std::make_unique<MappedImage>(std::move(image), *read);
}

std::unique_ptr<BlockSource> openSource(const QString& path, OpenTerms terms) {
    switch (isHeld(terms) ? Kind::Image : kindOf(path)) {
        case Kind::Image: {
            if (!isHeld(terms) && !missingPart(path).isEmpty()) {
                errno = ENOENT;
                return nullptr;
            }
            errno = 0;
            std::unique_ptr<BlockSource> image = openImage(path, terms.image.get(), terms.stop);
            if (!image && isForbidden(errno)) {
                note(terms, OpenRefusal::MayNotReadImage);
            }
            return image ? withMap(std::move(image), path, terms.map) : nullptr;
        }
        case Kind::Missing:
            if (!terms.memory) {
                note(terms, OpenRefusal::NotThere);
                return nullptr;
            }
            [[fallthrough]];
        case Kind::Device: {
            StopRequest stop = terms.stop;
            return AbandonableSource::start(
                [path, terms = std::move(terms)] {
                    bool another = false;
                    auto same = openSameMedium({path, terms.identity, terms.memory}, terms.present,
                                               [&](const QString& node) {
                                                   auto opened = openDevice(node, terms);
                                                   another = another || opened.has_value();
                                                   return opened;
                                               });
                    if (!same && another) {
                        note(terms, OpenRefusal::AnotherMedium);
                    }
                    return same;
                },
                std::move(stop));
        }
        case Kind::Other:
            break;
    }
    return nullptr;
}

std::optional<MediumFacts> imageFacts(const QString& path, const QString& map, HeldImage* held,
                                      QString* why) {
    std::unique_ptr<BlockSource> image = openImage(path, held, {}, why);
    MediumFacts facts{true, 0, 0};
    if (image) {
        image = withMap(std::move(image), path, map, &facts.notRead, why);
    }
    if (!image) {
        return std::nullopt;
    }
    facts.sectors = image->sectors();
    return facts;
}

std::optional<MediumFacts> deviceFacts(const QString& path) {
    const FileDescriptor descriptor = openNode(path);
    if (!descriptor) {
        return std::nullopt;
    }
    const auto facts = blockDeviceFacts(descriptor.get());
    return facts ? std::optional(MediumFacts{false, facts->sectors, 0}) : std::nullopt;
}

}  // namespace

std::optional<MediumFacts> probeMedium(const QString& path, QString* why, const QString& map,
                                       HeldImage* held) {
    const auto refuse = [why](const QString& sentence) {
        if (why != nullptr) {
            *why = sentence;
        }
        return std::nullopt;
    };
    const Kind kind = kindOf(path);
    if (kind == Kind::Other) {
        return refuse(QObject::tr("Neither a storage medium nor an image file"));
    }
    if (kind == Kind::Image && imageParts(path).size() > ImageFile::kMostParts) {
        return refuse(QObject::tr("The image is in more than %1 parts; please join them into one file first")
                          .arg(ImageFile::kMostParts));
    }
    if (const QString missing = kind == Kind::Image ? missingPart(path) : QString(); !missing.isEmpty()) {
        return refuse(QObject::tr("A part of the image is missing: %1").arg(missing));
    }
    errno = 0;
    std::optional<MediumFacts> facts;
    QString sentence;
    if (kind != Kind::Missing) {
        facts = kind == Kind::Image ? imageFacts(path, map, held, &sentence) : deviceFacts(path);
    } else {
        errno = ENOENT;
    }
    if (!sentence.isEmpty()) {
        return refuse(sentence);
    }
    return facts ? facts : refuse(systemWords(errno));
}

std::unique_ptr<BlockSource> openMediumSource(const QString& path, OpenTerms terms) {
    note(terms, OpenRefusal::Unknown);
    const auto refusal = terms.refusal;
    auto source = openSource(path, std::move(terms));
    if (source && refusal) {
        refusal->note(OpenRefusal::None);
    }
    return source;
}

std::unique_ptr<SectorReader> openMedium(const QString& path, OpenTerms terms) {
    auto source = openMediumSource(path, std::move(terms));
    if (!source) {
        return nullptr;
    }
    // A device has its reading thread already, and is slower than any search; so is what has to be unpacked.
    const auto fetching =
        source->mayBeReadAhead() ? WindowedReader::Fetching::Ahead : WindowedReader::Fetching::WhenAsked;
    return std::make_unique<WindowedReader>(std::move(source), fetching);
}

}  // namespace vantor

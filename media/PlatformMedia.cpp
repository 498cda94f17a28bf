// Which sources this platform has.
#include "media/PlatformMedia.h"

#include <utility>
#include <vector>

#ifdef Q_OS_MACOS
#include "media/DiskUtilitySource.h"
#else
#include "media/BackendMediaSource.h"
#include "media/SysfsBackend.h"
#include "media/UdisksBackend.h"
#endif

namespace vantor {

std::unique_ptr<MediaSource> makePlatformMediaSource(FileSystemTeller teller) {
#ifdef Q_OS_MACOS
    auto machine = std::make_unique<DiskUtilitySource>();
#else
    std::vector<std::unique_ptr<MediaBackend>> backends;
    backends.push_back(std::make_unique<UdisksBackend>());
    backends.push_back(std::make_unique<SysfsBackend>());
    auto machine = std::make_unique<BackendMediaSource>(std::move(backends));
#endif
    return std::make_unique<ImageShelf>(std::move(machine), std::move(teller));
}

QList<MediumTarget> mediaPresent() {
#ifdef Q_OS_MACOS
    return {};
#else
    return presentTargets();
#endif
}

namespace {

using Terms = std::function<std::optional<std::pair<QString, OpenTerms>>(const QString& devicePath)>;

// The path of what was listed last under "/dev/r" + identifier, and how it is opened; nothing for others.
Terms makeTerms(const MediaSource& source, StopRequest stop, std::shared_ptr<LastRefusal> refusal) {
    return [targets = source.targets(), request = source.descriptorRequest(), stop = std::move(stop),
            refusal = std::move(refusal)](
               const QString& devicePath) -> std::optional<std::pair<QString, OpenTerms>> {
        const QString prefix = QStringLiteral("/dev/r");
        if (!targets || !devicePath.startsWith(prefix)) {
            return std::nullopt;
        }
        const auto target = targets->find(devicePath.sliced(prefix.size()));
        if (!target) {
            return std::nullopt;
        }
        return std::pair{target->path, OpenTerms{stop, request, target->identity, refusal, target->memory,
                                                 mediaPresent, QString(), target->image}};
    };
}

}  // namespace

std::function<std::unique_ptr<SectorReader>(const QString& devicePath)> makeMediumOpener(
    const MediaSource& source, StopRequest stop, std::shared_ptr<LastRefusal> refusal) {
    return [terms = makeTerms(source, std::move(stop), std::move(refusal))](
               const QString& devicePath) -> std::unique_ptr<SectorReader> {
        auto found = terms(devicePath);
        return found ? openMedium(found->first, std::move(found->second)) : nullptr;
    };
}

std::function<std::unique_ptr<BlockSource>(const QString& devicePath, StopRequest also)> makeSourceOpener(
    const MediaSource& source, StopRequest stop, std::shared_ptr<LastRefusal> refusal) {
    return [terms = makeTerms(source, std::move(stop), std::move(refusal))](
               const QString& devicePath, StopRequest also) -> std::unique_ptr<BlockSource> {
        auto found = terms(devicePath);
        if (!found) {
            return nullptr;
        }
        found->second.stop = eitherStop(std::move(found->second.stop), std::move(also));
        return openMediumSource(found->first, std::move(found->second));
    };
}

StopRequest eitherStop(StopRequest one, StopRequest other) {
    return [one = std::move(one), other = std::move(other)] { return (one && one()) || (other && other()); };
}

}  // namespace vantor

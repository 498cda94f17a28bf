// Which sources this platform has.
#include "media/PlatformMedia.h"

#include <utility>
#include <vector>

#include "media/ImageShelf.h"

#ifdef Q_OS_MACOS
#include "media/DiskUtilitySource.h"
#else
#include "media/BackendMediaSource.h"
#include "media/SysfsBackend.h"
#include "media/UdisksBackend.h"
#endif

namespace vantor {

std::unique_ptr<MediaSource> makePlatformMediaSource() {
#ifdef Q_OS_MACOS
    auto machine = std::make_unique<DiskUtilitySource>();
#else
    std::vector<std::unique_ptr<MediaBackend>> backends;
    backends.push_back(std::make_unique<UdisksBackend>());
    backends.push_back(std::make_unique<SysfsBackend>());
    auto machine = std::make_unique<BackendMediaSource>(std::move(backends));
#endif
    return std::make_unique<ImageShelf>(std::move(machine));
}

QList<MediumTarget> mediaPresent() {
#ifdef Q_OS_MACOS
    return {};
#else
    return presentTargets();
#endif
}

std::function<std::unique_ptr<SectorReader>(const QString& devicePath)> makeMediumOpener(
    const MediaSource& source, StopRequest stop, std::shared_ptr<LastRefusal> refusal) {
    return [targets = source.targets(), request = source.descriptorRequest(), stop = std::move(stop),
            refusal = std::move(refusal)](const QString& devicePath) -> std::unique_ptr<SectorReader> {
        const QString prefix = QStringLiteral("/dev/r");
        if (!targets || !devicePath.startsWith(prefix)) {
            return nullptr;
        }
        const auto target = targets->find(devicePath.sliced(prefix.size()));
        return target ? openMedium(target->path,
                                   {stop, request, target->identity, refusal, target->memory, mediaPresent})
                      : nullptr;
    };
}

}  // namespace vantor

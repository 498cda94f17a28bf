// Asks the file system below the copy.
#include "saving/CopyPlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QTemporaryFile>

#include "media/SectorReader.h"
#include "results/SizeForPeople.h"
#include "saving/DestinationCheck.h"
#include "saving/FreeSpace.h"
#include "saving/StorageBelow.h"

namespace vantor {

namespace {

constexpr qsizetype kTrialBytes = 4 * 1024 * 1024;
constexpr double kUsualSpeed = 20e6;  // bytes a second, of a slow card

QString folderOf(const QString& imagePath) {
    return QFileInfo(imagePath).absolutePath();
}

// Bytes a second; nothing when that cannot be tried.
std::optional<double> writingSpeed(const QString& folder) {
    QTemporaryFile trial(folder + QStringLiteral("/.vantor-XXXXXX"));
    if (!trial.open()) {
        return std::nullopt;
    }
    QElapsedTimer clock;
    clock.start();
    const bool written = trial.write(QByteArray(kTrialBytes, 'v')) == kTrialBytes && trial.flush() &&
                         ::fdatasync(trial.handle()) == 0;
    const auto taken = static_cast<double>(clock.nsecsElapsed());
    return written && taken > 0 ? std::optional(kTrialBytes * 1e9 / taken) : std::nullopt;
}

constexpr std::uint64_t kMinutesWorthTelling = 5;

}  // namespace

std::optional<QString> refuseCopyPlace(const QString& imagePath, const QString& mediumPath) {
    const QString folder = folderOf(imagePath);
    struct stat image {};
    const bool isMedium = ::stat(QFile::encodeName(imagePath).constData(), &image) == 0 &&
                          storageOfMedium(mediumPath).files.contains({image.st_dev, image.st_ino});
    if (isMedium || destinationIsOnMedium(folder, mediumPath)) {
        return QObject::tr(
                   "“%1” lies on the medium that is to be copied; writing there would overwrite what is "
                   "still "
                   "to be found. Choose a place on another disk.")
            .arg(imagePath);
    }
    return refuseDestination(folder);
}

std::uint64_t bytesForCopy(const QString& imagePath, std::uint64_t sectors) {
    struct stat image {};
    const bool begun = ::stat(QFile::encodeName(imagePath).constData(), &image) == 0;
    const std::uint64_t held = begun ? static_cast<std::uint64_t>(image.st_blocks) * 512 : 0;
    const std::uint64_t bytes = sectors * kSectorBytes;
    return bytes - std::min(bytes, held);
}

QStringList warnOfCopyPlace(const QString& imagePath, std::uint64_t sectors) {
    const QString folder = folderOf(imagePath);
    const std::uint64_t bytes = sectors * kSectorBytes;
    const std::uint64_t needed = bytesForCopy(imagePath, sectors);
    QStringList warnings;
    if (!takesFileOf(folder, bytes)) {
        warnings << QObject::tr(
            "Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the "
            "medium.");
    } else if (const auto space = refuseForSpace(folder, needed)) {
        warnings
            << QObject::tr("%1. The copy will end there; the search goes on from the medium.").arg(*space);
    }
    const auto speed = warnings.isEmpty() ? writingSpeed(folder) : std::nullopt;
    if (const auto slow = speed ? warnOfCopySpeed(*speed, needed) : std::nullopt) {
        warnings << *slow;
    }
    return warnings;
}

std::optional<QString> warnOfCopySpeed(double bytesPerSecond, std::uint64_t bytes) {
    if (bytesPerSecond >= kUsualSpeed || bytesPerSecond <= 0) {
        return std::nullopt;
    }
    const auto minutes = static_cast<std::uint64_t>(static_cast<double>(bytes) / bytesPerSecond / 60) + 1;
    if (minutes < kMinutesWorthTelling) {
        return std::nullopt;
    }
    return QObject::tr("The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.")
        .arg(sizeForPeople(static_cast<std::uint64_t>(bytesPerSecond)), numberForPeople(minutes));
}

}  // namespace vantor

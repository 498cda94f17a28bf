// Whether the copy of a medium can lie where the user wants it.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace vantor {

// A sentence for the user when the image would land on the medium itself, as destinationIsOnMedium() tells,
// when it is the medium, or when its folder is not there.
std::optional<QString> refuseCopyPlace(const QString& imagePath, const QString& mediumPath);

// What a whole copy of so many sectors still needs there, beside what of it is there already.
std::uint64_t bytesForCopy(const QString& imagePath, std::uint64_t sectors);

// Sentences about a place that is too small, cannot hold a file of that size or takes it too slowly; the
// copy then ends early or late. Tries how fast a few megabytes can be written, which may take seconds.
QStringList warnOfCopyPlace(const QString& imagePath, std::uint64_t sectors);

// The sentence about the time; nothing when it is a few minutes, or no more than a slow card takes to
// be read.
std::optional<QString> warnOfCopySpeed(double bytesPerSecond, std::uint64_t bytes);

}  // namespace vantor

// Room at the destination.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace vantor {

// The folder itself, or while it does not exist the nearest one above it that does.
QString nearestFolder(const QString& folder);

// Bytes that may still be written into the nearest folder; nothing when the file system does not tell.
std::optional<std::uint64_t> freeBytesAt(const QString& folder);

// False where the file system is known to have no files that long.
bool takesFileOf(const QString& folder, std::uint64_t bytes);

// A sentence for the user when a file of so many bytes does not fit there.
std::optional<QString> refuseForSpace(const QString& folder, std::uint64_t bytes);

}  // namespace vantor

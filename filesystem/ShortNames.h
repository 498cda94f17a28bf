// Whether a short name of FAT is one that systems make of a long name.
#pragma once

#include <QString>
#include <cstdint>
#include <span>

namespace vantor {

// The eleven bytes as in the row. Characters outside ASCII are no ground for a no, since it depends on the
// writer's code page what becomes of them. Public description: Microsoft's of FAT, on the generation of
// short names.
bool isShortNameOf(std::span<const std::uint8_t, 11> shortName, const QString& longName);

}  // namespace vantor

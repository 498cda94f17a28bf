// Names from a card as parts of a path.
#pragma once

#include <QString>

namespace vantor {

// The name with a '_' for each character that a path may not hold or that does not show: '/', '\', controls,
// marks that turn the direction of writing, line separators, halves of characters. Never empty, "." or "..".
QString cleanName(const QString& name);

// Characters of a folder with all that it lies in; a longer way leads to nobody's files and only takes
// memory.
inline constexpr qsizetype kLongestFolder = 1024;
// Puts a clean name before the path of folders; false, and nothing done, where that gets too long.
bool prependFolder(const QString& name, QString& path);

}  // namespace vantor

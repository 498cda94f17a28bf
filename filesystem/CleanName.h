// Names from a card as parts of a path.
#pragma once

#include <QString>

namespace vantor {

// The name with a '_' for each character that a path may not hold or that does not show: '/', '\', controls,
// marks that turn the direction of writing, line separators, halves of characters. Never empty, "." or "..".
QString cleanName(const QString& name);

}  // namespace vantor

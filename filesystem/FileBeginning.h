// Whether a sector may be the first of a file of such a name.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>

namespace vantor {

// Whether beginsLike() knows how files of such a name begin.
bool knowsBeginningOf(const QString& name);

// Nothing for names whose files begin in no way of their own.
std::optional<bool> beginsLike(const QString& name, std::span<const std::uint8_t, 512> sector);

}  // namespace vantor

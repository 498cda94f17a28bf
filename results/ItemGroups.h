// The few groups in which people think of what was found.
#pragma once

#include <QString>
#include <cstdint>

namespace vantor {

enum class ItemGroup : std::uint8_t { Photos, CameraRaw, Movies, Sound, Documents, Archives, Other };
inline constexpr int kItemGroups = 7;

// Of a type, which is a file's extension in either case. Any thread.
ItemGroup groupOfType(const QString& type);
// "Camera raw".
QString wordsForGroup(ItemGroup group);

}  // namespace vantor

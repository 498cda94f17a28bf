// The bytes of a found photo that a picture of it needs, from the medium.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <vector>

#include "results/CarvedRun.h"

namespace vantor {

class SectorReader;

// Where nobody can tell how far the photo reaches, so much of it.
inline constexpr std::uint64_t kMostOfUncertainPhoto = std::uint64_t{4} << 20;

// An item reaches to the next one, its photo mostly ends long before: as far as its own account goes, and no
// further than the carved run. `firstBytes`: the item's beginning, which is not read again. What the medium
// refuses is zeros. `kept` is memory that serves many photos.
QByteArray pictureBytes(const QString& type, const CarvedRun& carved, const QByteArray& firstBytes,
                        SectorReader& medium, std::vector<std::uint8_t>& kept);

}  // namespace vantor

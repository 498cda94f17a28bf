// Which file systems are on a medium now.
#pragma once

#include <QString>
#include <vector>

#include "filesystem/SectorSource.h"
#include "filesystem/VolumeShape.h"
#include "media/SectorReader.h"

namespace vantor {

// Those that the medium's first sector or its partition tables lead to, each once, in the tables' order.
// Reads a few hundred sectors at most.
std::vector<VolumeShape> presentVolumes(SectorSource& card);

// Their display names, each once, with commas between them; empty where none is known. The medium, of so many
// sectors, is nobody else's meanwhile.
QString presentFileSystems(SectorReader& medium, std::uint64_t sectors);

}  // namespace vantor

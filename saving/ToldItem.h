// A file that only the card's directory tells of, as an item that can be saved.
#pragma once

#include <memory>

#include "saving/ItemSaver.h"

namespace vantor {

// The type is its extension in capitals, "FILE" without one. The medium has to outlive the item.
FoundItem toldItem(const std::shared_ptr<const CardFile>& file, const std::shared_ptr<const CardIndex>& card,
                   SectorReader& medium);

}  // namespace vantor

// The question before a search: is there anything on the card at all?
#pragma once

#include <QObject>
#include <QString>
#include <cstdint>

#include "decode/CardHelper.h"
#include "media/SectorReader.h"

namespace vantor {

// What to tell the user then. He may search all the same.
inline QString erasedCardWords() {
    return QObject::tr(
        "This card reads as erased: beside its file system's own sectors, all places looked at are empty. "
        "Some "
        "cameras and programs erase the whole card when they format it, and then nothing can be found.");
}

// Whether the medium reads as erased. Looks at 256 places, and at the card's directories only where hardly
// any of them is written. Blocks; the thread that calls it reads the medium.
bool looksErased(SectorReader& medium, std::uint64_t sectors, const CardHelperOptions& options = {});

}  // namespace vantor

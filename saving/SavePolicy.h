// What is to be saved of the found items, as the user chose it.
#pragma once

#include <cstdint>

namespace vantor {

// What a saved file is called, where the card tells its name.
enum class SaveNames {
    Original,  // "IMG_0412.JPG"
    Found,     // "GND00012.JPG", as it is listed
};

// The folder below the destination.
enum class SaveFolders {
    Card,  // "DCIM/100CANON" where the card tells it, else as by type
    Type,  // "JPG"
    Date,  // "JPG/2026-05-17" and the time before the name, for files that tell a date; else as by type
};

struct SavePolicy {
    bool asPublished = false;  // the carved sectors as they are, instead of the file's own length
    SaveNames names = SaveNames::Original;
    SaveFolders folders = SaveFolders::Card;
    bool lostOnly = false;        // what the card's file system still holds as a file is left out
    bool skipDuplicates = true;   // bytes that were saved before are not written again
    std::uint64_t minBytes = 0;   // smaller files are left out
    std::uint32_t minPixels = 0;  // pictures whose longer side has fewer pixels are left out
    bool checksums = true;        // a checksum of every file, as the report tells it
    bool parts = false;           // what is a part of a file that is saved whole is saved as well
    bool skipUnsound = false;     // what is certainly no file of its type is left out

    friend bool operator==(const SavePolicy&, const SavePolicy&) = default;
};

}  // namespace vantor

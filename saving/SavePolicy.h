// What is to be saved of the found items, as the user chose it.
#pragma once

#include <cstdint>

namespace vantor {

struct SavePolicy {
    bool asPublished = false;     // the carved sectors as they are, instead of the file's own length
    bool byDate = false;          // <type>/2026-05-17/2026-05-17 14.03.22 <name> for files that tell a date
    bool skipDuplicates = true;   // bytes that were saved before are not written again
    std::uint64_t minBytes = 0;   // smaller files are left out
    std::uint32_t minPixels = 0;  // pictures whose longer side has fewer pixels are left out
    bool checksums = true;        // a checksum of every file, as the report tells it
    bool skipUnsound = false;     // what is certainly no file of its type is left out

    friend bool operator==(const SavePolicy&, const SavePolicy&) = default;
};

}  // namespace vantor

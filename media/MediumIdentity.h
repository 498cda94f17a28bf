// What tells one card in a slot from another.
#pragma once

#include <QString>
#include <cstdint>

namespace vantor {

// As the medium was listed; zeros and empty texts stand for what is not known.
struct MediumIdentity {
    // The kernel's number for this stay in the slot: proof of the same card while it agrees, and of nothing
    // when it does not, since every insertion gets a new one.
    std::uint64_t diskSequence = 0;
    std::uint64_t sectors = 0;
    QString serial = {};  // of the card, or of the reader that it is in
    QString label = {};   // of its file system
    QString fileSystemId = {};
    QString partition = {};  // number; empty of a whole disk
};

// Whether a listing does not speak against the same card having been put in again. The bytes on it decide.
inline bool couldBeSame(const MediumIdentity& a, const MediumIdentity& b) {
    return a.sectors != 0 && a.sectors == b.sectors && a.serial == b.serial && a.label == b.label &&
           a.fileSystemId == b.fileSystemId && a.partition == b.partition;
}

}  // namespace vantor

// What can be said of a found item before it is saved: how sound it is, how large, from when.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "filesystem/CardFile.h"
#include "formats/Extent.h"
#include "media/AbandonableSource.h"
#include "media/FileDescriptor.h"
#include "media/WatchedReader.h"
#include "results/CarvedRun.h"
#include "results/MediumBytes.h"

namespace vantor {

struct Soundness {
    Verdict verdict = Verdict::Unknown;
    bool unreadable = false;    // some of its sectors could not be read
    bool notOfItsType = false;  // certainly no file of its type
    std::uint64_t bytes = 0;    // as it would be saved
    std::uint32_t width = 0;    // pixels; 0: not told
    std::uint32_t height = 0;
    std::optional<CivilTime> taken;
    // Complete, and its content was looked at, a movie's by decoding it; else it only ends where it says.
    bool checked = false;
    std::shared_ptr<const CardFile> original = {};  // what the card tells of it; null: nothing certain
    std::size_t pieces = 1;                         // on the medium
    QString camera = {};                            // that took it, as the file says; "": not told
    bool followed = false;         // as `checked`, where a movie's frames need not have been decoded
    std::uint64_t durationMs = 0;  // of a movie or sound, as its head tells; 0: not told
};

// Follows the item's own structure on the medium as saving does, without saving. A file that takes more than
// `mostBytes` of reading is of unknown soundness. Nothing when the watch was ended meanwhile. `kept`
// is memory that serves many items. No movie counts as checked yet, but what was put together.
inline constexpr std::uint64_t kMostExaminedBytes = std::uint64_t{256} << 20;
std::optional<Soundness> examine(const QString& type, const CarvedRun& carved, SectorReader& medium,
                                 ReadWatch& watch, std::vector<std::uint8_t>& kept,
                                 std::uint64_t mostBytes = kMostExaminedBytes, const ItemHints& hints = {});
// The bytes of an item that is so long, as a file in memory, to be decoded; not open when not all of them can
// be read, or once `stop` says so.
FileDescriptor contentInMemory(const QString& type, const CarvedRun& carved, SectorReader& medium,
                               ReadWatch& watch, std::vector<std::uint8_t>& kept, std::uint64_t bytes,
                               const ItemHints& hints, const StopRequest& stop);

// Milliseconds that a movie or sound plays, as its head tells; 0 of anything else.
std::uint64_t playingTimeOf(const QString& type, const Facts& facts);

// "complete", "cut off", "damaged" or "unknown", for machines.
QString soundnessText(Verdict verdict);
// The same for people: what is unknown is the length, and a file of which only lengths were followed "ends
// where it says, content not checked".
QString soundnessWords(Verdict verdict, bool checked);

// "complete, 4.2 MB, 4000 × 3000 pixels, taken 2026-05-17".
QString describe(const Soundness& soundness);

}  // namespace vantor

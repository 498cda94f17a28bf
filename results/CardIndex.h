// What a card's directories tell of its files, looked up by the places where they lie.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "filesystem/CardTable.h"
#include "results/Assembly.h"
#include "results/TrueLength.h"

namespace vantor {

// How well what the directory tells of a file goes with what an item's own bytes tell.
enum class CardFit {
    No,     // the bytes are another file's
    Maybe,  // the file begins as the item does; whether the rest is its own is open
    Yes,    // both agree, or the file is there and the directory's word is the truth
};

// Made once from a table and never changed; any thread.
class CardIndex {
  public:
    explicit CardIndex(CardTable table);
    CardIndex(const CardIndex&) = delete;
    CardIndex& operator=(const CardIndex&) = delete;

    const CardTable& table() const { return m_table; }

    // Whether it tells of a file that begins there.
    bool tellsOf(std::uint64_t sector) const { return !startingAt(sector).empty(); }
    // Whether a file that is still there holds the sector.
    bool isLiveAt(std::uint64_t sector) const;
    // Whether it lies in an allocation table of a file system that is there.
    bool isInTables(std::uint64_t sector) const;

    // The file that begins where the item of that type (`Ext_Name`) does and fits it best: only No where none
    // does. `length` is what the item's own structure told; without it hardly anything is ruled out, and
    // that is for lists, not for saving. Two files that fit alike and are not alike: none of them.
    struct Match {
        const CardFile* file = nullptr;
        CardFit fit = CardFit::No;
    };
    Match match(std::uint64_t sector, const QString& type, const TrueLength* length = nullptr) const;

    // Where the bytes of the files that begin at the sector may lie, the likeliest first: as a chain or
    // record tells, or, where none does, in the clusters behind the first that are not other files'. None of
    // them is proved but those of a file that is there. Sectors from `end` on are no part of the medium.
    struct Candidate {
        const CardFile* file = nullptr;
        Assembly assembly;
    };
    std::vector<Candidate> candidates(std::uint64_t sector, std::uint64_t end) const;

    // Whether anything that is there now holds sectors of the file, which itself is not there.
    bool isWrittenOver(const CardFile& file) const;
    // Whether its bytes may be taken from where it begins on, with nothing but the directory to say how many.
    bool isInOneFreePiece(const CardFile& file) const;
    // Whether a directory tells of another file in sectors of this one.
    bool isDisputed(const CardFile& file) const;

  private:
    struct Claim {
        std::uint64_t first = 0;
        std::uint64_t end = 0;
        const CardFile* file = nullptr;
    };
    class FreeWalk;

    std::span<const Claim> startingAt(std::uint64_t sector) const;
    CardFit fitOf(const CardFile& file, const QString& type, const TrueLength* length) const;
    std::vector<SectorRun> freeRuns(const CardFile& file, std::uint64_t end, bool skipClaims) const;

    const CardTable m_table;
    std::vector<SectorRun> m_live;       // of files that are there; sorted, apart
    std::vector<Claim> m_starts;         // by first sector; `end` is not used
    std::vector<Claim> m_claims;         // all runs of all files' bytes, by first sector
    std::vector<std::uint64_t> m_reach;  // how far the claims up to each reach
};

// The bytes that the file's own writer put there: exFAT and NTFS reserve more than they have written.
std::uint64_t dataBytesOf(const CardFile& file);

// Where they lie, in whole sectors. What the last cluster holds behind them may be left of an older file.
std::vector<SectorRun> runsOfData(const CardFile& file);

// "DCIM/100CANON/IMG_0412.JPG".
QString originalPath(const CardFile& file);

// Whether a file of that name may be of the type: the same extension, or another of the same format.
bool isNamedLike(const QString& name, const QString& type);

}  // namespace vantor

// In which order a medium is copied, so that bad places do not hold up the good ones.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "media/CopyMap.h"
#include "media/SectorRun.h"

namespace vantor {

// One request to the medium.
struct CopyStep {
    enum class Kind { Copy, Trim, Scrape };

    Kind kind = Kind::Copy;
    std::uint64_t first = 0;  // sectors [first, end)
    std::uint64_t end = 0;
    bool wanted = false;  // asked for by a reader, out of turn
};

// Reads large pieces first and skips ahead from one that is refused, further with each refusal in a row; then
// what was skipped, backwards from the good place behind it and at last without skipping; then the edges of
// what was refused, sector by sector; then the sectors between bad ones, where these lie close together. Each
// sector is so asked for twice at most: within a large piece and alone. Between bad ones that lie far apart
// (more than kDeadStretch sectors) nothing is asked for until scrapeAll().
//
// Changes the map as steps are done; keeps no other record than where it stands. Any one thread.
class CopyPlan {
  public:
    static constexpr std::uint64_t kPiece = 512;         // sectors
    static constexpr std::uint64_t kFirstSkip = 512;     // sectors
    static constexpr std::uint64_t kMostSkip = 1 << 17;  // sectors: 64 MiB
    static constexpr std::uint64_t kDeadStretch = 2048;  // sectors: 1 MiB

    // The map is of whole sectors and outlives the plan. `blockSectors` are read and refused together.
    explicit CopyPlan(CopyMap& map, std::uint64_t blockSectors = 1);

    // What is to be copied, one stretch after the other; begins anew.
    void setGoals(std::vector<SectorRun> goals);
    bool isGoal(std::uint64_t sector) const;
    void scrapeAll() { m_scrapeAll = true; }

    // The next step; nothing when all is done. The same until it is done.
    std::optional<CopyStep> next();
    // A piece of what was not tried from the sector on, on behalf of a reader.
    std::optional<CopyStep> pieceAt(std::uint64_t sector) const;
    // The first `good` sectors of the step were read, the one behind them was refused.
    void done(const CopyStep& step, std::uint64_t good);

    // Whether the map may yet learn more of the sector.
    bool mayChange(std::uint64_t sector) const;

  private:
    std::optional<CopyStep> nextOfPass();
    std::optional<CopyStep> nextTrim();
    std::optional<CopyStep> nextScrape() const;
    void copied(const CopyStep& step, std::uint64_t good);
    void trimmed(const CopyStep& step, bool good);
    void set(std::uint64_t first, std::uint64_t end, CopyState state);
    void beginGoal(std::size_t goal);
    bool isWorthScraping(const CopyRun& run) const;

    CopyMap& m_map;
    const std::uint64_t m_block;
    std::vector<SectorRun> m_goals;
    int m_pass = 1;  // 1 forwards, 2 backwards, 3 forwards without skipping
    std::size_t m_goal = 0;
    std::uint64_t m_cursor = 0;
    std::uint64_t m_skip = 0;
    bool m_trimBackwards = false;  // the front edge of the first run that is not trimmed is done
    bool m_scrapeAll = false;
};

// For a search of the range: the beginning of the medium first, where the tables and folders of its file
// system usually are.
std::vector<SectorRun> copyGoals(SectorRun range, std::uint64_t mediumSectors);

}  // namespace vantor

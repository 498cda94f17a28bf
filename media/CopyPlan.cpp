// Passes over the stretches, then edges, then what is left between bad sectors.
#include "media/CopyPlan.h"

#include <algorithm>
#include <utility>

#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr int kLastPass = 3;
constexpr std::uint64_t kBeginning = 1 << 16;  // sectors: 32 MiB

SectorRun sectorsOf(const CopyRun& run) {
    return {run.first / kSectorBytes, run.end / kSectorBytes};
}

}  // namespace

CopyPlan::CopyPlan(CopyMap& map, std::uint64_t blockSectors)
    : m_map(map), m_block(std::max<std::uint64_t>(1, blockSectors)) {}

void CopyPlan::setGoals(std::vector<SectorRun> goals) {
    m_goals = std::move(goals);
    m_pass = 1;
    beginGoal(0);
}

bool CopyPlan::isGoal(std::uint64_t sector) const {
    return std::any_of(m_goals.begin(), m_goals.end(),
                       [sector](const SectorRun& goal) { return sector >= goal.first && sector < goal.end; });
}

void CopyPlan::beginGoal(std::size_t goal) {
    if (goal == m_goals.size() && m_pass < kLastPass) {
        ++m_pass;
        goal = 0;
    }
    m_goal = goal;
    m_skip = 0;
    if (goal < m_goals.size()) {
        m_cursor = m_pass == 2 ? m_goals[goal].end : m_goals[goal].first;
    }
}

std::optional<CopyStep> CopyPlan::next() {
    if (auto step = nextOfPass()) {
        return step;
    }
    if (auto step = nextTrim()) {
        return step;
    }
    return nextScrape();
}

std::optional<CopyStep> CopyPlan::nextOfPass() {
    for (; m_goal < m_goals.size(); beginGoal(m_goal + 1)) {
        const SectorRun& goal = m_goals[m_goal];
        const bool backwards = m_pass == 2;
        const auto run =
            backwards ? m_map.lastOf(CopyState::NotTried, goal.first * kSectorBytes,
                                     std::min(m_cursor, goal.end) * kSectorBytes)
                      : m_map.firstOf(CopyState::NotTried, std::max(m_cursor, goal.first) * kSectorBytes,
                                      goal.end * kSectorBytes);
        if (run) {
            const SectorRun sectors = sectorsOf(*run);
            m_map.position = {backwards ? run->end : run->first, '?', static_cast<std::uint64_t>(m_pass)};
            return backwards ? CopyStep{CopyStep::Kind::Copy,
                                        std::max(sectors.first, sectors.end - std::min(sectors.end, kPiece)),
                                        sectors.end}
                             : CopyStep{CopyStep::Kind::Copy, sectors.first,
                                        std::min(sectors.end, sectors.first + kPiece)};
        }
    }
    return std::nullopt;
}

std::optional<CopyStep> CopyPlan::pieceAt(std::uint64_t sector) const {
    const std::uint64_t end = m_map.bytes() / kSectorBytes;
    if (sector >= end || m_map.at(sector * kSectorBytes).state != CopyState::NotTried) {
        return std::nullopt;
    }
    const SectorRun run = sectorsOf(m_map.at(sector * kSectorBytes));
    return CopyStep{CopyStep::Kind::Copy, sector, std::min(run.end, sector + kPiece), true};
}

std::optional<CopyStep> CopyPlan::nextTrim() {
    const auto run = m_map.firstOf(CopyState::NotTrimmed, 0, m_map.bytes());
    if (!run) {
        return std::nullopt;
    }
    m_map.position = {m_trimBackwards ? run->end : run->first, '*', 1};
    const SectorRun sectors = sectorsOf(*run);
    return m_trimBackwards
               ? CopyStep{CopyStep::Kind::Trim,
                          std::max(sectors.first, (sectors.end - 1) / m_block * m_block), sectors.end}
               : CopyStep{CopyStep::Kind::Trim, sectors.first,
                          std::min(sectors.end, sectors.first / m_block * m_block + m_block)};
}

bool CopyPlan::isWorthScraping(const CopyRun& run) const {
    return m_scrapeAll || run.end - run.first <= kDeadStretch * kSectorBytes;
}

std::optional<CopyStep> CopyPlan::nextScrape() const {
    for (auto run = m_map.firstOf(CopyState::NotScraped, 0, m_map.bytes()); run;
         run = m_map.firstOf(CopyState::NotScraped, run->end, m_map.bytes())) {
        if (isWorthScraping(*run)) {
            m_map.position = {run->first, '/', 1};
            const SectorRun sectors = sectorsOf(*run);
            return CopyStep{CopyStep::Kind::Scrape, sectors.first,
                            std::min(sectors.end, sectors.first / m_block * m_block + m_block)};
        }
    }
    m_map.position = {m_map.bytes(), '+', 1};
    return std::nullopt;
}

void CopyPlan::set(std::uint64_t first, std::uint64_t end, CopyState state) {
    m_map.set(first * kSectorBytes, end * kSectorBytes, state);
}

void CopyPlan::done(const CopyStep& step, std::uint64_t good) {
    const bool whole = good >= step.end - step.first;
    switch (step.kind) {
        case CopyStep::Kind::Copy:
            copied(step, std::min(good, step.end - step.first));
            break;
        case CopyStep::Kind::Trim:
            trimmed(step, whole);
            break;
        case CopyStep::Kind::Scrape:
            set(step.first, step.end, whole ? CopyState::Copied : CopyState::Bad);
            break;
    }
}

void CopyPlan::copied(const CopyStep& step, std::uint64_t good) {
    set(step.first, step.first + good, CopyState::Copied);
    set(step.first + good, step.end, CopyState::NotTrimmed);
    const bool backwards = m_pass == 2;
    if (step.wanted) {
        return;
    }
    if (step.first + good == step.end || m_pass == kLastPass) {
        m_skip = 0;
        m_cursor = backwards ? step.first : step.end;
        return;
    }
    m_skip = m_skip == 0 ? kFirstSkip : std::min(2 * m_skip, kMostSkip);
    m_cursor = backwards ? step.first - std::min(step.first, m_skip) : step.end + m_skip;
}

void CopyPlan::trimmed(const CopyStep& step, bool good) {
    const auto run = m_map.firstOf(CopyState::NotTrimmed, 0, m_map.bytes());
    set(step.first, step.end, good ? CopyState::Copied : CopyState::Bad);
    const bool last = !run || sectorsOf(*run) == SectorRun{step.first, step.end};
    if (last) {
        m_trimBackwards = false;
    } else if (!good && !m_trimBackwards) {
        m_trimBackwards = true;
    } else if (!good) {
        set(run->first / kSectorBytes, step.first, CopyState::NotScraped);
        m_trimBackwards = false;
    }
}

bool CopyPlan::mayChange(std::uint64_t sector) const {
    const CopyRun run = m_map.at(sector * kSectorBytes);
    switch (run.state) {
        case CopyState::NotTried:
        case CopyState::NotTrimmed:
            return true;
        case CopyState::NotScraped:
            return isWorthScraping(run);
        case CopyState::Bad:
        case CopyState::Copied:
            break;
    }
    return false;
}

std::vector<SectorRun> copyGoals(SectorRun range, std::uint64_t mediumSectors) {
    return {{0, std::min(kBeginning, mediumSectors)}, range};
}

}  // namespace vantor

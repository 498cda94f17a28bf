// Runs by their first byte, each ending where the next begins.
#include "media/CopyMap.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "media/SectorReader.h"

namespace vantor {

namespace {

std::size_t indexOf(CopyState state) {
    return std::string_view("?*/-+").find(static_cast<char>(state));
}

}  // namespace

CopyMap::CopyMap(std::uint64_t bytes) : m_bytes(bytes) {
    if (bytes != 0) {
        m_runs.emplace(0, CopyState::NotTried);
        count(CopyState::NotTried) = bytes;
    }
}

std::uint64_t& CopyMap::count(CopyState state) {
    return m_counts[indexOf(state)];
}

std::uint64_t CopyMap::bytesIn(CopyState state) const {
    return m_counts[indexOf(state)];
}

CopyRun CopyMap::runOf(Runs::const_iterator at) const {
    const auto next = std::next(at);
    return {at->first, next == m_runs.end() ? m_bytes : next->first, at->second};
}

CopyRun CopyMap::at(std::uint64_t byte) const {
    return runOf(std::prev(m_runs.upper_bound(byte)));
}

std::optional<CopyRun> CopyMap::firstOf(CopyState state, std::uint64_t from, std::uint64_t until) const {
    until = std::min(until, m_bytes);
    if (from >= until) {
        return std::nullopt;
    }
    for (auto at = std::prev(m_runs.upper_bound(from)); at != m_runs.end() && at->first < until; ++at) {
        if (at->second == state) {
            const CopyRun run = runOf(at);
            return CopyRun{std::max(run.first, from), std::min(run.end, until), state};
        }
    }
    return std::nullopt;
}

std::optional<CopyRun> CopyMap::lastOf(CopyState state, std::uint64_t from, std::uint64_t until) const {
    until = std::min(until, m_bytes);
    if (from >= until) {
        return std::nullopt;
    }
    for (auto at = m_runs.lower_bound(until); at != m_runs.begin();) {
        --at;
        const CopyRun run = runOf(at);
        if (run.end <= from) {
            break;
        }
        if (run.state == state) {
            return CopyRun{std::max(run.first, from), std::min(run.end, until), state};
        }
    }
    return std::nullopt;
}

void CopyMap::set(std::uint64_t first, std::uint64_t end, CopyState state) {
    end = std::min(end, m_bytes);
    if (first >= end) {
        return;
    }
    if (const CopyRun whole = at(first); whole.end >= end && whole.state == state) {
        return;
    }
    // Either end may cut a run in two.
    if (m_runs.size() + 2 > kMostRuns) {
        return;
    }
    cutAt(first);
    cutAt(end);
    const auto begin = m_runs.find(first);
    const auto behind = m_runs.lower_bound(end);
    for (auto run = begin; run != behind; ++run) {
        const CopyRun old = runOf(run);
        count(old.state) -= old.end - old.first;
    }
    begin->second = state;
    m_runs.erase(std::next(begin), behind);
    count(state) += end - first;
    joinAt(end);
    joinAt(first);
}

// A run begins at the byte from here on, unless it is the end.
void CopyMap::cutAt(std::uint64_t byte) {
    if (byte < m_bytes) {
        m_runs.emplace(byte, at(byte).state);
    }
}

// With the run before, where they are alike.
void CopyMap::joinAt(std::uint64_t byte) {
    const auto run = m_runs.find(byte);
    if (run != m_runs.end() && run != m_runs.begin() && std::prev(run)->second == run->second) {
        m_runs.erase(run);
    }
}

CopyMap CopyMap::ofWholeSectors() const {
    CopyMap whole(m_bytes / kSectorBytes * kSectorBytes);
    whole.position = position;
    const auto down = [](std::uint64_t byte) { return byte / kSectorBytes * kSectorBytes; };
    const auto up = [&down](std::uint64_t byte) {
        return byte % kSectorBytes == 0 ? byte : down(byte) + kSectorBytes;
    };
    for (auto at = m_runs.begin(); at != m_runs.end(); ++at) {
        const CopyRun run = runOf(at);
        if (run.state == CopyState::Copied) {
            whole.set(up(run.first), down(run.end), run.state);
        }
    }
    for (auto at = m_runs.begin(); at != m_runs.end(); ++at) {
        const CopyRun run = runOf(at);
        if (run.state != CopyState::Copied) {
            whole.set(down(run.first), up(run.end), run.state);
        }
    }
    return whole;
}

}  // namespace vantor

// What a copy of a medium holds of each of its bytes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

namespace vantor {

// The characters that stand for them in the text form.
enum class CopyState : char {
    NotTried = '?',
    NotTrimmed = '*',  // in a request that was refused, as a whole
    NotScraped = '/',  // between two sectors that were refused
    Bad = '-',
    Copied = '+',
};

// Bytes [first, end) of the medium, all in one state.
struct CopyRun {
    std::uint64_t first = 0;
    std::uint64_t end = 0;
    CopyState state = CopyState::NotTried;

    bool operator==(const CopyRun&) const = default;
};

// The runs of a medium from its first byte to its last; neighbours differ in their states. At most kMostRuns
// are kept: what would make more leaves the map as it is, so a place may count as less known than it is.
class CopyMap {
  public:
    static constexpr std::size_t kMostRuns = std::size_t{1} << 20;

    // Where a copying tool stands, for one that goes on.
    struct Position {
        std::uint64_t at = 0;  // byte
        char phase = '?';      // ?*/-FG+
        std::uint64_t pass = 1;
    };

    // All of it not tried.
    explicit CopyMap(std::uint64_t bytes = 0);

    std::uint64_t bytes() const { return m_bytes; }
    std::size_t runs() const { return m_runs.size(); }
    // In all runs of the state together.
    std::uint64_t bytesIn(CopyState state) const;

    // The run that holds the byte, which is below bytes().
    CopyRun at(std::uint64_t byte) const;
    // What the first or last run of the state has of [from, until).
    std::optional<CopyRun> firstOf(CopyState state, std::uint64_t from, std::uint64_t until) const;
    std::optional<CopyRun> lastOf(CopyState state, std::uint64_t from, std::uint64_t until) const;

    // Of what lies within bytes().
    void set(std::uint64_t first, std::uint64_t end, CopyState state);

    // With boundaries between whole sectors only: a sector counts as copied when all of it is. What the
    // medium has behind its last whole sector is left out.
    CopyMap ofWholeSectors() const;

    Position position;

  private:
    using Runs = std::map<std::uint64_t, CopyState>;  // by first byte

    CopyRun runOf(Runs::const_iterator at) const;
    std::uint64_t& count(CopyState state);
    void cutAt(std::uint64_t byte);
    void joinAt(std::uint64_t byte);

    Runs m_runs;
    std::uint64_t m_bytes = 0;
    std::array<std::uint64_t, 5> m_counts{};
};

}  // namespace vantor

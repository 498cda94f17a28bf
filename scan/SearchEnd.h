// How a search ended, for people.
#pragma once

#include <QString>
#include <cstdint>

namespace vantor {

// How a pass ended.
enum class PassOutcome { NotRun, Completed, Stopped, ReadError, OpenError };

// The sectors of one pass that could not be read.
struct ReadFailures {
    std::uint64_t sectors = 0;
    std::uint64_t from = 0;  // the first of the stretch that was met last
    std::uint64_t last = 0;

    // For every failed read; `begins` where the read before it succeeded.
    void note(std::uint64_t sector, bool begins) {
        if (begins || sectors == 0) {
            from = sector;
        }
        // A scan asks once more for the sector that failed.
        if (sector != last || sectors == 0) {
            ++sectors;
            last = sector;
        }
    }
};

// The end of the last pass that ran.
struct SearchEnd {
    PassOutcome outcome = PassOutcome::NotRun;
    bool thorough = false;         // it was the second pass
    bool mediumGone = false;       // taken out, or no longer answering
    bool nothingToSearch = false;  // the pass had no signatures
    std::uint64_t start = 0;       // of the pass
    std::uint64_t end = 0;         // one past its last sector
    std::uint64_t sector = 0;      // of the stop, or the first of those that failed up to the end
    std::uint64_t goOnAt = 0;      // the item that was open there included
    std::uint64_t unreadable = 0;  // sectors

    // Nothing failed, and yet something broke it off.
    bool brokenOff() const { return outcome == PassOutcome::Completed && sector < end && !nothingToSearch; }
    // All was searched, and nothing of it was out of reach.
    bool isFlawless() const { return outcome == PassOutcome::Completed && unreadable == 0 && !brokenOff(); }
    // There is something left to search from goOnAt to end.
    bool canGoOn() const;
};

// "The search was stopped at 34 % (sector 12,345 of 36,000)."
QString searchEndHeadline(const SearchEnd& end);
// Where the card's own directories could not be read.
QString unreadCardWords();
// For searches that can go on: the window has a button of that name.
QString goOnWords();
// What the window's user may do next; empty when there is nothing to do.
QString searchEndAdvice(const SearchEnd& end);

}  // namespace vantor

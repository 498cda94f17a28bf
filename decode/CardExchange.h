// What the program and the helper that reads a card's file systems tell each other, as bytes in the memory
// that they share.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "filesystem/CardTable.h"
#include "filesystem/CardTraces.h"

namespace vantor::decode {

// An answer's pixels are a block of at most this size, as a picture of kBlockWidth pixels a line.
constexpr std::uint32_t kBlockWidth = 1024;
constexpr std::uint32_t kBlockHeight = 256;
constexpr std::size_t kBlockBytes = std::size_t{kBlockWidth} * kBlockHeight * 4;
// A question asks for so many sectors at most.
constexpr std::uint32_t kMostSectorsAsked = 512;
// No card's directories take more questions, in sectors together, than four readings of all of it would.
constexpr std::uint64_t mostAskedOf(std::uint64_t sectors) {
    return 4 * sectors + kMostSectorsAsked;
}
// More than any card has: what comes beyond is not taken.
constexpr std::size_t kMostFiles = 4'000'000;
constexpr std::uint64_t kMostRunsOfAll = 64'000'000;
constexpr std::size_t kMostFileSystems = 1024;

// What the helper begins with.
struct CardTask {
    std::uint64_t sectors = 0;
    CardTraces traces;
    std::vector<FoundStart> found;
};

// One block of the helper's.
enum class BlockKind : std::uint32_t {
    Question = 1,     // first sector and count
    Files = 2,        // some of the table's files
    InUse = 3,        // some of its runs in use
    FileSystems = 4,  // some of them
    End = 5,          // the table is whole
};

std::vector<std::uint8_t> bytesOf(const CardTask& task);
// Nothing where the bytes are no task.
std::optional<CardTask> taskOf(std::span<const std::uint8_t> bytes);

// A table's blocks one after the other, each of kBlockBytes at most, the last one End.
class TableWriter {
  public:
    explicit TableWriter(const CardTable& table) : m_table(table) {}

    // Empty behind the last.
    std::vector<std::uint8_t> next();

  private:
    const CardTable& m_table;
    std::size_t m_files = 0;
    std::size_t m_inUse = 0;
    std::size_t m_fileSystems = 0;
    bool m_ended = false;
};

// The table from the blocks of a helper whom nobody trusts: runs lie on the medium and are not empty, names
// hold what a path may hold, counts are bounded.
class TableReader {
  public:
    explicit TableReader(std::uint64_t sectors) : m_sectors(sectors) {}

    // False when no helper of ours writes such a block; the table is then of no use.
    bool take(std::span<const std::uint8_t> block);
    bool isWhole() const { return m_ended; }
    CardTable table();

  private:
    bool takeFile(class ByteTaker& from);
    bool takeHole(class ByteTaker& from, std::vector<SectorRun>& into);
    bool takeRun(class ByteTaker& from, std::vector<SectorRun>& into);

    const std::uint64_t m_sectors;
    CardTable m_table;
    std::uint64_t m_runs = 0;
    bool m_ended = false;
};

// The first sector and the count of a question about a medium of so many; nothing when it is none, or asks
// for what is not there.
struct CardQuestion {
    std::uint64_t first = 0;
    std::uint32_t sectors = 0;
};
std::vector<std::uint8_t> bytesOf(const CardQuestion& question);
std::optional<CardQuestion> questionOf(std::span<const std::uint8_t> block, std::uint64_t sectors);

}  // namespace vantor::decode

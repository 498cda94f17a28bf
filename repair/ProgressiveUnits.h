// The coded blocks of a progressive JPEG picture one by one, scan after scan, without making a picture of
// them.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "repair/CodedBits.h"
#include "repair/JpegHead.h"

namespace vantor {

// Source: ITU-T T.81, annexes B and G. What a block takes depends on what earlier scans told of it: that is
// noted, and undone when reading goes on from an earlier place. Never fails by memory or time.
class ProgressiveUnits {
  public:
    // Blocks whose coefficients are noted, of all components together: 32 MiB.
    static constexpr std::uint64_t kMostBlocks = std::uint64_t{1} << 22;

    enum class Outcome {
        Unit,       // of a scan, or a segment between scans
        Complete,   // the picture's end mark stands behind a scan that has all its units
        Broken,     // nothing can be written so
        OutOfData,  // the supply has no further cluster
    };
    struct Part {
        std::size_t component = 0;
        unsigned blocks = 1;  // of a unit
        unsigned dc = 0, ac = 0;
    };
    struct Scan {
        std::array<Part, 4> parts{};
        std::size_t count = 0;
        std::uint64_t units = 0;
        unsigned first = 0, last = 0;  // coefficients
        unsigned shift = 0;            // bits that later scans give
        bool refines = false;          // gives a further bit of what earlier scans began
    };
    struct Place : BitPlace {
        bool inScan = false;
        unsigned scans = 0;  // begun
        std::uint64_t unit = 0;
        std::uint32_t empty = 0;  // blocks that have nothing more in this scan
        std::array<int, 4> dc{};
        std::array<std::uint16_t, 8> codes{};  // tables in force, by number; first those of mean values
        std::uint32_t restartInterval = 0;
        Scan scan;
        std::size_t tables = 0;  // read so far
        std::size_t noted = 0;
    };

    ProgressiveUnits(std::uint64_t clusterBytes, ClusterSupply& supply) : m_in(clusterBytes, supply) {}

    // Reads from the picture's first byte to its first scan; false where it is none of this coding.
    bool begin();
    void resume(const Place& place);
    Outcome next();

    const Place& place() const { return m_place; }
    // Before what next() looked at last.
    const Place& before() const { return m_before; }
    // Nothing before the place is gone back to.
    void forgetBefore(const Place& place);

  private:
    struct Component {
        unsigned id = 0;
        unsigned across = 1, down = 1;
        unsigned quantisation = 0;
        std::uint64_t blocksAcross = 0, blocksDown = 0;
        std::vector<std::uint64_t>
            known;  // of each block a bit for every coefficient that is not zero so far
    };
    struct Note {
        std::uint64_t block = 0;
        std::uint64_t known = 0;
        std::size_t component = 0;
    };

    enum class Segment { Other, Scan, End, Broken };
    Segment segment();
    bool frame(std::span<const std::uint8_t> bytes);
    bool codes(std::span<const std::uint8_t> bytes);
    bool scan(std::span<const std::uint8_t> bytes);
    bool endScan();
    bool restart();
    bool unit();
    bool mean(const Part& part);
    bool firstBits(std::uint64_t& known, std::uint64_t blocksLeft);
    bool furtherBits(std::uint64_t& known, std::uint64_t blocksLeft);
    bool isEmptyRun(unsigned run, std::uint64_t blocksLeft);

    CodedBits m_in;
    std::vector<Component> m_components;
    std::vector<JpegCodes> m_codes;  // all that were read; a place tells which are in force
    std::array<int, 4> m_steps{};    // of mean values
    std::uint64_t m_unitsAcross = 0, m_unitsDown = 0;
    Place m_place;
    Place m_before;
    std::vector<Note> m_notes;
    std::size_t m_forgotten = 0;  // notes that are no longer kept
};

}  // namespace vantor

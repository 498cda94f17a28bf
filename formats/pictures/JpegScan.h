// Counting the units of a JPEG scan by its Huffman codes, without making a picture of them: what is no part
// of the scan does not come out even.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "formats/ByteView.h"
#include "formats/pictures/JpegBits.h"

namespace vantor {

// Takes the tables and the frame as the file gives them; judges scans. Of a progressive
// picture it notes for each block which coefficients are known, up to a fixed number of blocks.
class JpegScan {
  public:
    enum class Outcome {
        NotJudged,  // lossless, arithmetic or otherwise not followed
        Sound,      // exactly the units the frame has, to the marker behind them
        Broken,
    };

    // Bodies of the segments, behind their lengths.
    void huffmanTables(ByteView& view, std::uint64_t at, std::uint64_t bytes);
    void frame(ByteView& view, std::uint8_t marker, std::uint64_t at);
    void restartInterval(std::uint32_t units) { m_interval = units; }

    // The scan whose header's body stands at `head`, its coded bytes in [at, end).
    Outcome judge(ByteView& view, std::uint64_t head, std::uint64_t at, std::uint64_t end);

  private:
    static constexpr std::size_t kTables = 4;
    static constexpr std::size_t kMostComponents = 4;
    static constexpr unsigned kQuickBits = 9;

    struct Table {
        bool known = false;
        std::array<std::uint16_t, 1 << kQuickBits> quick{};  // length << 8 | value; 0: longer
        std::array<std::uint32_t, 18> limit{};               // first code too large, by length, in 16 bits
        std::array<std::int32_t, 17> offset{};
        std::array<std::uint8_t, 256> values{};
    };
    struct Component {
        std::uint8_t id = 0;
        std::uint8_t across = 1, down = 1;
    };
    enum class Coding : std::uint8_t { Other, Sequential, Progressive };

    struct Part {
        const Table* dc = nullptr;
        const Table* ac = nullptr;
        std::size_t component = 0;
        unsigned blocks = 1;  // of a unit
    };
    // What a scan's header tells.
    struct Scan {
        std::array<Part, kMostComponents> parts{};
        std::size_t count = 0;
        std::uint64_t units = 0;
        unsigned first = 0, last = 63;  // coefficients
        bool refines = false;           // gives further bits of what earlier scans began
    };
    // The blocks of a component, each a bit for every coefficient that is not zero so far.
    using Known = std::vector<std::uint64_t>;

    // Bytes that encoders leave between the last unit and the marker.
    static constexpr std::uint64_t kMostLeft = 64;
    // Blocks whose coefficients are noted, of all components together: 16 MiB.
    static constexpr std::uint64_t kMostBlocks = std::uint64_t{1} << 21;

    static int value(JpegBits& bits, const Table& table);
    static bool block(JpegBits& bits, const Part& part);
    static bool firstBits(JpegBits& bits, const Scan& scan, std::uint64_t& known, std::uint32_t& empty);
    static bool furtherBits(JpegBits& bits, const Scan& scan, std::uint64_t& known, std::uint32_t& empty);

    std::optional<Scan> readScan(ByteView& view, std::uint64_t head) const;
    Outcome judgeBaseline(const Scan& scan, JpegBits& bits) const;
    Outcome judgeProgressive(const Scan& scan, JpegBits& bits);
    Outcome judgeFirstCoefficients(const Scan& scan, JpegBits& bits) const;

    std::array<Table, kTables> m_dc{}, m_ac{};
    std::array<Component, kMostComponents> m_components{};
    std::array<Known, kMostComponents> m_seen;
    std::uint64_t m_blocksSeen = 0;
    std::size_t m_count = 0;
    std::uint32_t m_width = 0, m_height = 0;
    std::uint32_t m_interval = 0;
    Coding m_coding = Coding::Other;
};

}  // namespace vantor

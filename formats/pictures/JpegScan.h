// Counting the units of a baseline JPEG scan by its Huffman codes, without making a picture of them: what is
// no part of the scan does not come out even.
#pragma once

#include <array>
#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

// Takes the tables and the frame as the file gives them; judges scans. Fixed memory.
class JpegScan {
  public:
    enum class Outcome {
        NotJudged,  // progressive, lossless, arithmetic or otherwise not followed
        Sound,      // exactly the units the frame has, to the marker behind them
        Broken,
    };

    // Bodies of the segments, behind their lengths.
    void huffmanTables(ByteView& view, std::uint64_t at, std::uint64_t bytes);
    void frame(ByteView& view, std::uint8_t marker, std::uint64_t at);
    void restartInterval(std::uint32_t units) { m_interval = units; }

    // The scan whose header's body stands at `head`, its coded bytes in [at, end).
    Outcome judge(ByteView& view, std::uint64_t head, std::uint64_t at, std::uint64_t end) const;

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
    class Bits;

    struct Part {
        const Table* dc = nullptr;
        const Table* ac = nullptr;
        unsigned blocks = 1;  // of a unit
    };

    static int value(Bits& bits, const Table& table);
    static bool block(Bits& bits, const Part& part);

    std::array<Table, kTables> m_dc{}, m_ac{};
    std::array<Component, kMostComponents> m_components{};
    std::size_t m_count = 0;
    std::uint32_t m_width = 0, m_height = 0;
    std::uint32_t m_interval = 0;
    bool m_baseline = false;
};

}  // namespace vantor

// Bits of a JPEG picture's coded units, out of the clusters of a file.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "repair/JpegHead.h"

namespace vantor {

// The clusters of a file as a reader comes to them.
class ClusterSupply {
  public:
    virtual ~ClusterSupply() = default;
    // Valid until the next call; nothing behind the last one.
    virtual std::span<const std::uint8_t> cluster(std::uint64_t number) = 0;
};

// Where reading can go on. The bytes before `seen` were looked at.
struct BitPlace {
    std::uint64_t at = 0;  // next byte
    std::uint64_t seen = 0;
    std::uint64_t bits = 0;
    unsigned count = 0;
    unsigned padding = 0;  // of the bits, behind a marker
    bool atMarker = false;

    bool overrun() const { return padding > count; }
    // A whole byte is left before the marker.
    bool hasMore() const { return count - std::min(padding, count) >= 8; }
    // Goes on with the byte `bytes` further.
    void goBehind(unsigned bytes) {
        at += bytes;
        bits = 0;
        count = padding = 0;
        atMarker = false;
    }
};

// Source: ITU-T T.81, annex F. Zeros that only keep marks out are passed over; behind a marker all bits
// are 1.
class CodedBits {
  public:
    CodedBits(std::uint64_t clusterBytes, ClusterSupply& supply)
        : m_clusterBytes(clusterBytes), m_supply(supply) {}

    // Negative where there is none; the supply has no further cluster then.
    int byteAt(BitPlace& place, std::uint64_t at);
    bool isOutOfData() const { return m_outOfData; }
    // What was read of the supply counts no more.
    void reset() {
        m_bytes = {};
        m_outOfData = false;
    }

    // As few bytes as needed: what was looked at belongs to the place.
    void fill(BitPlace& place);
    // The next 16 bits.
    std::uint32_t peek(BitPlace& place);
    void skip(BitPlace& place, unsigned bits);
    // Up to 15 bits as a number.
    std::uint32_t take(BitPlace& place, unsigned bits);
    // Negative where no code of the table stands.
    int value(BitPlace& place, const JpegCodes& codes);
    // A number of so many bits, at most 15, that may be negative.
    int extended(BitPlace& place, unsigned bits);

  private:
    const std::uint64_t m_clusterBytes;
    ClusterSupply& m_supply;
    std::span<const std::uint8_t> m_bytes;  // of the cluster
    std::uint64_t m_bytesFrom = 0;
    bool m_outOfData = false;
};

}  // namespace vantor

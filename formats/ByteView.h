// Buffered, bounds-checked reading for the walkers: no getter can reach outside the source, and the total
// amount of reading is capped, so that no structure in a file, however twisted, makes a walker read without
// end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "formats/ByteSource.h"
#include "formats/Extent.h"

namespace vantor {

enum class Endian { Big, Little };

// Sums and products of untrusted numbers stop at the largest value instead of wrapping round.
std::uint64_t addClamped(std::uint64_t a, std::uint64_t b);
std::uint64_t mulClamped(std::uint64_t a, std::uint64_t b);

// Files begin at a sector of the medium: what stands at such a place, counted from a file's first byte, may
// be the next one.
constexpr bool isSectorStart(std::uint64_t at) {
    return at % 512 == 0;
}

// What a search came upon. Where reading stopped there is no use in going on behind.
struct Finding {
    enum class Outcome { Found, Absent, Stopped };

    Outcome outcome = Outcome::Absent;
    std::uint64_t at = 0;  // of the byte found, or the end of the searched range, or where reading stopped

    bool found() const { return outcome == Outcome::Found; }
    bool stopped() const { return outcome == Outcome::Stopped; }
};

// One window onto a ByteSource that follows the reader. A hop reads kHopBytes, reading on doubles the window
// up to kWindowBytes, so headers far apart stay cheap and long streams fast.
class ByteView {
  public:
    static constexpr std::size_t kHopBytes = 4 * 1024;
    static constexpr std::size_t kWindowBytes = 64 * 1024;
    static constexpr std::size_t kMostAtLeast = kWindowBytes / 2;

    explicit ByteView(ByteSource& source);

    std::uint64_t size() const { return m_size; }
    bool holds(std::uint64_t at, std::uint64_t count) const { return at <= m_size && count <= m_size - at; }

    // The buffered bytes from `at` on: at least min(atLeast, bytes left) of them, fewer only before an
    // unreadable place, none at the end. Valid until the next call. atLeast must not exceed kMostAtLeast.
    std::span<const std::uint8_t> window(std::uint64_t at, std::size_t atLeast = 1);

    // Fills `into` from `at`; false when not all of it could be read.
    bool copy(std::uint64_t at, std::span<std::uint8_t> into);
    // The same of bytes within one sector, of which no more is read: for a look behind a file's end.
    bool copyWithinSector(std::uint64_t at, std::span<std::uint8_t> into);
    // Whether exactly these bytes stand at `at`.
    bool matches(std::uint64_t at, std::string_view bytes);

    // An unsigned number of 1 to 8 bytes; nothing when it is not wholly there.
    std::optional<std::uint64_t> number(std::uint64_t at, std::size_t bytes, Endian endian);
    std::optional<std::uint8_t> u8(std::uint64_t at);
    std::optional<std::uint16_t> be16(std::uint64_t at);
    std::optional<std::uint32_t> be32(std::uint64_t at);
    std::optional<std::uint64_t> be64(std::uint64_t at);
    std::optional<std::uint16_t> le16(std::uint64_t at);
    std::optional<std::uint32_t> le32(std::uint64_t at);
    std::optional<std::uint64_t> le64(std::uint64_t at);

    // Looks for the first `byte` in [from, to).
    Finding find(std::uint8_t byte, std::uint64_t from, std::uint64_t to);

    // True once the cap on reading was hit; from then on the view reads as ended.
    bool exhausted() const { return m_budget == 0; }

    // Bytes that were unpacked from all its streams together, for those who bound that.
    std::uint64_t unpacked() const { return m_unpacked; }
    void noteUnpacked(std::uint64_t bytes) { m_unpacked += bytes; }

  private:
    void refill(std::uint64_t at, std::size_t atLeast);

    ByteSource& m_source;
    const std::uint64_t m_size;
    std::uint64_t m_budget;  // bytes that may still be read
    std::uint64_t m_unpacked = 0;
    std::vector<std::uint8_t> m_buffer;     // of kWindowBytes once something had to be copied
    const std::uint8_t* m_bytes = nullptr;  // the window: m_buffer's, or where the source holds it
    std::uint64_t m_start = 0;              // offset of m_bytes[0]
    std::size_t m_fill = 0;                 // valid bytes there
    std::size_t m_step = kHopBytes;
};

// A number in groups of seven bits, the lowest first, each but the last with its eighth bit set (LEB128);
// moves `at` behind it. Nothing when it is not wholly there or has more groups.
std::optional<std::uint64_t> groupedNumber(ByteView& view, std::uint64_t& at, unsigned mostGroups);

// Reads header fields one after the other. After a field that is not wholly there every getter yields 0 and
// ok() stays false, so a header is read in one go and checked once.
class Cursor {
  public:
    explicit Cursor(ByteView& view, std::uint64_t at = 0, Endian endian = Endian::Big)
        : m_view(view), m_at(at), m_endian(endian) {}

    bool ok() const { return m_ok; }
    std::uint64_t at() const { return m_at; }
    void skip(std::uint64_t bytes) { m_at = addClamped(m_at, bytes); }

    std::uint8_t u8() { return static_cast<std::uint8_t>(take(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(take(2)); }
    std::uint32_t u24() { return static_cast<std::uint32_t>(take(3)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(take(4)); }
    std::uint64_t u64() { return take(8); }

  private:
    std::uint64_t take(std::size_t bytes);

    ByteView& m_view;
    std::uint64_t m_at;
    Endian m_endian;
    bool m_ok = true;
};

// The answers walkers give. Each keeps `end` within the source.
Extent unknownExtent();
Extent completeAt(const ByteView& view, std::uint64_t end,
                  const Facts& facts = {});  // CutOff if end lies beyond
Extent cutOffAt(const ByteView& view, std::uint64_t end, const Facts& facts = {});
Extent damagedAt(const ByteView& view, std::uint64_t end, const Facts& facts = {});
Extent spoiltUpTo(const ByteView& view, std::uint64_t end,
                  const Facts& facts = {});  // damaged inside, its end found
Extent inexact(Extent extent);               // the same with exactEnd false
Extent withContent(Extent extent);           // the same, its content checked
Extent withFrames(Extent extent);            // the same, by its frames' heads and lengths alone

}  // namespace vantor

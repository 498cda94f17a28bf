// The window that follows a walker over its source, and the numbers read through it.
#include "formats/ByteView.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace vantor {

namespace {

constexpr std::uint64_t kByteViewMost = std::numeric_limits<std::uint64_t>::max();

// A walker passes over its file once, looks ahead and back a little, and hops through tables. Three times the
// source and a fixed allowance for hops is more than any sound file takes.
constexpr std::uint64_t kPasses = 3;
constexpr std::uint64_t kHopAllowance = 32 * 1024 * 1024;

// Media are read by the sector.
constexpr std::uint64_t kAlign = 512;

}  // namespace

std::uint64_t addClamped(std::uint64_t a, std::uint64_t b) {
    return a > kByteViewMost - b ? kByteViewMost : a + b;
}

std::uint64_t mulClamped(std::uint64_t a, std::uint64_t b) {
    return b != 0 && a > kByteViewMost / b ? kByteViewMost : a * b;
}

ByteView::ByteView(ByteSource& source)
    : m_source(source),
      m_size(source.size()),
      m_budget(addClamped(mulClamped(kPasses, m_size), kHopAllowance)) {}

void ByteView::refill(std::uint64_t at, std::size_t atLeast) {
    const bool readingOn = at >= m_start && at <= m_start + m_fill && m_fill != 0;
    m_step = readingOn ? std::min(m_step * 2, kWindowBytes) : kHopBytes;
    const std::uint64_t start = at - at % kAlign;
    const std::size_t wanted =
        std::min(kWindowBytes, std::max(m_step, atLeast + static_cast<std::size_t>(kAlign)));
    const std::uint64_t cost = std::max(wanted, kHopBytes);
    m_start = start;
    m_fill = 0;
    if (cost > m_budget) {
        m_budget = 0;
        return;
    }
    m_budget -= cost;
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(wanted, m_size - start));
    const auto atHand = m_source.atHand(start);
    if (atHand.size() >= length) {
        m_bytes = atHand.data();
        m_fill = length;
        return;
    }
    m_buffer.resize(kWindowBytes);
    m_bytes = m_buffer.data();
    m_fill = std::min(length, m_source.read(start, {m_buffer.data(), length}));
}

std::span<const std::uint8_t> ByteView::window(std::uint64_t at, std::size_t atLeast) {
    if (at >= m_size)
        return {};
    const auto needed = std::min<std::uint64_t>(std::min(atLeast, kMostAtLeast), m_size - at);
    const bool inside = at >= m_start && at - m_start < m_fill && m_fill - (at - m_start) >= needed;
    if (!inside)
        refill(at, static_cast<std::size_t>(needed));
    if (at - m_start >= m_fill)
        return {};
    const auto skip = static_cast<std::size_t>(at - m_start);
    return {m_bytes + skip, m_fill - skip};
}

bool ByteView::copy(std::uint64_t at, std::span<std::uint8_t> into) {
    while (!into.empty()) {
        const auto bytes = window(at, std::min(into.size(), kMostAtLeast));
        if (bytes.empty())
            return false;
        const auto count = std::min(bytes.size(), into.size());
        std::copy_n(bytes.begin(), count, into.begin());
        into = into.subspan(count);
        at += count;
    }
    return true;
}

bool ByteView::copyWithinSector(std::uint64_t at, std::span<std::uint8_t> into) {
    std::array<std::uint8_t, 512> sector;
    const std::uint64_t within = at % sector.size();
    if (into.size() > sector.size() - within || !holds(at, into.size()))
        return false;
    if (at >= m_start && at - m_start < m_fill && m_fill - (at - m_start) >= into.size())
        return copy(at, into);
    const auto wanted = within + into.size();
    if (m_budget < sector.size() || m_source.read(at - within, sector) < wanted)
        return false;
    m_budget -= sector.size();
    std::copy_n(sector.begin() + static_cast<std::ptrdiff_t>(within), into.size(), into.begin());
    return true;
}

bool ByteView::matches(std::uint64_t at, std::string_view bytes) {
    if (bytes.empty())
        return true;
    const auto here = window(at, bytes.size());
    return here.size() >= bytes.size() && std::memcmp(here.data(), bytes.data(), bytes.size()) == 0;
}

std::optional<std::uint64_t> ByteView::number(std::uint64_t at, std::size_t bytes, Endian endian) {
    const auto here = window(at, bytes);
    if (here.size() < bytes)
        return std::nullopt;
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < bytes; ++i)
        value = value << 8 | here[endian == Endian::Big ? i : bytes - 1 - i];
    return value;
}

namespace {

template <typename Number>
std::optional<Number> fixed(ByteView& view, std::uint64_t at, Endian endian) {
    const auto value = view.number(at, sizeof(Number), endian);
    return value ? std::optional<Number>(static_cast<Number>(*value)) : std::nullopt;
}

}  // namespace

std::optional<std::uint8_t> ByteView::u8(std::uint64_t at) {
    return fixed<std::uint8_t>(*this, at, Endian::Big);
}
std::optional<std::uint16_t> ByteView::be16(std::uint64_t at) {
    return fixed<std::uint16_t>(*this, at, Endian::Big);
}
std::optional<std::uint32_t> ByteView::be32(std::uint64_t at) {
    return fixed<std::uint32_t>(*this, at, Endian::Big);
}
std::optional<std::uint64_t> ByteView::be64(std::uint64_t at) {
    return fixed<std::uint64_t>(*this, at, Endian::Big);
}
std::optional<std::uint16_t> ByteView::le16(std::uint64_t at) {
    return fixed<std::uint16_t>(*this, at, Endian::Little);
}
std::optional<std::uint32_t> ByteView::le32(std::uint64_t at) {
    return fixed<std::uint32_t>(*this, at, Endian::Little);
}
std::optional<std::uint64_t> ByteView::le64(std::uint64_t at) {
    return fixed<std::uint64_t>(*this, at, Endian::Little);
}

Finding ByteView::find(std::uint8_t byte, std::uint64_t from, std::uint64_t to) {
    while (from < to) {
        const auto bytes = window(from);
        if (bytes.empty())
            return {Finding::Outcome::Stopped, from};
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), to - from));
        if (const void* hit = std::memchr(bytes.data(), byte, count)) {
            const auto skip = static_cast<const std::uint8_t*>(hit) - bytes.data();
            return {Finding::Outcome::Found, from + static_cast<std::uint64_t>(skip)};
        }
        from += count;
    }
    return {Finding::Outcome::Absent, to};
}

std::optional<std::uint64_t> groupedNumber(ByteView& view, std::uint64_t& at, unsigned mostGroups) {
    std::uint64_t value = 0;
    for (unsigned group = 0; group < mostGroups; ++group) {
        const auto byte = view.u8(at++);
        if (!byte)
            return std::nullopt;
        value |= static_cast<std::uint64_t>(*byte & 0x7F) << (7 * group);
        if ((*byte & 0x80) == 0)
            return value;
    }
    return std::nullopt;
}

std::uint64_t Cursor::take(std::size_t bytes) {
    if (!m_ok)
        return 0;
    const auto value = m_view.number(m_at, bytes, m_endian);
    m_ok = value.has_value();
    m_at = addClamped(m_at, bytes);
    return value.value_or(0);
}

Extent unknownExtent() {
    return {};
}

Extent completeAt(const ByteView& view, std::uint64_t end, const Facts& facts) {
    if (end > view.size())
        return cutOffAt(view, view.size(), facts);
    return {Verdict::Complete, end, true, facts};
}

Extent cutOffAt(const ByteView& view, std::uint64_t end, const Facts& facts) {
    return {Verdict::CutOff, std::min(end, view.size()), true, facts};
}

Extent damagedAt(const ByteView& view, std::uint64_t end, const Facts& facts) {
    return {Verdict::Damaged, std::min(end, view.size()), true, facts};
}

Extent withContent(Extent extent) {
    extent.checked = true;
    return extent;
}

Extent withFrames(Extent extent) {
    extent.framesOnly = true;
    return withContent(extent);
}

Extent spoiltUpTo(const ByteView& view, std::uint64_t end, const Facts& facts) {
    Extent extent = damagedAt(view, end, facts);
    extent.endFound = true;
    return extent;
}

Extent inexact(Extent extent) {
    extent.exactEnd = false;
    return extent;
}

}  // namespace vantor

// Sources: ITU-T T.81, annexes C, E and F.
#include "formats/pictures/JpegScan.h"

#include <algorithm>

namespace vantor {

namespace {

// Bytes that encoders leave between the last unit and the marker.
constexpr std::uint64_t kMostLeft = 64;

}  // namespace

// Bits of entropy-coded bytes, most significant first, without the stuffed zeros; ones behind a marker.
class JpegScan::Bits {
  public:
    Bits(ByteView& view, std::uint64_t at, std::uint64_t end) : m_view(view), m_at(at), m_end(end) {}

    // The next 16 bits.
    std::uint32_t peek() {
        if (m_count < 16)
            fill();
        return static_cast<std::uint32_t>(m_bits >> (m_count - 16)) & 0xFFFF;
    }
    void skip(unsigned bits) {
        if (m_count < bits)
            fill();
        m_count -= bits;
    }
    // Whether more bits were used than there are.
    bool overrun() const { return m_padding > m_count; }
    // Goes behind the restart marker that should stand here.
    bool restart() {
        if (m_count < 16)
            fill();
        if (overrun() || m_count - m_padding >= 8 || !m_atMarker)
            return false;
        m_at += 2;
        m_bits = 0;
        m_count = m_padding = 0;
        m_atMarker = false;
        m_window = {};
        return true;
    }
    std::uint64_t bytesLeft() const {
        return m_end - std::min(m_at, m_end) + (m_count - std::min(m_padding, m_count)) / 8;
    }

  private:
    void fill() {
        while (m_count <= 48) {
            std::uint64_t byte = 0xFF;
            if (!m_atMarker)
                byte = next();
            if (m_atMarker)
                m_padding += 8;
            m_bits = m_bits << 8 | byte;
            m_count += 8;
        }
    }
    std::uint64_t next() {
        for (;;) {
            const std::uint64_t byte = peekByte(0);
            if (m_atMarker)
                return 0xFF;
            if (byte != 0xFF) {
                advance(1);
                return byte;
            }
            const std::uint64_t second = peekByte(1);
            if (second == 0) {
                advance(2);
                return 0xFF;
            }
            if (second != 0xFF || m_atMarker) {
                m_atMarker = true;
                return 0xFF;
            }
            advance(1);  // a fill byte
        }
    }
    // The byte so far ahead; a marker where the scan ends.
    std::uint64_t peekByte(std::uint64_t ahead) {
        if (m_at + ahead >= m_end) {
            m_atMarker = true;
            return 0xFF;
        }
        if (m_window.size() <= ahead)
            m_window = m_view.window(m_at, static_cast<std::size_t>(ahead) + 1);
        if (m_window.size() <= ahead) {
            m_atMarker = true;
            return 0xFF;
        }
        return m_window[static_cast<std::size_t>(ahead)];
    }
    void advance(std::size_t bytes) {
        m_at += bytes;
        m_window = m_window.subspan(std::min(bytes, m_window.size()));
    }

    ByteView& m_view;
    std::uint64_t m_at;
    const std::uint64_t m_end;
    std::span<const std::uint8_t> m_window;
    std::uint64_t m_bits = 0;
    unsigned m_count = 0;    // valid bits
    unsigned m_padding = 0;  // of them behind the marker
    bool m_atMarker = false;
};

void JpegScan::huffmanTables(ByteView& view, std::uint64_t at, std::uint64_t bytes) {
    const std::uint64_t end = at + bytes;
    while (at + 17 <= end) {
        const auto kind = view.u8(at).value_or(0xFF);
        std::array<std::uint8_t, 16> counts{};
        if ((kind & 0x0F) >= kTables || kind >> 4 > 1 || !view.copy(at + 1, counts))
            return;
        Table& table = (kind >> 4 == 0 ? m_dc : m_ac)[kind & 3];
        table = {};
        std::size_t total = 0;
        for (const auto count : counts)
            total += count;
        if (total > table.values.size() || !view.copy(at + 17, std::span(table.values).first(total)))
            return;
        std::uint32_t code = 0;
        std::size_t first = 0;
        for (unsigned length = 1; length <= 16; ++length) {
            const unsigned count = counts[length - 1];
            table.offset[length] = static_cast<std::int32_t>(first) - static_cast<std::int32_t>(code);
            if (code + count > (std::uint32_t{1} << length))
                return;  // more codes than there are
            for (unsigned i = 0; i < count && length <= kQuickBits; ++i) {
                const auto entry = static_cast<std::uint16_t>(length << 8 | table.values[first + i]);
                const auto from = (code + i) << (kQuickBits - length);
                std::fill_n(table.quick.begin() + from, std::size_t{1} << (kQuickBits - length), entry);
            }
            first += count;
            code += count;
            table.limit[length] = code << (16 - length);
            code <<= 1;
        }
        table.known = true;
        at += 17 + total;
    }
}

void JpegScan::frame(ByteView& view, std::uint8_t marker, std::uint64_t at) {
    m_baseline = false;
    Cursor in(view, at);
    const auto precision = in.u8();
    m_height = in.u16();
    m_width = in.u16();
    m_count = in.u8();
    if ((marker != 0xC0 && marker != 0xC1) || (precision != 8 && precision != 12) || m_count == 0 ||
        m_count > kMostComponents)
        return;
    for (std::size_t i = 0; i < m_count; ++i) {
        m_components[i].id = in.u8();
        const auto factors = in.u8();
        in.skip(1);
        m_components[i].across = factors >> 4;
        m_components[i].down = factors & 15;
        if (m_components[i].across - 1U > 3 || m_components[i].down - 1U > 3)
            return;
    }
    m_baseline = in.ok() && m_width != 0 && m_height != 0;
}

// The value of the next code; negative when there is none such.
int JpegScan::value(Bits& bits, const Table& table) {
    const auto next = bits.peek();
    if (const auto entry = table.quick[next >> (16 - kQuickBits)]; entry != 0) {
        bits.skip(entry >> 8);
        return entry & 0xFF;
    }
    for (unsigned length = kQuickBits + 1; length <= 16; ++length) {
        if (next >= table.limit[length])
            continue;
        const auto index = static_cast<std::int32_t>(next >> (16 - length)) + table.offset[length];
        if (index < 0 || index > 255)
            return -1;
        bits.skip(length);
        return table.values[static_cast<std::size_t>(index)];
    }
    return -1;
}

bool JpegScan::block(Bits& bits, const Part& part) {
    const int dc = value(bits, *part.dc);
    if (dc < 0 || dc > 15)
        return false;
    bits.skip(static_cast<unsigned>(dc));
    for (int k = 1; k < 64; ++k) {
        const int code = value(bits, *part.ac);
        if (code < 0)
            return false;
        const int run = code >> 4, size = code & 15;
        if (size == 0 && run != 15)
            return run == 0;  // the rest of the block is zero
        k += run;
        if (k > 63)
            return false;
        bits.skip(static_cast<unsigned>(size));
    }
    return true;
}

JpegScan::Outcome JpegScan::judge(ByteView& view, std::uint64_t head, std::uint64_t at,
                                  std::uint64_t end) const {
    Cursor in(view, head);
    const std::size_t count = in.u8();
    if (!m_baseline || count == 0 || count > m_count)
        return Outcome::NotJudged;
    std::uint32_t mostAcross = 1, mostDown = 1;
    for (std::size_t i = 0; i < m_count; ++i) {
        mostAcross = std::max<std::uint32_t>(mostAcross, m_components[i].across);
        mostDown = std::max<std::uint32_t>(mostDown, m_components[i].down);
    }
    std::array<Part, kMostComponents> parts{};
    std::uint64_t units = 0;
    const auto share = [](std::uint64_t length, std::uint64_t of) { return (length + of - 1) / of; };
    for (std::size_t i = 0; i < count; ++i) {
        const auto id = in.u8();
        const auto tables = in.u8();
        const auto last = m_components.begin() + static_cast<std::ptrdiff_t>(m_count);
        const auto component =
            std::find_if(m_components.begin(), last, [&](const Component& each) { return each.id == id; });
        if (component == last || tables >> 4 >= kTables || (tables & 15) >= kTables)
            return Outcome::NotJudged;
        parts[i].dc = &m_dc[tables >> 4];
        parts[i].ac = &m_ac[tables & 15];
        parts[i].blocks = count == 1 ? 1 : component->across * component->down;
        if (!parts[i].dc->known || !parts[i].ac->known)
            return Outcome::NotJudged;
        // A scan of one component has its blocks one by one, without those that only fill up units.
        units = count == 1 ? share(share(std::uint64_t{m_width} * component->across, mostAcross), 8) *
                                 share(share(std::uint64_t{m_height} * component->down, mostDown), 8)
                           : share(m_width, std::uint64_t{8} * mostAcross) *
                                 share(m_height, std::uint64_t{8} * mostDown);
    }
    if (!in.ok())
        return Outcome::NotJudged;
    Bits bits(view, at, end);
    for (std::uint64_t unit = 0; unit < units; ++unit) {
        if (m_interval != 0 && unit != 0 && unit % m_interval == 0 && !bits.restart())
            return Outcome::Broken;
        for (std::size_t i = 0; i < count; ++i) {
            for (unsigned each = 0; each < parts[i].blocks; ++each) {
                if (!block(bits, parts[i]) || bits.overrun())
                    return Outcome::Broken;
            }
        }
    }
    return bits.bytesLeft() <= kMostLeft ? Outcome::Sound : Outcome::Broken;
}

}  // namespace vantor

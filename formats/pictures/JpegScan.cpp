// Sources: ITU-T T.81, annexes C, E and F.
#include "formats/pictures/JpegScan.h"

#include <algorithm>

namespace vantor {

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
    m_coding = Coding::Other;
    m_seen = {};
    m_blocksSeen = 0;
    Cursor in(view, at);
    const auto precision = in.u8();
    m_height = in.u16();
    m_width = in.u16();
    m_count = in.u8();
    if (marker < 0xC0 || marker > 0xC2 || (precision != 8 && precision != 12) || m_count == 0 ||
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
    if (in.ok() && m_width != 0 && m_height != 0)
        m_coding = marker == 0xC2 ? Coding::Progressive : Coding::Sequential;
}

// The value of the next code; negative when there is none such.
int JpegScan::value(JpegBits& bits, const Table& table) {
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

bool JpegScan::block(JpegBits& bits, const Part& part) {
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

// The parts that a scan's header names, and its count of units; nothing where it names what there is not.
std::optional<JpegScan::Scan> JpegScan::readScan(ByteView& view, std::uint64_t head) const {
    Cursor in(view, head);
    Scan scan;
    scan.count = in.u8();
    if (scan.count == 0 || scan.count > m_count)
        return std::nullopt;
    std::uint32_t mostAcross = 1, mostDown = 1;
    for (std::size_t i = 0; i < m_count; ++i) {
        mostAcross = std::max<std::uint32_t>(mostAcross, m_components[i].across);
        mostDown = std::max<std::uint32_t>(mostDown, m_components[i].down);
    }
    const auto share = [](std::uint64_t length, std::uint64_t of) { return (length + of - 1) / of; };
    const bool single = scan.count == 1;
    for (std::size_t i = 0; i < scan.count; ++i) {
        const auto id = in.u8();
        const auto tables = in.u8();
        const auto last = m_components.begin() + static_cast<std::ptrdiff_t>(m_count);
        const auto component =
            std::find_if(m_components.begin(), last, [&](const Component& each) { return each.id == id; });
        if (component == last || tables >> 4 >= kTables || (tables & 15) >= kTables)
            return std::nullopt;
        Part& part = scan.parts[i];
        part.dc = &m_dc[tables >> 4];
        part.ac = &m_ac[tables & 15];
        part.component = static_cast<std::size_t>(component - m_components.begin());
        part.blocks = single ? 1 : component->across * component->down;
        // A scan of one component has its blocks one by one, without those that only fill up units.
        scan.units = single ? share(share(std::uint64_t{m_width} * component->across, mostAcross), 8) *
                                  share(share(std::uint64_t{m_height} * component->down, mostDown), 8)
                            : share(m_width, std::uint64_t{8} * mostAcross) *
                                  share(m_height, std::uint64_t{8} * mostDown);
    }
    scan.first = in.u8();
    scan.last = in.u8();
    const auto bits = in.u8();
    scan.refines = bits >> 4 != 0;
    return in.ok() ? std::optional(scan) : std::nullopt;
}

JpegScan::Outcome JpegScan::judge(ByteView& view, std::uint64_t head, std::uint64_t at, std::uint64_t end) {
    const auto scan = m_coding == Coding::Other ? std::nullopt : readScan(view, head);
    if (!scan)
        return Outcome::NotJudged;
    JpegBits bits(view, at, end);
    return m_coding == Coding::Progressive ? judgeProgressive(*scan, bits) : judgeBaseline(*scan, bits);
}

JpegScan::Outcome JpegScan::judgeBaseline(const Scan& scan, JpegBits& bits) const {
    for (std::size_t i = 0; i < scan.count; ++i) {
        if (!scan.parts[i].dc->known || !scan.parts[i].ac->known)
            return Outcome::NotJudged;
    }
    for (std::uint64_t unit = 0; unit < scan.units; ++unit) {
        if (m_interval != 0 && unit != 0 && unit % m_interval == 0 && !bits.restart())
            return Outcome::Broken;
        for (std::size_t i = 0; i < scan.count; ++i) {
            for (unsigned each = 0; each < scan.parts[i].blocks; ++each) {
                if (!block(bits, scan.parts[i]) || bits.overrun())
                    return Outcome::Broken;
            }
        }
    }
    return bits.bytesLeft() <= kMostLeft ? Outcome::Sound : Outcome::Broken;
}

}  // namespace vantor

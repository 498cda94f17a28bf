#include "repair/JpegHead.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::uint64_t kMostFillBytes = 64;
constexpr int kMostSegments = 1024;

bool readQuantisation(ByteView& view, std::uint64_t at, std::uint64_t end, JpegHead& head) {
    while (at < end) {
        const unsigned kind = view.u8(at++).value_or(0xFF);
        const std::size_t bytes = kind >> 4 == 0 ? 1 : 2;
        if (kind >> 4 > 1 || (kind & 15) >= JpegHead::kTables || at + 64 * bytes > end) {
            return false;
        }
        for (std::uint16_t& step : head.quantisation[kind & 3]) {
            step = static_cast<std::uint16_t>(view.number(at, bytes, Endian::Big).value_or(0));
            at += bytes;
        }
    }
    return at == end;
}

bool readFrame(ByteView& view, std::uint64_t at, JpegHead& head) {
    Cursor in(view, at);
    const unsigned bits = in.u8();
    const unsigned height = in.u16();
    const unsigned width = in.u16();
    const unsigned count = in.u8();
    if (bits != 8 || width == 0 || height == 0 || count == 0 || count > 4 || !head.components.empty()) {
        return false;
    }
    unsigned across = 1;
    unsigned down = 1;
    for (unsigned i = 0; i < count; ++i) {
        JpegComponent component;
        component.id = in.u8();
        const unsigned factors = in.u8();
        component.across = factors >> 4;
        component.down = factors & 15;
        component.quantisation = in.u8();
        if (component.across - 1 > 3 || component.down - 1 > 3 ||
            component.quantisation >= JpegHead::kTables) {
            return false;
        }
        across = std::max(across, component.across);
        down = std::max(down, component.down);
        head.components.push_back(component);
    }
    if (count == 1) {
        // The blocks of a single component come one by one, whatever its factors say.
        across = down = head.components[0].across = head.components[0].down = 1;
    }
    head.unitsAcross = (width + 8 * across - 1) / (8 * across);
    head.unitsDown = (height + 8 * down - 1) / (8 * down);
    return in.ok();
}

bool readScan(ByteView& view, std::uint64_t at, JpegHead& head) {
    Cursor in(view, at);
    if (head.components.empty() || in.u8() != head.components.size()) {
        return false;
    }
    for (JpegComponent& component : head.components) {
        const unsigned id = in.u8();
        const unsigned tables = in.u8();
        component.dc = tables >> 4;
        component.ac = tables & 15;
        if (id != component.id || component.dc >= JpegHead::kTables || component.ac >= JpegHead::kTables ||
            !head.dc[component.dc].known || !head.ac[component.ac].known) {
            return false;
        }
    }
    return in.ok();
}

}  // namespace

bool readJpegCodes(ByteView& view, std::uint64_t at, std::uint64_t end, JpegHead& head) {
    while (at + 17 <= end) {
        const unsigned kind = view.u8(at).value_or(0xFF);
        std::array<std::uint8_t, 16> counts{};
        if (kind >> 4 > 1 || (kind & 15) >= JpegHead::kTables || !view.copy(at + 1, counts)) {
            return false;
        }
        JpegCodes& codes = (kind >> 4 == 0 ? head.dc : head.ac)[kind & 3];
        codes = {};
        std::size_t total = 0;
        for (const auto count : counts) {
            total += count;
        }
        if (total > codes.values.size() || !view.copy(at + 17, std::span(codes.values).first(total))) {
            return false;
        }
        std::uint32_t code = 0;
        std::size_t first = 0;
        for (unsigned length = 1; length <= 16; ++length) {
            const unsigned count = counts[length - 1];
            if (code + count > std::uint32_t{1} << length) {
                return false;
            }
            codes.offset[length] = static_cast<std::int32_t>(first) - static_cast<std::int32_t>(code);
            for (unsigned i = 0; i < count && length <= JpegCodes::kQuickBits; ++i) {
                const unsigned open = JpegCodes::kQuickBits - length;
                std::fill_n(codes.quick.begin() + ((code + i) << open), std::size_t{1} << open,
                            static_cast<std::uint16_t>(length << 8 | codes.values[first + i]));
            }
            first += count;
            code += count;
            codes.limit[length] = code << (16 - length);
            code <<= 1;
        }
        codes.known = true;
        at += 17 + total;
    }
    return at == end;
}

std::optional<JpegHead> readJpegHead(ByteView& view) {
    JpegHead head;
    if (!view.matches(0, "\xFF\xD8")) {
        return std::nullopt;
    }
    std::uint64_t at = 2;
    for (int segments = 0; segments < kMostSegments && at < JpegHead::kMostBytes; ++segments) {
        std::uint64_t fill = 0;
        while (fill < kMostFillBytes && view.matches(at, "\xFF\xFF")) {
            ++at;
            ++fill;
        }
        const auto marker = view.be16(at);
        const auto bytes = view.be16(at + 2);
        if (!marker || !bytes || *marker >> 8 != 0xFF || *bytes < 2) {
            return std::nullopt;
        }
        const std::uint64_t body = at + 4;
        at += 2 + std::uint64_t{*bytes};
        switch (*marker & 0xFF) {
            case 0xC0:
            case 0xC1:
                if (!readFrame(view, body, head)) {
                    return std::nullopt;
                }
                break;
            case 0xC4:
                if (!readJpegCodes(view, body, at, head)) {
                    return std::nullopt;
                }
                break;
            case 0xDB:
                if (!readQuantisation(view, body, at, head)) {
                    return std::nullopt;
                }
                break;
            case 0xDD:
                head.restartInterval = view.be16(body).value_or(0);
                break;
            case 0xDA:
                if (!readScan(view, body, head) || !view.holds(0, at)) {
                    return std::nullopt;
                }
                head.scanAt = at;
                return head;
            default:
                if (const unsigned kind = *marker & 0xFF;
                    kind != 0xFE && (kind < 0xE0 || kind > 0xEF) && kind != 0xDC) {
                    return std::nullopt;  // another coding, or no picture
                }
        }
    }
    return std::nullopt;
}

}  // namespace vantor

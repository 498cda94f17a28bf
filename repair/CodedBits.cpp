#include "repair/CodedBits.h"

namespace vantor {

int CodedBits::byteAt(BitPlace& place, std::uint64_t at) {
    place.seen = std::max(place.seen, at + 1);
    if (at < m_bytesFrom || at - m_bytesFrom >= m_bytes.size()) {
        m_bytesFrom = at / m_clusterBytes * m_clusterBytes;
        m_bytes = m_supply.cluster(at / m_clusterBytes);
        if (at - m_bytesFrom >= m_bytes.size()) {
            m_bytes = {};
            m_outOfData = true;
            return -1;
        }
    }
    return m_bytes[static_cast<std::size_t>(at - m_bytesFrom)];
}

void CodedBits::fill(BitPlace& place) {
    while (place.count < 16) {
        int byte = place.atMarker ? -1 : byteAt(place, place.at);
        if (byte == 0xFF) {
            const int next = byteAt(place, place.at + 1);
            if (next == 0) {
                ++place.at;
            } else {
                byte = -1;
            }
        }
        if (byte < 0) {
            place.atMarker = true;
            place.padding += 8;
            byte = 0xFF;
        } else {
            ++place.at;
        }
        place.bits = place.bits << 8 | static_cast<std::uint64_t>(byte);
        place.count += 8;
    }
}

std::uint32_t CodedBits::peek(BitPlace& place) {
    if (place.count < 16) {
        fill(place);
    }
    return static_cast<std::uint32_t>(place.bits >> (place.count - 16)) & 0xFFFF;
}

void CodedBits::skip(BitPlace& place, unsigned bits) {
    if (place.count < bits) {
        fill(place);
    }
    place.count -= bits;
}

std::uint32_t CodedBits::take(BitPlace& place, unsigned bits) {
    if (bits == 0) {
        return 0;
    }
    const std::uint32_t taken = peek(place) >> (16 - bits);
    skip(place, bits);
    return taken;
}

int CodedBits::value(BitPlace& place, const JpegCodes& codes) {
    const std::uint32_t next = peek(place);
    if (const unsigned entry = codes.quick[next >> (16 - JpegCodes::kQuickBits)]; entry != 0) {
        skip(place, entry >> 8);
        return static_cast<int>(entry & 0xFF);
    }
    for (unsigned length = JpegCodes::kQuickBits + 1; length <= 16; ++length) {
        if (next < codes.limit[length]) {
            const auto index = static_cast<std::int32_t>(next >> (16 - length)) + codes.offset[length];
            if (index < 0 || index > 255) {
                return -1;
            }
            skip(place, length);
            return codes.values[static_cast<std::size_t>(index)];
        }
    }
    return -1;
}

int CodedBits::extended(BitPlace& place, unsigned bits) {
    const int number = static_cast<int>(take(place, bits));
    return bits == 0 || number >= 1 << (bits - 1) ? number : number - (1 << bits) + 1;
}

}  // namespace vantor

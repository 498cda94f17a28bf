#include "repair/JpegUnits.h"

#include <algorithm>
#include <cmath>

namespace vantor {

namespace {

constexpr std::array<std::uint8_t, 64> kZigzag = {
    0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,  12, 19, 26, 33, 40, 48,
    41, 34, 27, 20, 13, 6,  7,  14, 21, 28, 35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23,
    30, 37, 44, 51, 58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};

// Samples are 8 bits wide, a block's first coefficient is eight times its mean; coders overshoot a little.
constexpr int kMostMean = 1200;
constexpr int kMostCoefficient = 1 << 15;

// What a coefficient adds to the four means along a block's upper and lower edge: it belongs to one of four
// sums, by whether it changes sign between the upper and the lower edge, and between left and right. Those
// that cancel out within half an edge belong to none.
struct EdgeShare {
    std::uint8_t sum = 4;
    float weight = 0;
};

std::array<EdgeShare, 64> edgeShares() {
    std::array<EdgeShare, 64> shares{};
    const double pi = std::acos(-1.0);
    for (std::size_t k = 0; k < 64; ++k) {
        const unsigned u = kZigzag[k] % 8;
        const unsigned v = kZigzag[k] / 8;
        double mean = 0;
        for (unsigned x = 0; x < 4; ++x) {
            mean += std::cos((2 * x + 1) * u * pi / 16) / 4;
        }
        if (u != 0 && u % 2 == 0) {
            continue;
        }
        const double norm = (u == 0 ? std::sqrt(0.5) : 1) * (v == 0 ? std::sqrt(0.5) : 1) / 4;
        shares[k].sum = static_cast<std::uint8_t>((v % 2) + (u == 0 ? 0 : 2));
        shares[k].weight = static_cast<float>(norm * mean * std::cos(v * pi / 16));
    }
    return shares;
}

std::array<float, 256> doublings() {
    std::array<float, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = std::log2(1 + static_cast<float>(i));
    }
    return table;
}

const std::array<EdgeShare, 64> kEdgeShares = edgeShares();
const std::array<float, 256> kDoublings = doublings();

float apart(int a, int b) {
    return kDoublings[static_cast<std::size_t>(std::min(std::abs(a - b), 255))];
}

std::int16_t sample(float value) {
    return static_cast<std::int16_t>(std::clamp(value, -512.0F, 512.0F));
}

}  // namespace

JpegUnits::JpegUnits(const JpegHead& head, std::uint64_t clusterBytes, ClusterSupply& supply)
    : m_head(head), m_in(clusterBytes, supply) {
    for (unsigned i = 0; i < head.components.size(); ++i) {
        const JpegComponent& component = head.components[i];
        Part part;
        part.component = i;
        part.across = component.across;
        part.down = component.down;
        part.firstEdge = m_edgeCount;
        part.edges = std::size_t{2} * head.unitsAcross * component.across;
        for (std::size_t k = 0; k < 64; ++k) {
            part.weights[k] =
                kEdgeShares[k].weight * static_cast<float>(head.quantisation[component.quantisation][k]);
        }
        m_edgeCount += part.edges;
        m_parts.push_back(part);
    }
    begin();
}

void JpegUnits::begin() {
    m_place = {};
    m_place.at = m_place.seen = m_head.scanAt;
    m_above.clear();
    m_current.assign(m_edgeCount, 0);
    m_pending = false;
    m_in.reset();
}

void JpegUnits::resume(const Snapshot& snapshot) {
    m_place = snapshot.place;
    m_above = snapshot.above;
    m_current = snapshot.current;
    m_pending = false;
    m_in.reset();
}

void JpegUnits::snapshotBefore(Snapshot& into) const {
    into.place = m_before;
    into.above = m_above;
    into.current = m_current;
}

bool JpegUnits::block(const Part& part, EdgePair& edges) {
    const JpegComponent& component = m_head.components[part.component];
    std::array<float, 5> sums{};
    const int dcBits = m_in.value(m_place, m_head.dc[component.dc]);
    if (dcBits < 0 || dcBits > 11) {
        return false;
    }
    int& dc = m_place.dc[part.component];
    dc += m_in.extended(m_place, static_cast<unsigned>(dcBits));
    const int step = m_head.quantisation[component.quantisation][0];
    if (std::abs(dc) > kMostCoefficient || std::abs(dc) * std::int64_t{step} > kMostMean + step) {
        return false;
    }
    sums[kEdgeShares[0].sum] = static_cast<float>(dc) * part.weights[0];
    const JpegCodes& codes = m_head.ac[component.ac];
    for (std::size_t k = 1; k < 64; ++k) {
        const int code = m_in.value(m_place, codes);
        if (code < 0) {
            return false;
        }
        const auto bits = static_cast<unsigned>(code & 15);
        if (bits == 0) {
            if (code == 0) {
                break;
            }
            if (code != 0xF0) {
                return false;
            }
            k += 15;
            continue;
        }
        k += static_cast<std::size_t>(code >> 4);
        if (k > 63 || bits > 10) {
            return false;
        }
        sums[kEdgeShares[k].sum] += static_cast<float>(m_in.extended(m_place, bits)) * part.weights[k];
    }
    const float upper = sums[0] + sums[1];
    const float upperHalf = sums[2] + sums[3];
    const float lower = sums[0] - sums[1];
    const float lowerHalf = sums[2] - sums[3];
    edges = {{upper + upperHalf, upper - upperHalf}, {lower + lowerHalf, lower - lowerHalf}};
    return true;
}

// Goes behind the restart mark that has to stand here.
bool JpegUnits::restart() {
    const std::uint64_t number = m_place.unit / m_head.restartInterval - 1;
    m_in.fill(m_place);
    if (m_place.hasMore() || !m_place.atMarker || m_in.byteAt(m_place, m_place.at) != 0xFF ||
        m_in.byteAt(m_place, m_place.at + 1) != static_cast<int>(0xD0 + number % 8)) {
        return false;
    }
    m_place.goBehind(2);
    m_place.dc = {};
    return true;
}

bool JpegUnits::unit() {
    m_unitEdges.clear();
    for (const Part& part : m_parts) {
        for (unsigned i = 0; i < part.across * part.down; ++i) {
            if (!block(part, m_unitEdges.emplace_back()) || m_place.overrun()) {
                return false;
            }
        }
    }
    return true;
}

void JpegUnits::judge() {
    m_cost = {};
    if (m_above.empty()) {
        return;
    }
    const std::size_t column = static_cast<std::size_t>(m_before.unit % m_head.unitsAcross);
    std::size_t first = 0;
    for (const Part& part : m_parts) {
        const std::size_t third = part.edges / 3;
        for (unsigned i = 0; i < part.across; ++i) {
            for (unsigned half = 0; half < 2; ++half) {
                const std::size_t edge = 2 * (column * part.across + i) + half;
                const int top = sample(m_unitEdges[first + i].top[half]);
                const auto above = [&](std::size_t shift) {
                    return apart(top, m_above[part.firstEdge + (edge + shift) % part.edges]);
                };
                m_cost.own += above(0);
                m_cost.shifted += (above(third) + above(2 * third)) / 2;
                ++m_cost.seams;
            }
        }
        first += std::size_t{part.across} * part.down;
    }
}

void JpegUnits::keepEdges() {
    const std::size_t column = static_cast<std::size_t>(m_before.unit % m_head.unitsAcross);
    std::size_t first = 0;
    for (const Part& part : m_parts) {
        for (unsigned i = 0; i < part.across; ++i) {
            const EdgePair& edges = m_unitEdges[first + part.across * (part.down - 1) + i];
            for (unsigned half = 0; half < 2; ++half) {
                m_current[part.firstEdge + 2 * (column * part.across + i) + half] =
                    sample(edges.bottom[half]);
            }
        }
        first += std::size_t{part.across} * part.down;
    }
    if (column + 1 == m_head.unitsAcross) {
        m_above.resize(m_edgeCount);
        m_above.swap(m_current);
    }
    m_pending = false;
}

JpegUnits::Outcome JpegUnits::next() {
    if (m_pending) {
        keepEdges();
    }
    m_before = m_place;
    if (m_place.unit >= m_head.units()) {
        return Outcome::Complete;
    }
    const bool restarts =
        m_head.restartInterval != 0 && m_place.unit != 0 && m_place.unit % m_head.restartInterval == 0;
    if ((restarts && !restart()) || !unit()) {
        return m_in.isOutOfData() ? Outcome::OutOfData : Outcome::Broken;
    }
    ++m_place.unit;
    judge();
    m_pending = true;
    return Outcome::Unit;
}

std::uint64_t JpegUnits::end() {
    m_in.fill(m_place);
    if (m_place.hasMore()) {
        return 0;
    }
    std::uint64_t at = m_place.at;
    constexpr std::uint64_t kMostFill = 64;
    for (std::uint64_t fill = 0; fill < kMostFill; ++fill, ++at) {
        if (m_in.byteAt(m_place, at) != 0xFF) {
            return 0;
        }
        if (m_in.byteAt(m_place, at + 1) == 0xD9) {
            return at + 2;
        }
    }
    return 0;
}

}  // namespace vantor

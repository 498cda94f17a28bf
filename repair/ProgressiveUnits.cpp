#include "repair/ProgressiveUnits.h"

#include <algorithm>
#include <cstdlib>

namespace vantor {

namespace {

constexpr unsigned kMostScans = 256;
constexpr unsigned kProgressiveMostSegments = 1024;
constexpr std::size_t kMostTables = 1024;
constexpr unsigned kProgressiveMostFillBytes = 64;
constexpr unsigned kMostBits = 10;  // of a coefficient; samples are 8 bits wide
constexpr int kProgressiveMostMean =
    1200;  // a block's first coefficient is eight times its mean; coders overshoot

unsigned be16(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<unsigned>(bytes[at] << 8 | bytes[at + 1]);
}

}  // namespace

bool ProgressiveUnits::begin() {
    m_place = m_before = {};
    m_components.clear();
    m_codes.clear();
    m_notes.clear();
    m_forgotten = 0;
    m_in.reset();
    if (m_in.byteAt(m_place, 0) != 0xFF || m_in.byteAt(m_place, 1) != 0xD8) {
        return false;
    }
    m_place.at = 2;
    for (unsigned segments = 0; segments < kProgressiveMostSegments; ++segments) {
        const Segment read = segment();
        if (read != Segment::Other) {
            return read == Segment::Scan;
        }
    }
    return false;
}

void ProgressiveUnits::resume(const Place& place) {
    while (m_forgotten + m_notes.size() > place.noted && !m_notes.empty()) {
        const Note& note = m_notes.back();
        m_components[note.component].known[static_cast<std::size_t>(note.block)] = note.known;
        m_notes.pop_back();
    }
    m_codes.resize(place.tables);
    m_place = place;
    m_in.reset();
}

void ProgressiveUnits::forgetBefore(const Place& place) {
    const std::size_t count = place.noted - std::min(place.noted, m_forgotten);
    if (count > m_notes.size() / 2) {
        m_notes.erase(m_notes.begin(), m_notes.begin() + static_cast<std::ptrdiff_t>(count));
        m_forgotten += count;
    }
}

ProgressiveUnits::Outcome ProgressiveUnits::next() {
    m_before = m_place;
    bool sound = true;
    bool ends = false;
    if (m_place.inScan && m_place.unit == m_place.scan.units) {
        sound = endScan();
    } else if (m_place.inScan) {
        sound = unit();
    } else {
        const Segment read = segment();
        sound = read != Segment::Broken;
        ends = read == Segment::End;
    }
    if (m_in.isOutOfData()) {
        return Outcome::OutOfData;
    }
    return !sound ? Outcome::Broken : ends ? Outcome::Complete : Outcome::Unit;
}

bool ProgressiveUnits::endScan() {
    m_in.fill(m_place);
    if (m_place.empty != 0 || m_place.hasMore() || !m_place.atMarker) {
        return false;
    }
    m_place.goBehind(0);
    m_place.inScan = false;
    return true;
}

// A mark and what belongs to it.
ProgressiveUnits::Segment ProgressiveUnits::segment() {
    std::uint64_t at = m_place.at;
    for (unsigned fill = 0; fill < kProgressiveMostFillBytes && m_in.byteAt(m_place, at + 1) == 0xFF;
         ++fill) {
        ++at;
    }
    if (m_in.byteAt(m_place, at) != 0xFF) {
        return Segment::Broken;
    }
    const int mark = m_in.byteAt(m_place, at + 1);
    if (mark == 0xD9 && m_place.scans != 0) {
        m_place.at = at + 2;
        return Segment::End;
    }
    const int high = m_in.byteAt(m_place, at + 2);
    const int low = m_in.byteAt(m_place, at + 3);
    const int length = high << 8 | low;
    const bool isOther = mark == 0xFE || (mark >= 0xE0 && mark <= 0xEF);
    const bool isKnown = mark == 0xC4 || mark == 0xDA || mark == 0xDB || mark == 0xDD ||
                         (mark == 0xC2 && m_components.empty());
    if (high < 0 || low < 0 || length < 2 || !(isOther || isKnown)) {
        return Segment::Broken;
    }
    std::vector<std::uint8_t> bytes;
    for (int i = 2; i < length; ++i) {
        const int byte = m_in.byteAt(m_place, at + 2 + static_cast<unsigned>(i));
        if (byte < 0) {
            return Segment::Broken;
        }
        bytes.push_back(static_cast<std::uint8_t>(byte));
    }
    m_place.at = at + 2 + static_cast<unsigned>(length);
    bool sound = true;
    if (mark == 0xC2) {
        sound = frame(bytes);
    } else if (mark == 0xC4) {
        sound = codes(bytes);
    } else if (mark == 0xDB) {
        for (std::size_t i = 0; i + 65 <= bytes.size(); i += bytes[i] >> 4 == 0 ? 65 : 129) {
            m_steps[bytes[i] & 3] = bytes[i] >> 4 == 0 ? bytes[i + 1] : static_cast<int>(be16(bytes, i + 1));
        }
    } else if (mark == 0xDD) {
        sound = bytes.size() == 2;
        m_place.restartInterval = sound ? be16(bytes, 0) : 0;
    } else if (mark == 0xDA) {
        return scan(bytes) ? Segment::Scan : Segment::Broken;
    }
    return sound ? Segment::Other : Segment::Broken;
}

bool ProgressiveUnits::frame(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < 6 || bytes[0] != 8 || bytes[5] == 0 || bytes[5] > 4 ||
        bytes.size() < std::size_t{6} + 3 * bytes[5]) {
        return false;
    }
    const std::uint64_t height = be16(bytes, 1);
    const std::uint64_t width = be16(bytes, 3);
    unsigned across = 1, down = 1;
    for (std::size_t i = 6; i < std::size_t{6} + 3 * bytes[5]; i += 3) {
        Component component;
        component.id = bytes[i];
        component.across = bytes[i + 1] >> 4;
        component.down = bytes[i + 1] & 15;
        component.quantisation = bytes[i + 2] & 3;
        if (component.across - 1 > 3 || component.down - 1 > 3) {
            return false;
        }
        across = std::max(across, component.across);
        down = std::max(down, component.down);
        m_components.push_back(component);
    }
    m_unitsAcross = (width + 8 * across - 1) / (8 * across);
    m_unitsDown = (height + 8 * down - 1) / (8 * down);
    std::uint64_t blocks = 0;
    for (Component& component : m_components) {
        const std::uint64_t wide = (width * component.across + across - 1) / across;
        const std::uint64_t high = (height * component.down + down - 1) / down;
        component.blocksAcross = (wide + 7) / 8;
        component.blocksDown = (high + 7) / 8;
        blocks += component.blocksAcross * component.blocksDown;
    }
    if (width == 0 || height == 0 || blocks > kMostBlocks) {
        return false;
    }
    for (Component& component : m_components) {
        component.known.assign(static_cast<std::size_t>(component.blocksAcross * component.blocksDown), 0);
    }
    return true;
}

bool ProgressiveUnits::codes(std::span<const std::uint8_t> bytes) {
    SpanSource source(bytes);
    ByteView view(source);
    JpegHead head;
    if (!readJpegCodes(view, 0, bytes.size(), head)) {
        return false;
    }
    for (std::size_t i = 0; i < 2 * JpegHead::kTables; ++i) {
        JpegCodes& table = i < JpegHead::kTables ? head.dc[i] : head.ac[i - JpegHead::kTables];
        if (table.known) {
            if (m_codes.size() >= kMostTables) {
                return false;
            }
            m_codes.push_back(table);
            m_place.codes[i] = static_cast<std::uint16_t>(m_codes.size());
        }
    }
    m_place.tables = m_codes.size();
    return true;
}

bool ProgressiveUnits::scan(std::span<const std::uint8_t> bytes) {
    Scan scan;
    const std::size_t count = bytes.empty() ? 0 : bytes[0];
    if (m_components.empty() || count == 0 || count > m_components.size() || bytes.size() != 4 + 2 * count ||
        ++m_place.scans > kMostScans) {
        return false;
    }
    scan.first = bytes[1 + 2 * count];
    scan.last = bytes[2 + 2 * count];
    const unsigned before = bytes[3 + 2 * count] >> 4;
    scan.shift = bytes[3 + 2 * count] & 15;
    scan.refines = before != 0;
    if (scan.last > 63 || scan.first > scan.last || (scan.first == 0) != (scan.last == 0) ||
        (scan.first != 0 && count != 1) || (scan.refines && before != scan.shift + 1) || scan.shift > 13) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const auto component =
            std::find_if(m_components.begin(), m_components.end(),
                         [&](const Component& each) { return each.id == bytes[1 + 2 * i]; });
        if (component == m_components.end()) {
            return false;
        }
        Part& part = scan.parts[scan.count++];
        part.component = static_cast<std::size_t>(component - m_components.begin());
        part.blocks = count == 1 ? 1 : component->across * component->down;
        part.dc = m_place.codes[bytes[2 + 2 * i] >> 4 & 3];
        part.ac = m_place.codes[JpegHead::kTables + (bytes[2 + 2 * i] & 3)];
        const bool hasCodes = scan.first != 0 ? part.ac != 0 : scan.refines || part.dc != 0;
        if (!hasCodes) {
            return false;
        }
        scan.units =
            count == 1 ? component->blocksAcross * component->blocksDown : m_unitsAcross * m_unitsDown;
    }
    m_place.scan = scan;
    m_place.inScan = true;
    m_place.unit = 0;
    m_place.empty = 0;
    m_place.dc = {};
    m_place.goBehind(0);
    return true;
}

bool ProgressiveUnits::restart() {
    const std::uint64_t number = m_place.unit / m_place.restartInterval - 1;
    m_in.fill(m_place);
    if (m_place.empty != 0 || m_place.hasMore() || !m_place.atMarker ||
        m_in.byteAt(m_place, m_place.at) != 0xFF ||
        m_in.byteAt(m_place, m_place.at + 1) != static_cast<int>(0xD0 + number % 8)) {
        return false;
    }
    m_place.goBehind(2);
    m_place.dc = {};
    return true;
}

bool ProgressiveUnits::unit() {
    const std::uint32_t interval = m_place.restartInterval;
    if (interval != 0 && m_place.unit != 0 && m_place.unit % interval == 0 && !restart()) {
        return false;
    }
    const Scan& scan = m_place.scan;
    bool sound = true;
    if (scan.first == 0) {
        for (std::size_t i = 0; i < scan.count; ++i) {
            for (unsigned block = 0; block < scan.parts[i].blocks && sound; ++block) {
                sound = mean(scan.parts[i]);
            }
        }
    } else {
        const std::size_t component = scan.parts[0].component;
        std::uint64_t& known = m_components[component].known[static_cast<std::size_t>(m_place.unit)];
        const std::uint64_t was = known;
        std::uint64_t left = scan.units - m_place.unit;
        if (interval != 0) {
            left = std::min(left, interval - m_place.unit % interval);
        }
        sound = scan.refines ? furtherBits(known, left) : firstBits(known, left);
        if (known != was) {
            m_notes.push_back({m_place.unit, was, component});
            m_place.noted = m_forgotten + m_notes.size();
        }
    }
    ++m_place.unit;
    return sound && !m_place.overrun();
}

// The mean value of a block, or a further bit of it.
bool ProgressiveUnits::mean(const Part& part) {
    if (m_place.scan.refines) {
        m_in.take(m_place, 1);
        return !m_place.overrun();
    }
    const int bits = m_in.value(m_place, m_codes[part.dc - 1]);
    if (bits < 0 || bits > 11) {
        return false;
    }
    int& dc = m_place.dc[part.component];
    dc += m_in.extended(m_place, static_cast<unsigned>(bits));
    const std::int64_t step = std::int64_t{m_steps[m_components[part.component].quantisation]}
                              << m_place.scan.shift;
    return std::abs(dc) <= 1 << 15 && std::abs(dc) * step <= kProgressiveMostMean + step &&
           !m_place.overrun();
}

// So many blocks, by the code of an end, have nothing more in this scan, the one that is looked at among
// them.
bool ProgressiveUnits::isEmptyRun(unsigned run, std::uint64_t blocksLeft) {
    m_place.empty = (std::uint32_t{1} << run) + m_in.take(m_place, run);
    return m_place.empty <= blocksLeft;
}

// A scan that begins coefficients.
bool ProgressiveUnits::firstBits(std::uint64_t& known, std::uint64_t blocksLeft) {
    const Scan& scan = m_place.scan;
    if (m_place.empty == 0) {
        for (unsigned k = scan.first; k <= scan.last; ++k) {
            const int code = m_in.value(m_place, m_codes[scan.parts[0].ac - 1]);
            if (code < 0) {
                return false;
            }
            const auto run = static_cast<unsigned>(code) >> 4;
            const auto bits = static_cast<unsigned>(code) & 15;
            if (bits == 0 && run != 15) {
                if (!isEmptyRun(run, blocksLeft)) {
                    return false;
                }
                break;
            }
            k += run;
            if (k > scan.last || bits + scan.shift > kMostBits) {
                return false;
            }
            m_in.take(m_place, bits);
            known |= bits != 0 ? std::uint64_t{1} << k : 0;
        }
    }
    m_place.empty -= m_place.empty != 0 ? 1 : 0;
    return true;
}

// A scan that gives a further bit of each coefficient known, and begins others.
bool ProgressiveUnits::furtherBits(std::uint64_t& known, std::uint64_t blocksLeft) {
    const Scan& scan = m_place.scan;
    const auto isKnown = [&](unsigned k) { return (known >> k & 1) != 0; };
    unsigned k = scan.first;
    for (; m_place.empty == 0 && k <= scan.last; ++k) {
        const int code = m_in.value(m_place, m_codes[scan.parts[0].ac - 1]);
        if (code < 0 || (code & 15) > 1) {
            return false;
        }
        const bool begins = (code & 15) == 1;
        auto run = static_cast<unsigned>(code) >> 4;
        if (!begins && run != 15) {
            if (!isEmptyRun(run, blocksLeft)) {
                return false;
            }
            break;
        }
        m_in.take(m_place, begins ? 1 : 0);
        for (; k <= scan.last && (isKnown(k) || run != 0); ++k) {
            if (isKnown(k)) {
                m_in.take(m_place, 1);
            } else {
                --run;
            }
        }
        if (k > scan.last && begins) {
            return false;
        }
        known |= begins ? std::uint64_t{1} << k : 0;
    }
    if (m_place.empty != 0) {
        for (; k <= scan.last; ++k) {
            m_in.take(m_place, isKnown(k) ? 1 : 0);
        }
        --m_place.empty;
    }
    return true;
}

}  // namespace vantor

// Scans of progressive JPEG pictures. Source: ITU-T T.81, annex G.
#include "formats/pictures/JpegScan.h"

namespace vantor {

namespace {

// How many blocks have nothing more in this scan, this one among them, by the code of an end.
std::uint32_t blocksWithoutMore(JpegBits& bits, unsigned run) {
    return (1U << run) + (run != 0 ? bits.take(run) : 0);
}

}  // namespace

// A scan that begins coefficients. `empty` counts the blocks that have none in it.
bool JpegScan::firstBits(JpegBits& bits, const Scan& scan, std::uint64_t& known, std::uint32_t& empty) {
    if (empty != 0) {
        --empty;
        return true;
    }
    for (unsigned k = scan.first; k <= scan.last; ++k) {
        const int code = value(bits, *scan.parts[0].ac);
        if (code < 0)
            return false;
        const auto run = static_cast<unsigned>(code) >> 4, size = static_cast<unsigned>(code) & 15;
        if (size == 0 && run != 15) {
            empty = blocksWithoutMore(bits, run) - 1;
            return true;
        }
        k += run;
        if (k > scan.last)
            return false;
        bits.skip(size);
        if (size != 0)
            known |= std::uint64_t{1} << k;
    }
    return true;
}

// A scan that gives a further bit of each coefficient known, and begins others.
bool JpegScan::furtherBits(JpegBits& bits, const Scan& scan, std::uint64_t& known, std::uint32_t& empty) {
    const auto isKnown = [&](unsigned k) { return (known >> k & 1) != 0; };
    unsigned k = scan.first;
    for (; empty == 0 && k <= scan.last; ++k) {
        const int code = value(bits, *scan.parts[0].ac);
        if (code < 0 || (code & 15) > 1)
            return false;
        const bool begins = (code & 15) == 1;
        auto run = static_cast<unsigned>(code) >> 4;
        if (!begins && run != 15) {
            empty = blocksWithoutMore(bits, run);
            break;
        }
        bits.skip(begins ? 1 : 0);
        for (; k <= scan.last && (isKnown(k) || run != 0); ++k) {
            if (isKnown(k))
                bits.skip(1);
            else
                --run;
        }
        if (k > scan.last && begins)
            return false;
        if (begins)
            known |= std::uint64_t{1} << k;
    }
    if (empty != 0) {
        for (; k <= scan.last; ++k)
            bits.skip(isKnown(k) ? 1 : 0);
        --empty;
    }
    return true;
}

// A scan of the coefficients that are the blocks' mean values.
JpegScan::Outcome JpegScan::judgeFirstCoefficients(const Scan& scan, JpegBits& bits) const {
    for (std::uint64_t unit = 0; unit < scan.units; ++unit) {
        if (m_interval != 0 && unit != 0 && unit % m_interval == 0 && !bits.restart())
            return Outcome::Broken;
        for (std::size_t i = 0; i < scan.count; ++i) {
            for (unsigned each = 0; each < scan.parts[i].blocks; ++each) {
                const int size = scan.refines ? 1 : value(bits, *scan.parts[i].dc);
                if (size < 0 || size > 15)
                    return Outcome::Broken;
                bits.skip(static_cast<unsigned>(size));
                if (bits.overrun())
                    return Outcome::Broken;
            }
        }
    }
    return bits.bytesLeft() <= kMostLeft ? Outcome::Sound : Outcome::Broken;
}

JpegScan::Outcome JpegScan::judgeProgressive(const Scan& scan, JpegBits& bits) {
    if (scan.first == 0) {
        for (std::size_t i = 0; i < scan.count && !scan.refines; ++i) {
            if (!scan.parts[i].dc->known)
                return Outcome::NotJudged;
        }
        return scan.last == 0 ? judgeFirstCoefficients(scan, bits) : Outcome::NotJudged;
    }
    Known& known = m_seen[scan.parts[0].component];
    if (scan.count != 1 || scan.last > 63 || scan.first > scan.last || !scan.parts[0].ac->known)
        return Outcome::NotJudged;
    if (known.empty()) {
        if (scan.units > kMostBlocks - m_blocksSeen)
            return Outcome::NotJudged;
        m_blocksSeen += scan.units;
        known.assign(static_cast<std::size_t>(scan.units), 0);
    }
    std::uint32_t empty = 0;
    for (std::uint64_t unit = 0; unit < scan.units; ++unit) {
        if (m_interval != 0 && unit != 0 && unit % m_interval == 0) {
            if (empty != 0 || !bits.restart())
                return Outcome::Broken;
        }
        std::uint64_t& block = known[static_cast<std::size_t>(unit)];
        const bool sound =
            scan.refines ? furtherBits(bits, scan, block, empty) : firstBits(bits, scan, block, empty);
        if (!sound || bits.overrun())
            return Outcome::Broken;
    }
    return empty == 0 && bits.bytesLeft() <= kMostLeft ? Outcome::Sound : Outcome::Broken;
}

}  // namespace vantor

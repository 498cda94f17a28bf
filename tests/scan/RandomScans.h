// Random catalogues, media and faults, dense enough that the odd rules come into play.
#pragma once

#include <random>

#include "tests/support/Records.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {

class RandomScans {
  public:
    explicit RandomScans(std::uint32_t seed) : m_random(seed) {}

    std::uint64_t below(std::uint64_t n) { return m_random() % n; }
    bool oneIn(std::uint64_t n) { return below(n) == 0; }

    // Headers over a small alphabet, so that they contain one another and match often.
    QStringList records(std::size_t count) {
        QStringList array;
        for (std::size_t i = 0; i < count; ++i) {
            QByteArray hex;
            const std::size_t digits = 2 * (1 + below(4)) + (oneIn(6) ? 1 : 0);
            for (std::size_t d = 0; d < digits; ++d) {
                hex += d % 2 == 0 ? "4" : QByteArray::number(static_cast<int>(1 + below(3)));
            }
            if (oneIn(20)) {
                hex = hex.left(static_cast<qsizetype>(below(2)));
            }
            const QByteArray extension(1, static_cast<char>('A' + below(5)));
            array += recordsOf(
                {{extension.constData(), hex.constData(), rule().constData(), limit().constData()}});
            if (oneIn(15)) {
                array.last() = QStringLiteral("65");  // a first byte that is not the header's
            }
        }
        return array;
    }

    ScriptedMedium::Sector sector() {
        ScriptedMedium::Sector bytes{};
        if (oneIn(4)) {
            return bytes;
        }
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(oneIn(9) ? 0x7A : 0x41 + below(3));
        }
        if (oneIn(3)) {
            bytes.fill(0x41);
            bytes[below(bytes.size())] = 0x42;
            bytes[below(bytes.size())] = 0x43;
        }
        if (oneIn(2)) {
            bytes[0] = 0x7A;  // most sectors of a card begin with nothing known
        }
        return bytes;
    }

    ScriptedMedium medium(std::size_t sectors, bool withFaults) {
        ScriptedMedium medium(sectors);
        for (auto& bytes : medium.bytes) {
            bytes = sector();
        }
        for (int faults = withFaults ? static_cast<int>(below(6)) : 0; faults > 0; --faults) {
            if (oneIn(2)) {
                medium.badForEver.insert(below(sectors));
            } else {
                medium.badTimes[below(sectors)] = static_cast<int>(1 + below(3));
            }
        }
        medium.seekAfterFailureFails = withFaults && oneIn(4);
        return medium;
    }

  private:
    QByteArray rule() {
        switch (below(6)) {
            case 0:
            case 1:
                return "1";
            case 2:
                return "nn";
            case 3:
                return QByteArray::number(static_cast<int>(500 + below(16)));
            case 4:
                return oneIn(2) ? "0" : "NN";
            default:
                return QByteArray::number(static_cast<int>(1 + below(8)));
        }
    }

    QByteArray limit() {
        static const char* const kLimits[] = {"512", "513", "1024", "2560", "100000", "-1", "x", "0"};
        return kLimits[below(std::size(kLimits))];
    }

    std::mt19937 m_random;
};

}  // namespace vantor

// Sound whose pitch tells which second of it is heard.
#pragma once

#include <QByteArray>
#include <cmath>
#include <cstdint>

namespace vantor::test {

// A WAVE file of one tone per second: 200 Hz in the first, 300 in the second and so on, the right channel
// silent.
inline QByteArray tones(int length) {
    constexpr int kRate = 32000;
    QByteArray samples;
    for (int i = 0; i < length * kRate; ++i) {
        const double hertz = 200 + 100 * (i / kRate);
        const auto left = static_cast<std::int16_t>(16000 * std::sin(2 * M_PI * hertz * i / kRate));
        samples.append(static_cast<char>(left & 0xff)).append(static_cast<char>(left >> 8)).append(2, '\0');
    }
    const auto number = [](std::uint32_t value) {
        QByteArray bytes;
        for (int shift = 0; shift < 32; shift += 8) {
            bytes.append(static_cast<char>(value >> shift));
        }
        return bytes;
    };
    const auto size = static_cast<std::uint32_t>(samples.size());
    return "RIFF" + number(size + 36) + "WAVEfmt " + number(16) + QByteArray("\1\0\2\0", 4) + number(kRate) +
           number(kRate * 4) + QByteArray("\4\0\x10\0", 4) + "data" + number(size) + samples;
}

}  // namespace vantor::test

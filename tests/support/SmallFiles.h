// Small whole files and media for the saving tests.
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <algorithm>
#include <random>

#include "formats/Crc.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {

inline QByteArray noise(qsizetype bytes, unsigned seed) {
    std::mt19937 random(seed);
    QByteArray text(bytes, '\0');
    std::generate(text.begin(), text.end(), [&] { return static_cast<char>(random() >> 24); });
    return text;
}

template <typename Number>
QByteArray littleEndian(Number number) {
    const Number swapped = qToLittleEndian(number);
    return {reinterpret_cast<const char*>(&swapped), sizeof swapped};
}

// A whole WAV file of so many bytes, an even number.
inline QByteArray wavFile(qsizetype bytes, unsigned seed = 1) {
    const auto n = static_cast<quint32>(bytes);
    return "RIFF" + littleEndian(n - 8) + "WAVEfmt " + littleEndian(quint32{16}) + littleEndian(quint16{1}) +
           littleEndian(quint16{1}) + littleEndian(quint32{8000}) + littleEndian(quint32{16000}) +
           littleEndian(quint16{2}) + littleEndian(quint16{16}) + "data" + littleEndian(n - 44) +
           noise(bytes - 44, seed);
}

// The same of many megabytes, made in a moment.
inline QByteArray longWavFile(qsizetype bytes) {
    constexpr qsizetype kPeriod = 65'521;
    const auto n = static_cast<quint32>(bytes);
    QByteArray file = wavFile(44) + noise(kPeriod, 1).repeated(bytes / kPeriod + 1);
    file.truncate(bytes);
    return file.replace(4, 4, littleEndian(n - 8)).replace(40, 4, littleEndian(n - 44));
}

// A whole grey TIFF picture with a date such as "2026:05:17 14:03:22".
inline QByteArray tiffFile(quint32 width, quint32 height, const QByteArray& date) {
    constexpr quint16 kTags = 8;
    constexpr quint32 kDateAt = 8 + 2 + kTags * 12 + 4;
    constexpr quint32 kPixelsAt = kDateAt + 20;
    const auto tag = [](quint16 id, quint16 type, quint32 count, quint32 value) {
        return littleEndian(id) + littleEndian(type) + littleEndian(count) + littleEndian(value);
    };
    return QByteArray("II*\0", 4) + littleEndian(quint32{8}) + littleEndian(kTags) + tag(256, 4, 1, width) +
           tag(257, 4, 1, height) + tag(258, 3, 1, 8) + tag(259, 3, 1, 1) + tag(262, 3, 1, 1) +
           tag(273, 4, 1, kPixelsAt) + tag(279, 4, 1, width * height) + tag(306, 2, 20, kDateAt) +
           littleEndian(quint32{0}) + date + '\0' + noise(qsizetype{width} * height, 3);
}

// A whole ZIP archive of one member, not packed, which begins at the archive's second sector.
inline QByteArray zipHolding(const QByteArray& member) {
    constexpr quint16 kNameBytes = kSectorBytes - 30;
    const auto sum = crc32(
        0, {reinterpret_cast<const std::uint8_t*>(member.data()), static_cast<std::size_t>(member.size())});
    const QByteArray name(kNameBytes, 'n');
    const QByteArray sizes = littleEndian(quint32{sum}) + littleEndian(static_cast<quint32>(member.size())) +
                             littleEndian(static_cast<quint32>(member.size())) + littleEndian(kNameBytes);
    const QByteArray central = "PK\1\2" + littleEndian(quint16{20}) + littleEndian(quint16{20}) +
                               QByteArray(8, '\0') + sizes + QByteArray(16, '\0') + name;
    return "PK\3\4" + littleEndian(quint16{20}) + QByteArray(8, '\0') + sizes + littleEndian(quint16{0}) +
           name + member + central + "PK\5\6" + littleEndian(quint32{0}) + littleEndian(quint16{1}) +
           littleEndian(quint16{1}) + littleEndian(static_cast<quint32>(central.size())) +
           littleEndian(static_cast<quint32>(kSectorBytes + member.size())) + littleEndian(quint16{0});
}

// A medium with a file at a sector.
inline ScriptedMedium emptyMediumWith(const QByteArray& file, std::size_t atSector, std::size_t sectors) {
    ScriptedMedium medium(sectors);
    std::memcpy(medium.bytes.at(atSector).data(), file.data(), static_cast<std::size_t>(file.size()));
    return medium;
}

// The same in noise.
inline ScriptedMedium mediumWith(const QByteArray& file, std::size_t atSector, std::size_t sectors) {
    ScriptedMedium medium(sectors);
    const QByteArray foreign = noise(static_cast<qsizetype>(sectors * kSectorBytes), 99);
    std::memcpy(medium.bytes.data(), foreign.data(), static_cast<std::size_t>(foreign.size()));
    std::memcpy(medium.bytes.at(atSector).data(), file.data(), static_cast<std::size_t>(file.size()));
    return medium;
}

}  // namespace vantor

// Small AVI movies made for the tests of repairing.
#pragma once

#include <QByteArray>
#include <QtEndian>
#include <random>
#include <utility>
#include <vector>

namespace vantor::test {

inline QByteArray little(std::uint32_t value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

inline QByteArray aviChunk(const char* name, const QByteArray& body) {
    return name + little(static_cast<std::uint32_t>(body.size())) + body + QByteArray(body.size() % 2, '\0');
}

// A stream of 25 units a second: pictures, or sound of 1 byte a unit.
inline QByteArray aviStream(bool sound) {
    const QByteArray head = QByteArray(sound ? "auds" : "vids") + QByteArray(16, '\0') + little(1) +
                            little(sound ? 10000 : 25) + QByteArray(16, '\0') + little(sound ? 1 : 0) +
                            QByteArray(8, '\0');
    const QByteArray format =
        sound ? QByteArray(8, '\0') + little(10000) + QByteArray(4, '\0') : QByteArray(40, '\0');
    return aviChunk("LIST", "strl" + aviChunk("strh", head) + aviChunk("strf", format));
}

inline QByteArray headerOf(std::uint32_t pictures, std::uint32_t allPictures) {
    const QByteArray main = QByteArray(16, '\0') + little(pictures) + QByteArray(36, '\0');
    const QByteArray extended = "odml" + aviChunk("dmlh", little(allPictures));
    return aviChunk("LIST", "hdrl" + aviChunk("avih", main) + aviStream(false) + aviStream(true) +
                                aviChunk("LIST", extended));
}

using Chunks = std::vector<std::pair<const char*, QByteArray>>;

// `allPictures`: of which this is the first part.
inline QByteArray makeAvi(const Chunks& chunks, std::uint32_t allPictures = 0) {
    QByteArray data = "movi";
    QByteArray index;
    std::uint32_t pictures = 0;
    for (const auto& [name, body] : chunks) {
        index += name + little(16) + little(static_cast<std::uint32_t>(data.size())) +
                 little(static_cast<std::uint32_t>(body.size()));
        data += aviChunk(name, body);
        pictures += name[1] == '0' ? 1 : 0;
    }
    return aviChunk("RIFF", "AVI " + headerOf(pictures, std::max(pictures, allPictures)) +
                                aviChunk("LIST", data) + aviChunk("idx1", index));
}

// Pictures that nothing could decode, and sound.
inline Chunks noiseChunks(unsigned seed, int pictures) {
    std::mt19937 random(seed);
    Chunks chunks;
    for (int i = 0; i < pictures; ++i) {
        for (const char* const name : {"00dc", "01wb"}) {
            // Something begins in every cluster.
            QByteArray body(name[1] == '0' ? 2000 + static_cast<int>(random() % 1500) : 400, '\0');
            for (char& byte : body) {
                byte = static_cast<char>(random() % 255);
            }
            chunks.emplace_back(name, body);
        }
    }
    return chunks;
}

}  // namespace vantor::test

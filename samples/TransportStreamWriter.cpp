// MPEG-2 transport streams (ISO/IEC 13818-1) of one H.264 track.
#include <algorithm>

#include "samples/Bytes.h"
#include "samples/Checksums.h"
#include "samples/MovieWriters.h"

namespace vantor::samples {

namespace {

constexpr int kPacket = 188;
constexpr int kHeader = 4;
constexpr int kSelectionPid = 0x1F;
constexpr int kProgramPid = 0x100;
constexpr int kVideoPid = 0x1011;
constexpr std::int64_t kTicks = 90000;  // a second

class TransportStream {
  public:
    explicit TransportStream(PacketSize size) : m_size(size) {}

    void putTable(int pid, int tableId, int id, const QByteArray& content, int& counter) {
        Bytes section;
        section.u8(static_cast<std::uint64_t>(tableId))
            .be16(0xB000 | static_cast<std::uint64_t>(content.size() + 9));
        section.be16(static_cast<std::uint64_t>(id)).u8(0xC1).u8(0).u8(0).raw(content);
        section.be32(plainCrc(section.bytes(), 32, 0x04C11DB7, 0xFFFFFFFF));
        const QByteArray payload = QByteArray(1, '\0') + section.bytes();
        putPacket(pid, true, {}, payload.leftJustified(kPacket - kHeader, '\xFF'), counter);
    }

    // One access unit as a packetised elementary stream, with the programme clock in its first packet.
    void putPes(const QByteArray& data, std::int64_t time, int& counter) {
        Bytes pes;
        pes.be24(1).u8(0xE0).be16(0).u8(0x84).u8(0x80).u8(5);
        pes.u8(static_cast<std::uint64_t>(0x21 | (time >> 29 & 0x0E)));
        pes.be16(static_cast<std::uint64_t>(time >> 14 & 0xFFFE) | 1)
            .be16(static_cast<std::uint64_t>(time << 1 & 0xFFFE) | 1);
        const QByteArray all = pes.raw(data).bytes();
        const std::int64_t clock = time - kTicks / 5;
        Bytes field;
        field.u8(0x10)
            .be32(static_cast<std::uint64_t>(clock >> 1))
            .u8(static_cast<std::uint64_t>((clock & 1) << 7 | 0x7E))
            .u8(0);
        for (qsizetype at = 0; at < all.size();) {
            const QByteArray adaptation = at == 0 ? field.bytes() : QByteArray();
            const qsizetype room = kPacket - kHeader - (adaptation.isEmpty() ? 0 : adaptation.size() + 1);
            const QByteArray part = all.mid(at, room);
            putPacket(kVideoPid, at == 0, adaptation, part, counter);
            at += part.size();
        }
    }

    const QByteArray& bytes() const { return m_out.bytes(); }

  private:
    // A short payload is preceded by stuffing in the adaptation field.
    void putPacket(int pid, bool start, QByteArray adaptation, const QByteArray& payload, int& counter) {
        const qsizetype room = kPacket - kHeader - payload.size();
        const bool adapted = room > 0;
        if (m_size == PacketSize::Timed192)
            m_out.be32(static_cast<std::uint64_t>(m_packets++) * 1000 & 0x3FFFFFFF);
        m_out.u8(0x47).be16(static_cast<std::uint64_t>((start ? 0x4000 : 0) | pid));
        m_out.u8(static_cast<std::uint64_t>((adapted ? 0x30 : 0x10) | (counter++ & 15)));
        if (adapted) {
            if (adaptation.isEmpty() && room > 1)
                adaptation = QByteArray(1, '\0');
            m_out.u8(static_cast<std::uint64_t>(room - 1)).raw(adaptation.leftJustified(room - 1, '\xFF'));
        }
        m_out.raw(payload);
    }

    PacketSize m_size;
    Bytes m_out;
    std::int64_t m_packets = 0;
};

}  // namespace

QByteArray transportStreamFile(const H264Video& video, int framesPerSecond, PacketSize size) {
    constexpr int kH264 = 0x1B;
    TransportStream stream(size);
    int tableCounter = 0;
    int programCounter = 0;
    int videoCounter = 0;
    // Camcorders name the place of the selection table before their one program.
    const QByteArray programs =
        Bytes().be16(0).be16(0xE000 | kSelectionPid).be16(1).be16(0xE000 | kProgramPid).bytes();
    const QByteArray streams =
        Bytes().be16(0xE000 | kVideoPid).be16(0xF000).u8(kH264).be16(0xE000 | kVideoPid).be16(0xF000).bytes();
    std::int64_t time = kTicks;
    for (std::size_t i = 0; i < video.frames.size(); ++i) {
        if (i % 5 == 0) {
            stream.putTable(0, 0, 1, programs, tableCounter);
            stream.putTable(kProgramPid, 2, 1, streams, programCounter);
        }
        QByteArray unit = kStartCode + QByteArray("\x09\xF0", 2);  // an access unit begins
        if (i == 0)
            unit += kStartCode + video.sequenceParameters + kStartCode + video.pictureParameters;
        stream.putPes(unit + kStartCode + video.frames[i], time, videoCounter);
        time += kTicks / framesPerSecond;
    }
    return stream.bytes();
}

}  // namespace vantor::samples

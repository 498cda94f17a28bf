// Packed files and data of programs that are little more than a header and their content.
#include "samples/DataFiles.h"

#include "samples/Bytes.h"
#include "samples/Checksums.h"
#include "samples/Documents.h"

namespace vantor::samples {

namespace {

std::uint64_t sizeOf(const QByteArray& bytes) {
    return static_cast<std::uint64_t>(bytes.size());
}

// xxHash32 with seed 0 of fewer than 16 bytes, as the LZ4 frame asks for its descriptor.
std::uint32_t shortXxh32(const QByteArray& bytes) {
    constexpr std::uint32_t kPrime1 = 2654435761u;
    constexpr std::uint32_t kPrime2 = 2246822519u;
    constexpr std::uint32_t kPrime3 = 3266489917u;
    constexpr std::uint32_t kPrime5 = 374761393u;
    std::uint32_t hash = kPrime5 + static_cast<std::uint32_t>(bytes.size());
    for (const char c : bytes) {  // never four bytes or more here
        hash += static_cast<std::uint8_t>(c) * kPrime5;
        hash = (hash << 11 | hash >> 21) * kPrime1;
    }
    hash = (hash ^ hash >> 15) * kPrime2;
    hash = (hash ^ hash >> 13) * kPrime3;
    return hash ^ hash >> 16;
}

QByteArray lhaHeader(const ArchiveMember& member) {
    Bytes out;
    out.text("-lh0-").le32(sizeOf(member.bytes)).le32(sizeOf(member.bytes));
    out.le16(10 << 11).le16((2024 - 1980) << 9 | 6 << 5 | 1).u8(0x20).u8(0);
    out.u8(sizeOf(member.name)).raw(member.name);
    // A CRC-16 of the mirrored kind: the bits of each byte and of the sum turned round.
    std::uint32_t crc = 0;
    for (const char c : member.bytes) {
        crc ^= static_cast<std::uint8_t>(c);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? crc >> 1 ^ 0xA001 : crc >> 1;
    }
    const QByteArray body = out.le16(crc).bytes();
    int sum = 0;
    for (const char c : body)
        sum += static_cast<std::uint8_t>(c);
    return Bytes().u8(sizeOf(body)).u8(static_cast<std::uint64_t>(sum)).raw(body).bytes();
}

}  // namespace

QByteArray lz4File(const QByteArray& bytes) {
    constexpr std::uint32_t kStored = 0x80000000;
    const QByteArray descriptor = Bytes().u8(0x60).u8(0x40).bytes();  // version 1, blocks of 64 KiB, no sums
    Bytes out;
    out.le32(0x184D2204).raw(descriptor).u8(shortXxh32(descriptor) >> 8);
    for (qsizetype at = 0; at < bytes.size(); at += 65536) {
        const QByteArray part = bytes.mid(at, 65536);
        out.le32(kStored | sizeOf(part)).raw(part);
    }
    return out.le32(0).bytes();
}

QByteArray zstdFile(const QByteArray& bytes) {
    constexpr int kOneSegmentFourByteSize = 0xA0;
    constexpr qsizetype kBlock = 100000;
    Bytes out;
    out.le32(0xFD2FB528).u8(kOneSegmentFourByteSize).le32(sizeOf(bytes));
    for (qsizetype at = 0; at < bytes.size(); at += kBlock) {
        const QByteArray part = bytes.mid(at, kBlock);
        const std::uint64_t header = sizeOf(part) << 3 | (at + kBlock >= bytes.size() ? 1 : 0);
        out.u8(header).le16(header >> 8).raw(part);
    }
    return out.bytes();
}

QByteArray lhaFile(const std::vector<ArchiveMember>& members) {
    Bytes out;
    for (const ArchiveMember& member : members)
        out.raw(lhaHeader(member)).raw(member.bytes);
    return out.u8(0).bytes();
}

QByteArray debFile(const std::vector<ArchiveMember>& members) {
    const QByteArray control =
        "Package: sample\nVersion: 1\nArchitecture: all\nMaintainer: A Traveller <traveller@example.org>\n"
        "Description: a sample\n";
    return arFile({{"debian-binary", "2.0\n"},
                   {"control.tar", tarFile({{"./control", control}})},
                   {"data.tar", tarFile(members)}});
}

QByteArray warcFile() {
    const QByteArray page = htmlFile();
    return "WARC/1.0\r\nWARC-Type: resource\r\nWARC-Record-ID: "
           "<urn:uuid:00000000-0000-0000-0000-000000000001>\r\nWARC-Date: 2024-06-01T10:00:00Z\r\n"
           "Content-Type: text/html\r\nContent-Length: " +
           QByteArray::number(page.size()) + "\r\n\r\n" + page + "\r\n\r\n";
}

QByteArray torrentFile() {
    const QByteArray pieces(20, 'x');
    return "d8:announce30:http://example.org:80/announce4:infod6:lengthi1024e4:name9:notes.txt12:piece "
           "lengthi16384e6:pieces20:" +
           pieces + "ee";
}

QByteArray pcapFile() {
    constexpr int kEthernet = 1;
    Bytes out;
    out.le32(0xA1B2C3D4).le16(2).le16(4).le32(0).le32(0).le32(65535).le32(kEthernet);
    for (std::uint64_t i = 0; i < 20; ++i)
        out.le32(1717236000 + i).le32(0).le32(60).le32(60).zeros(12).be16(0x0800).zeros(46);
    return out.bytes();
}

QByteArray npyFile() {
    const QByteArray facts = "{'descr': '<i4', 'fortran_order': False, 'shape': (256,), }";
    constexpr qsizetype kHeader = 118;  // with the ten bytes before, a multiple of 64
    Bytes out;
    out.text("\x93NUMPY").u8(1).u8(0).le16(kHeader).raw(facts.leftJustified(kHeader - 1)).text("\n");
    for (std::uint64_t i = 0; i < 256; ++i)
        out.le32(i * i);
    return out.bytes();
}

QByteArray wasmFile() {
    // One function without parameters that gives 42, under the name "answer".
    return QByteArray::fromHex("0061736D01000000") + QByteArray::fromHex("010501600001 7F") +
           QByteArray::fromHex("03020100") + QByteArray::fromHex("070A0106616E73776572 0000") +
           QByteArray::fromHex("0A06010400412A0B");
}

QByteArray shapeFile() {
    constexpr std::uint64_t kPoint = 1;
    constexpr std::uint64_t kCount = 8;
    constexpr std::uint64_t kRecordWords = 14;  // with its header, in words of 16 bits
    const auto wholeDouble = [](std::uint64_t power) { return (1023 + power) << 52; };  // 2 to the power
    Bytes out;
    out.be32(9994).zeros(20).be32(50 + kCount * kRecordWords).le32(1000).le32(kPoint);
    out.le64(wholeDouble(0))
        .le64(wholeDouble(0))
        .le64(wholeDouble(kCount - 1))
        .le64(wholeDouble(1))
        .zeros(32);
    for (std::uint64_t i = 0; i < kCount; ++i)
        out.be32(i + 1).be32(kRecordWords - 4).le32(kPoint).le64(wholeDouble(i)).le64(wholeDouble(i % 2));
    return out.bytes();
}

}  // namespace vantor::samples

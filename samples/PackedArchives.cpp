// XZ, 7z and cabinet files whose content is stored as it is.
#include "samples/Archives.h"
#include "samples/Bytes.h"
#include "samples/CardTime.h"
#include "samples/Checksums.h"

namespace vantor::samples {

namespace {

QByteArray withCrc(const QByteArray& bytes) {
    return bytes + Bytes().le32(crc32(bytes)).bytes();
}

QByteArray multibyte(std::uint64_t value) {  // the .xz format's numbers, seven bits a byte
    Bytes out;
    for (; value > 127; value >>= 7)
        out.u8(0x80 | (value & 127));
    return out.u8(value).bytes();
}

std::uint64_t sizeOf(const QByteArray& bytes) {
    return static_cast<std::uint64_t>(bytes.size());
}

// The 7z format's numbers: the leading ones of the first byte count the bytes that follow.
QByteArray sevenZipNumber(std::uint64_t value) {
    if (value < 0x80)
        return Bytes().u8(value).bytes();
    if (value < 0x4000)
        return Bytes().u8(0x80 | value >> 8).u8(value & 0xFF).bytes();
    return Bytes().u8(0xF0).le32(value).bytes();
}

// MS-CAB's own checksum: the exclusive or of little-endian words, the rest in reverse.
std::uint32_t cabSum(const QByteArray& bytes, std::uint32_t start) {
    std::uint32_t sum = start;
    const auto at = [&](qsizetype i) {
        return static_cast<std::uint32_t>(static_cast<std::uint8_t>(bytes[i]));
    };
    qsizetype i = 0;
    for (; i + 4 <= bytes.size(); i += 4)
        sum ^= at(i) | at(i + 1) << 8 | at(i + 2) << 16 | at(i + 3) << 24;
    std::uint32_t rest = 0;
    for (; i < bytes.size(); ++i)
        rest = rest << 8 | at(i);
    return sum ^ rest;
}

}  // namespace

QByteArray xzFile(const QByteArray& bytes) {
    constexpr qsizetype kChunk = 65536;
    constexpr int kCrc32Check = 1;
    const QByteArray flags = Bytes().u8(0).u8(kCrc32Check).bytes();
    Bytes data;
    for (qsizetype at = 0; at < bytes.size(); at += kChunk) {
        const QByteArray part = bytes.mid(at, kChunk);
        data.u8(at == 0 ? 1 : 2).be16(sizeOf(part) - 1).raw(part);
    }
    data.u8(0);
    // One filter, LZMA2 with the smallest dictionary.
    const QByteArray header = withCrc(Bytes().u8(2).u8(0).u8(0x21).u8(1).u8(0).zeros(3).bytes());
    const std::uint64_t unpadded = sizeOf(header) + sizeOf(data.bytes()) + 4;
    const QByteArray index = withCrc(
        Bytes().u8(0).u8(1).raw(multibyte(unpadded)).raw(multibyte(sizeOf(bytes))).alignTo(4).bytes());
    const QByteArray footer = Bytes().le32(sizeOf(index) / 4 - 1).raw(flags).bytes();
    Bytes out;
    out.u8(0xFD)
        .text("7zXZ")
        .u8(0)
        .raw(flags)
        .le32(crc32(flags))
        .raw(header)
        .raw(data.bytes())
        .alignTo(4)
        .le32(crc32(bytes))
        .raw(index);
    return out.le32(crc32(footer)).raw(footer).text("YZ").bytes();
}

QByteArray sevenZipFile(const std::vector<ArchiveMember>& members) {
    QByteArray data;
    Bytes sizes;
    Bytes sums;
    Bytes names;
    for (std::size_t i = 0; i < members.size(); ++i) {
        data += members[i].bytes;
        if (i + 1 < members.size())
            sizes.raw(sevenZipNumber(sizeOf(members[i].bytes)));
        sums.le32(crc32(members[i].bytes));
        for (const char c : members[i].name)
            names.le16(static_cast<std::uint8_t>(c));
        names.le16(0);
    }
    const QByteArray count = sevenZipNumber(members.size());
    Bytes header;
    header.u8(1).u8(4);                                                      // header, main streams
    header.u8(6).u8(0).u8(1).u8(9).raw(sevenZipNumber(sizeOf(data))).u8(0);  // one packed stream
    header.u8(7)
        .u8(11)
        .u8(1)
        .u8(0)
        .u8(1)
        .u8(1)
        .u8(0)
        .u8(12)
        .raw(sevenZipNumber(sizeOf(data)))
        .u8(0);  // one folder, copied
    header.u8(8).u8(13).raw(count).u8(9).raw(sizes.bytes()).u8(10).u8(1).raw(sums.bytes()).u8(0).u8(0);
    header.u8(5)
        .raw(count)
        .u8(17)
        .raw(sevenZipNumber(sizeOf(names.bytes()) + 1))
        .u8(0)
        .raw(names.bytes())
        .u8(0)
        .u8(0);
    const QByteArray start =
        Bytes().le64(sizeOf(data)).le64(sizeOf(header.bytes())).le32(crc32(header.bytes())).bytes();
    return Bytes()
        .text("7z")
        .u8(0xBC)
        .u8(0xAF)
        .u8(0x27)
        .u8(0x1C)
        .u8(0)
        .u8(4)
        .le32(crc32(start))
        .raw(start)
        .raw(data)
        .raw(header.bytes())
        .bytes();
}

QByteArray cabFile(const std::vector<ArchiveMember>& members) {
    constexpr qsizetype kBlock = 32768;
    Bytes files;
    QByteArray content;
    for (const ArchiveMember& member : members) {
        files.le32(sizeOf(member.bytes))
            .le32(sizeOf(content))
            .le16(0)
            .le16(kDosDate)
            .le16(kDosTime)
            .le16(0x20)
            .raw(member.name)
            .u8(0);
        content += member.bytes;
    }
    Bytes blocks;
    std::uint64_t blockCount = 0;
    for (qsizetype at = 0; at < content.size(); at += kBlock, ++blockCount) {
        const QByteArray part = content.mid(at, kBlock);
        const QByteArray sizes = Bytes().le16(sizeOf(part)).le16(sizeOf(part)).bytes();
        blocks.le32(cabSum(sizes, cabSum(part, 0))).raw(sizes).raw(part);
    }
    constexpr std::uint64_t kFilesAt = 36 + 8;
    const std::uint64_t blocksAt = kFilesAt + sizeOf(files.bytes());
    Bytes out;
    out.text("MSCF")
        .le32(0)
        .le32(blocksAt + sizeOf(blocks.bytes()))
        .le32(0)
        .le32(kFilesAt)
        .le32(0)
        .u8(3)
        .u8(1)
        .le16(1)
        .le16(members.size())
        .le16(0)
        .le16(0)
        .le16(0);
    return out.le32(blocksAt).le16(blockCount).le16(0).raw(files.bytes()).raw(blocks.bytes()).bytes();
}

}  // namespace vantor::samples

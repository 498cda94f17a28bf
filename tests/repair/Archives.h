// Small archives made for the tests of putting pieces together.
#pragma once

#include <zlib.h>

#include <QByteArray>
#include <cstdint>
#include <random>
#include <vector>

namespace vantor::test {

struct MemberSpec {
    qsizetype bytes = 0;
    bool packed = true;
    bool sizesFollow = false;
    std::uint16_t method = 0xFFFF;  // told in place of the real one
};

inline QByteArray little(std::uint64_t value, int bytes) {
    QByteArray out;
    for (int i = 0; i < bytes; ++i) {
        out += static_cast<char>(i < 8 ? value >> 8 * i : 0);
    }
    return out;
}

inline QByteArray deflated(const QByteArray& content) {
    z_stream stream{};
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    QByteArray out(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(content.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.constData()));
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return out;
}

inline QByteArray makeArchive(unsigned seed, const std::vector<MemberSpec>& specs) {
    std::mt19937 random(seed);
    QByteArray file;
    QByteArray directory;
    for (std::size_t i = 0; i < specs.size(); ++i) {
        QByteArray content(specs[i].bytes, '\0');
        for (char& byte : content) {
            byte = static_cast<char>(random() % 64);
        }
        const QByteArray name = "part" + QByteArray::number(static_cast<int>(i)) + ".xml";
        const auto sum = ::crc32(0, reinterpret_cast<const Bytef*>(content.constData()),
                                 static_cast<uInt>(content.size()));
        const QByteArray stored = specs[i].packed ? deflated(content) : content;
        const std::uint16_t method = specs[i].method != 0xFFFF ? specs[i].method : specs[i].packed ? 8 : 0;
        const QByteArray sums = little(sum, 4) + little(static_cast<std::uint64_t>(stored.size()), 4) +
                                little(static_cast<std::uint64_t>(content.size()), 4);
        const QByteArray shared = little(20, 2) + little(specs[i].sizesFollow ? 8 : 0, 2) +
                                  little(method, 2) + little(0x5A210000, 4);
        const QByteArray lengths = little(static_cast<std::uint64_t>(name.size()), 2) + little(0, 2);
        directory += "PK\1\2" + little(20, 2) + shared + sums + lengths + little(0, 10) +
                     little(static_cast<std::uint64_t>(file.size()), 4) + name;
        file += "PK\3\4" + shared + (specs[i].sizesFollow ? QByteArray(12, '\0') : sums) + lengths + name +
                stored;
        if (specs[i].sizesFollow) {
            file += "PK\7\10" + sums;
        }
    }
    const auto at = static_cast<std::uint64_t>(file.size());
    const std::uint64_t count = specs.size();
    return file + directory + "PK\5\6" + little(0, 4) + little(count, 2) + little(count, 2) +
           little(static_cast<std::uint64_t>(directory.size()), 4) + little(at, 4) + little(0, 2);
}

inline const std::vector<MemberSpec> kDocument = {
    {2000}, {90'000}, {30'000, false}, {500}, {60'000, true, true}, {4000}};

}  // namespace vantor::test

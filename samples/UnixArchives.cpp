// The archives of Unix: tar, ar and cpio.
#include "samples/Archives.h"
#include "samples/Bytes.h"
#include "samples/CardTime.h"

namespace vantor::samples {

namespace {

QByteArray octal(std::int64_t value, int digits) {
    return QByteArray::number(qint64{value}, 8).rightJustified(digits, '0');
}
QByteArray hexadecimal(std::int64_t value) {
    return QByteArray::number(qint64{value}, 16).rightJustified(8, '0').toUpper();
}

QByteArray tarHeader(const ArchiveMember& member) {
    Bytes out;
    out.field(member.name, 100)
        .field(octal(0644, 7), 8)
        .field(octal(0, 7), 8)
        .field(octal(0, 7), 8)
        .field(octal(member.bytes.size(), 11), 12);
    out.field(octal(kUnixTime, 11), 12)
        .field("        ", 8)
        .text("0")
        .zeros(100)
        .text("ustar")
        .u8(0)
        .text("00")
        .field("vantor", 32)
        .field("vantor", 32);
    QByteArray header = out.zeros(512 - out.size()).bytes();
    int sum = 0;
    for (const char c : header)
        sum += static_cast<std::uint8_t>(c);
    return header.replace(148, 8, octal(sum, 6) + QByteArray("\0 ", 2));
}

QByteArray cpioEntry(const QByteArray& name, const QByteArray& bytes, int number, int mode) {
    Bytes out;
    out.text("070701");
    for (const std::int64_t field :
         {std::int64_t{number}, std::int64_t{mode}, std::int64_t{0}, std::int64_t{0}, std::int64_t{1},
          mode == 0 ? std::int64_t{0} : kUnixTime, std::int64_t{bytes.size()}, std::int64_t{0},
          std::int64_t{0}, std::int64_t{0}, std::int64_t{0}, std::int64_t{name.size()} + 1, std::int64_t{0}})
        out.raw(hexadecimal(field));
    return out.raw(name).u8(0).alignTo(4).raw(bytes).alignTo(4).bytes();
}

}  // namespace

QByteArray tarFile(const std::vector<ArchiveMember>& members) {
    Bytes out;
    for (const ArchiveMember& member : members)
        out.raw(tarHeader(member)).raw(member.bytes).alignTo(512);
    return out.zeros(1024).alignTo(10240).bytes();
}

QByteArray arFile(const std::vector<ArchiveMember>& members) {
    Bytes out;
    out.text("!<arch>\n");
    for (const ArchiveMember& member : members) {
        out.field(member.name + '/', 16, ' ')
            .field(QByteArray::number(qint64{kUnixTime}), 12, ' ')
            .field("0", 6, ' ')
            .field("0", 6, ' ')
            .field("100644", 8, ' ');
        out.field(QByteArray::number(member.bytes.size()), 10, ' ').text("`\n").raw(member.bytes);
        if (member.bytes.size() % 2 != 0)
            out.text("\n");
    }
    return out.bytes();
}

QByteArray cpioFile(const std::vector<ArchiveMember>& members) {
    Bytes out;
    int number = 1;
    for (const ArchiveMember& member : members)
        out.raw(cpioEntry(member.name, member.bytes, number++, 0100644));
    return out.raw(cpioEntry("TRAILER!!!", {}, 0, 0)).alignTo(512).bytes();
}

}  // namespace vantor::samples

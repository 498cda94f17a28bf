// Archives of a few small members, all made on 1 June 2024, ten o'clock.
#include <archive.h>
#include <archive_entry.h>
#include <zlib.h>

#include <memory>
#include <stdexcept>

#include "samples/Bytes.h"
#include "samples/Documents.h"

namespace vantor::samples {

namespace {

constexpr int kDosDate = (2024 - 1980) << 9 | 6 << 5 | 1;
constexpr int kDosTime = 10 << 11;
constexpr qint64 kUnixTime = 1717236000;

void check(int result, archive* file) {
    if (result != ARCHIVE_OK)
        throw std::runtime_error(archive_error_string(file));
}

}  // namespace

QByteArray archived(const std::vector<Member>& members, const char* format, const char* filter) {
    QByteArray out(1 << 20, '\0');
    size_t used = 0;
    const std::unique_ptr<archive, decltype(&archive_write_free)> file(archive_write_new(),
                                                                       archive_write_free);
    check(archive_write_set_format_by_name(file.get(), format), file.get());
    if (filter != nullptr)
        check(archive_write_add_filter_by_name(file.get(), filter), file.get());
    if (qstrcmp(filter, "gzip") == 0)
        check(archive_write_set_options(file.get(), "gzip:!timestamp"), file.get());
    check(archive_write_open_memory(file.get(), out.data(), size_t(out.size()), &used), file.get());
    for (const Member& member : members) {
        const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(),
                                                                                  archive_entry_free);
        archive_entry_set_pathname(entry.get(), member.name.constData());
        archive_entry_set_size(entry.get(), member.bytes.size());
        archive_entry_set_filetype(entry.get(), AE_IFREG);
        archive_entry_set_perm(entry.get(), 0644);
        archive_entry_set_mtime(entry.get(), kUnixTime, 0);
        check(archive_write_header(file.get(), entry.get()), file.get());
        if (archive_write_data(file.get(), member.bytes.constData(), size_t(member.bytes.size())) < 0)
            throw std::runtime_error(archive_error_string(file.get()));
    }
    check(archive_write_close(file.get()), file.get());
    return out.left(qsizetype(used));
}

QByteArray zipFile(const std::vector<Member>& members) {
    constexpr int kVersion = 20;
    constexpr int kDeflated = 8;
    Bytes out;
    Bytes directory;
    for (const Member& member : members) {
        const bool stored = member.name == "mimetype" || member.name.endsWith(".gpx");
        // Without the length that Qt puts before it, and the header and sum of zlib.
        const QByteArray data = stored ? member.bytes : qCompress(member.bytes, 9).mid(4 + 2).chopped(4);
        const auto sum =
            crc32(0, reinterpret_cast<const Bytef*>(member.bytes.constData()), uInt(member.bytes.size()));
        const qsizetype at = out.size();
        const Bytes common = Bytes()
                                 .le16(kVersion)
                                 .le16(0)
                                 .le16(stored ? 0 : kDeflated)
                                 .le16(kDosTime)
                                 .le16(kDosDate)
                                 .le32(qint64(sum))
                                 .le32(data.size())
                                 .le32(member.bytes.size())
                                 .le16(member.name.size())
                                 .le16(0);
        out.raw("PK\3\4").raw(common).raw(member.name).raw(data);
        directory.raw("PK\1\2").le16(kVersion).raw(common).zeros(10).le32(at).raw(member.name);
    }
    const qsizetype directoryAt = out.size();
    out.raw(directory).raw("PK\5\6").zeros(4).le16(qint64(members.size())).le16(qint64(members.size()));
    return out.le32(directory.size()).le32(directoryAt).le16(0);
}

QByteArray cabFile(const std::vector<Member>& members) {
    Bytes files;
    QByteArray content;  // fits one block
    for (const Member& member : members) {
        files.le32(member.bytes.size()).le32(content.size()).le16(0).le16(kDosDate).le16(kDosTime).le16(0x20);
        files.raw(member.name).u8(0);
        content += member.bytes;
    }
    constexpr int kFilesAt = 36 + 8;
    const qsizetype blockAt = kFilesAt + files.size();
    Bytes out;
    out.raw("MSCF").le32(0).le32(blockAt + 8 + content.size()).le32(0).le32(kFilesAt).le32(0).u8(3).u8(1);
    out.le16(1).le16(qint64(members.size())).zeros(6).le32(blockAt).le16(1).le16(0).raw(files);
    return out.le32(0).le16(content.size()).le16(content.size()).raw(content);  // 0: without a sum
}

QByteArray lhaFile(const std::vector<Member>& members) {
    Bytes out;
    for (const Member& member : members) {
        // A CRC-16 of the mirrored kind: the bits of each byte and of the sum turned round.
        unsigned crc = 0;
        for (const char c : member.bytes) {
            crc ^= uchar(c);
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc & 1) != 0 ? crc >> 1 ^ 0xA001 : crc >> 1;
        }
        const QByteArray body = Bytes()
                                    .raw("-lh0-")
                                    .le32(member.bytes.size())
                                    .le32(member.bytes.size())
                                    .le16(kDosTime)
                                    .le16(kDosDate)
                                    .u8(0x20)
                                    .u8(0)
                                    .u8(member.name.size())
                                    .raw(member.name)
                                    .le16(crc);
        int sum = 0;
        for (const char c : body)
            sum += uchar(c);
        out.u8(body.size()).u8(sum).raw(body).raw(member.bytes);
    }
    return out.u8(0);
}

}  // namespace vantor::samples

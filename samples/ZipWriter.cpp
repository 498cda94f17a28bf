// ZIP: local headers and data, then the directory and its end record.
#include "samples/Archives.h"
#include "samples/Bytes.h"
#include "samples/CardTime.h"
#include "samples/Checksums.h"
#include "samples/Deflate.h"

namespace vantor::samples {

namespace {

constexpr int kVersion = 20;
constexpr int kDeflated = 8;

}  // namespace

QByteArray zipFile(const std::vector<ArchiveMember>& members) {
    Bytes out;
    Bytes directory;
    for (const ArchiveMember& member : members) {
        const bool stored = member.packing == Packing::Stored;
        const QByteArray data = stored ? member.bytes : deflate(member.bytes);
        const auto at = static_cast<std::uint64_t>(out.size());
        Bytes common;
        common.le16(kVersion)
            .le16(0)
            .le16(stored ? 0 : kDeflated)
            .le16(kDosTime)
            .le16(kDosDate)
            .le32(crc32(member.bytes));
        common.le32(static_cast<std::uint64_t>(data.size()))
            .le32(static_cast<std::uint64_t>(member.bytes.size()));
        common.le16(static_cast<std::uint64_t>(member.name.size())).le16(0);
        out.text("PK\3\4").raw(common.bytes()).raw(member.name).raw(data);
        directory.text("PK\1\2")
            .le16(kVersion)
            .raw(common.bytes())
            .le16(0)
            .le16(0)
            .le16(0)
            .le32(0)
            .le32(at)
            .raw(member.name);
    }
    const auto directoryAt = static_cast<std::uint64_t>(out.size());
    out.raw(directory.bytes()).text("PK\5\6").le16(0).le16(0).le16(members.size()).le16(members.size());
    return out.le32(static_cast<std::uint64_t>(directory.size())).le32(directoryAt).le16(0).bytes();
}

}  // namespace vantor::samples

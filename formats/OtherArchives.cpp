// 7z, CAB, ARJ and LZH archives. Sources: 7zFormat.txt of the LZMA SDK; Microsoft Cabinet format [MS-CAB];
// ARJ technical information; LHA header notes.
#include "formats/Crc.h"
#include "formats/Walkers.h"

namespace vantor {

Extent walkSevenZip(ByteView& view) {
    constexpr std::uint64_t kHead = 32;
    constexpr std::uint64_t kMostProved = 64 * 1024 * 1024;
    if (!view.matches(0, "7z\xBC\xAF\x27\x1C"))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const auto headCrc = in.u32();
    const auto offset = in.u64(), bytes = in.u64();
    const auto tailCrc = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    bool complete = false;
    if (crc32(view, 12, kHead, complete) != headCrc || !complete)
        return damagedAt(view, 12);
    const auto tail = addClamped(kHead, offset);
    const auto end = addClamped(tail, bytes);
    if (end > view.size())
        return cutOffAt(view, view.size());
    if (bytes <= kMostProved && crc32(view, tail, end, complete) != tailCrc)
        return damagedAt(view, end);
    return completeAt(view, end);
}

Extent walkCab(ByteView& view) {
    if (!view.matches(0, std::string_view("MSCF\0\0\0\0", 8)))
        return unknownExtent();
    Cursor in(view, 8, Endian::Little);
    const std::uint64_t bytes = in.u32();
    in.skip(4);
    const std::uint64_t files = in.u32();
    in.skip(4);
    const auto minor = in.u8(), major = in.u8();
    if (!in.ok() || major != 1 || minor > 3 || files >= bytes || bytes < 36)
        return unknownExtent();
    return completeAt(view, bytes);
}

Extent walkArj(ByteView& view) {
    constexpr std::string_view kMark("\x60\xEA", 2);
    constexpr std::uint16_t kMostHeader = 2600;
    if (!view.matches(0, kMark))
        return unknownExtent();
    std::uint64_t at = 0;
    for (std::uint64_t headers = 0;; ++headers) {
        const auto size = view.le16(at + 2);
        if (!size)
            return cutOffAt(view, view.size());
        if (!view.matches(at, kMark) || *size > kMostHeader)
            return headers != 0 ? damagedAt(view, at) : unknownExtent();
        if (*size == 0)
            return headers != 0 ? completeAt(view, at + 4) : unknownExtent();
        const std::uint64_t body = at + 4;
        bool complete = false;
        const auto crc = crc32(view, body, body + *size, complete);
        if (complete && view.holds(body + *size, 4) && view.le32(body + *size) != crc)
            return headers != 0 ? damagedAt(view, at) : unknownExtent();
        // The first header is the archive's own and has no data.
        const std::uint64_t data = headers != 0 ? view.le32(body + 12).value_or(0) : 0;
        at = body + *size + 4;
        for (int extensions = 0; extensions < 16; ++extensions) {
            const auto extension = view.le16(at).value_or(0);
            at += 2;
            if (extension == 0)
                break;
            at += std::uint64_t{4} + extension;
        }
        at += data;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
}

namespace {

bool isLzhHeader(ByteView& view, std::uint64_t at) {
    const auto method = view.window(at, 21);
    if (method.size() < 21 || method[2] != '-' || method[3] != 'l' ||
        (method[4] != 'h' && method[4] != 'z') || method[6] != '-' || method[20] > 3)
        return false;
    return (method[5] >= '0' && method[5] <= '9') || method[5] == 'd' || method[5] == 's';
}

}  // namespace

Extent walkLzh(ByteView& view) {
    if (!isLzhHeader(view, 0))
        return unknownExtent();
    std::uint64_t at = 0;
    while (isLzhHeader(view, at)) {
        const auto level = view.u8(at + 20).value_or(0);
        const std::uint64_t data = view.le32(at + 7).value_or(0);
        std::uint64_t head = std::uint64_t{view.u8(at).value_or(0)} + 2;
        if (level == 2)
            head = view.le16(at).value_or(0);
        if (level == 3)
            head = view.le32(at + 24).value_or(0);
        if (head < 21)
            return damagedAt(view, at);
        at += head + data;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    const auto next = view.u8(at);
    if (next == 0)
        return completeAt(view, at + 1);
    return next ? inexact(completeAt(view, at)) : cutOffAt(view, at);  // some writers leave the end mark out
}

}  // namespace vantor

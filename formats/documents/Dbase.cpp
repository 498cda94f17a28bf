// Tables of dBASE and its kin (DBF), which go with maps: the head lists the fields of a record and counts the
// records. Source: the Library of Congress's description of the dBASE table file format.
#include <cctype>

#include "formats/Among.h"
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kDbaseHead = 32, kDbaseField = 32;
constexpr std::uint8_t kDbaseVersions[] = {0x03, 0x30, 0x31, 0x32, 0x43, 0x63, 0x83, 0x8B, 0xCB, 0xF5, 0xFB};

// The bytes of a record that the field at `at` takes; 0 where none is described.
std::uint64_t fieldBytes(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kName = 11;
    const auto first = view.u8(at).value_or(0), kind = view.u8(at + kName).value_or(0);
    if (std::isalpha(first) == 0 && first != '_' && first < 0x80)
        return 0;
    bool ended = false;
    for (std::uint64_t i = 1; i < kName - 1; ++i) {
        const auto letter = view.u8(at + i).value_or(0);
        ended = ended || letter == 0;
        if (!ended && letter < 0x20)
            return 0;
    }
    constexpr std::string_view kKinds = "CNDLMFBGPYTIVX@O+W0Q";
    if (!isAmong(kKinds, static_cast<char>(kind)))
        return 0;
    // The places behind the point are a long text's second byte.
    const auto bytes = view.u8(at + 16).value_or(0), places = view.u8(at + 17).value_or(0);
    return bytes + (kind == 'C' ? std::uint64_t{places} << 8 : 0);
}

Extent walkDbase(ByteView& view) {
    Cursor in(view, 0, Endian::Little);
    const auto version = in.u8();
    in.skip(1);
    const auto month = in.u8(), day = in.u8();
    const std::uint64_t records = in.u32(), head = in.u16(), record = in.u16();
    if (!in.ok() || !isAmong(kDbaseVersions, version) || month > 12 || day > 31 ||
        head < kDbaseHead + kDbaseField + 1 || record < 2)
        return unknownExtent();
    std::uint64_t at = kDbaseHead, bytes = 1;  // each record begins with its mark of deletion
    for (; at + 1 <= head && view.u8(at) != '\r'; at += kDbaseField) {
        const auto field = fieldBytes(view, at);
        if (field == 0)
            return unknownExtent();
        bytes += field;
    }
    if (at == kDbaseHead || at + 1 > head || bytes != record)
        return unknownExtent();
    const std::uint64_t end = head + records * record;
    for (std::uint64_t i = 0; i < records; ++i) {
        const auto mark = view.u8(head + i * record);
        if (mark && *mark != ' ' && *mark != '*')
            return damagedAt(view, head + i * record);
        if (!mark)
            break;
    }
    constexpr int kEndMark = 0x1A;
    if (!view.holds(0, end))
        return completeAt(view, end);
    return view.u8(end) == kEndMark ? completeAt(view, end + 1) : inexact(completeAt(view, end));
}

}  // namespace

extern constexpr Format kDbase = {
    .name = "dBASE",
    .group = Group::Documents,
    .walk = walkDbase,
    .extensions = " DBF ",
};

}  // namespace vantor

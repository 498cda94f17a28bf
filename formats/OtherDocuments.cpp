// Documents that tell their length in a header: CHM, DjVu, shell links, encapsulated PostScript.
// Sources: public notes on the CHM layout; DjVu 3 specification; [MS-SHLLINK]; IBM DCA reference; Adobe
// EPSF 3.0 and DSC 3.0.
#include <algorithm>
#include <optional>

#include "formats/TextReader.h"
#include "formats/Walkers.h"

namespace vantor {

Extent walkChm(ByteView& view) {
    if (!view.matches(0, std::string_view("ITSF\x03\0\0\0", 8)))
        return unknownExtent();
    const auto section = view.le64(0x38);
    const auto end = section ? view.le64(addClamped(*section, 8)) : std::nullopt;
    if (!end)
        return cutOffAt(view, view.size());
    if (*end < 0x60)
        return damagedAt(view, 0x60);
    return completeAt(view, *end);
}

Extent walkDjvu(ByteView& view) {
    if (!view.matches(0, "AT&TFORM") || !view.matches(12, "DJV"))
        return unknownExtent();
    return completeAt(view, 12 + std::uint64_t{view.be32(8).value_or(0)});
}

// Structured fields, each with its length and class, until what follows is none.
Extent walkDisplayWrite(ByteView& view) {
    constexpr std::uint8_t kFirstClass = 0xE1, kLastClass = 0xE8;
    if (!view.matches(0, std::string_view("\0\5\xE1\3\0\0\x20\xE2", 8)))
        return unknownExtent();
    for (std::uint64_t at = 0;;) {
        const auto bytes = view.be16(at);
        const auto kind = view.u8(at + 2);
        if (!bytes || !kind || *bytes < 5 || *kind < kFirstClass || *kind > kLastClass)
            return inexact(completeAt(view, at));
        at += *bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
}

Extent walkShellLink(ByteView& view) {
    if (!view.matches(0, std::string_view("L\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 20)))
        return unknownExtent();
    const auto flags = view.le32(20).value_or(0);
    const std::uint64_t letter = (flags & 0x80) != 0 ? 2 : 1;
    std::uint64_t at = 76;
    if ((flags & 1) != 0)
        at += std::uint64_t{2} + view.le16(at).value_or(0);
    if ((flags & 2) != 0)
        at += view.le32(at).value_or(0);
    for (std::uint32_t text = 4; text <= 64; text <<= 1) {
        if ((flags & text) != 0)
            at += 2 + letter * view.le16(at).value_or(0);
    }
    constexpr int kMostBlocks = 64;
    for (int blocks = 0; blocks < kMostBlocks; ++blocks) {
        const auto bytes = view.le32(at);
        if (!bytes)
            return cutOffAt(view, view.size());
        if (*bytes < 4)
            return completeAt(view, at + 4);
        at += *bytes;
    }
    return damagedAt(view, at);
}

namespace {

// Behind the last whole line of the text from `from` on.
std::uint64_t endOfLines(ByteView& view, std::uint64_t from) {
    const std::uint64_t end = textEnd(view, from);
    std::uint64_t lines = end;
    while (lines > from && view.u8(lines - 1) != '\n' && view.u8(lines - 1) != '\r')
        --lines;
    return lines > from ? lines : end;
}

// Text from "%!PS" to the end comment that is not one of an embedded document.
Extent walkPostScriptText(ByteView& view) {
    constexpr std::uint64_t kMostSilence = 64 * 1024 * 1024;  // without any comment line
    std::uint64_t embedded = 0;
    std::uint64_t sign = 0;
    // Many writers leave the end comment out: behind the trailer comes only text.
    std::optional<std::uint64_t> lines;
    for (std::uint64_t at = 0;;) {
        const auto limit = lines.value_or(std::min(view.size(), addClamped(sign, kMostSilence)));
        const auto comment = view.find('%', at, limit);
        if (lines && !comment.found())
            return inexact(completeAt(view, *lines));
        if (comment.stopped())
            return cutOffAt(view, comment.at);
        if (!comment.found())
            return comment.at < view.size() ? damagedAt(view, sign) : cutOffAt(view, view.size());
        at = comment.at;
        // Programs name these comments in strings too; only one that begins a line is meant.
        const auto before = at != 0 ? view.u8(at - 1) : '\n';
        if (!view.matches(at, "%%") || (before != '\n' && before != '\r')) {
            ++at;
            continue;
        }
        sign = at;
        if (!lines && embedded == 0 && view.matches(at, "%%Trailer"))
            lines = endOfLines(view, at);
        if (view.matches(at, "%%BeginDocument"))
            ++embedded;
        else if (view.matches(at, "%%EndDocument") && embedded != 0)
            --embedded;
        else if (view.matches(at, "%%EOF") && embedded == 0) {
            return completeAt(view, behindLineEnd(view, at + 5));
        }
        at += 2;
    }
}

}  // namespace

Extent walkPostScript(ByteView& view) {
    if (view.matches(0, "%!PS"))
        return walkPostScriptText(view);
    if (!view.matches(0, "\xC5\xD0\xD3\xC6"))
        return unknownExtent();
    // A binary head before the text: positions and lengths of the PostScript, a metafile and a TIFF preview.
    std::uint64_t end = 30;
    for (const std::uint64_t field : {4, 12, 20}) {
        const std::uint64_t at = view.le32(field).value_or(0), bytes = view.le32(field + 4).value_or(0);
        if (bytes != 0)
            end = std::max(end, at + bytes);
    }
    return end > 30 ? completeAt(view, end) : damagedAt(view, 30);
}

}  // namespace vantor

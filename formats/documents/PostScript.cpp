// PostScript, also encapsulated (PS, EPS). Sources: Adobe EPSF 3.0 and DSC 3.0.
#include <algorithm>
#include <optional>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

// Behind the last whole line of the text from `from` on.
std::uint64_t endOfLines(ByteView& view, std::uint64_t from) {
    const std::uint64_t end = textEnd(view, from);
    std::uint64_t lines = end;
    while (lines > from && view.u8(lines - 1) != '\n' && view.u8(lines - 1) != '\r')
        --lines;
    return lines > from ? lines : end;
}

// Whether the text that ends at `end` goes on in bytes: of a picture, a font, a preview.
bool announcesBytes(ByteView& view, std::uint64_t end) {
    constexpr std::uint64_t kSaid = 512;
    const auto from = end - std::min(end, kSaid);
    const auto bytes = view.window(from, static_cast<std::size_t>(end - from));
    const std::string_view said(reinterpret_cast<const char*>(bytes.data()),
                                std::min<std::size_t>(bytes.size(), static_cast<std::size_t>(end - from)));
    constexpr std::string_view kWords[] = {"mage\n", "mage\r",     "BeginBinary",   "BeginData",
                                           "eexec",  "readstring", "BeginPhotoshop"};
    return std::any_of(std::begin(kWords), std::end(kWords),
                       [&](std::string_view word) { return said.find(word) != said.npos; });
}

// Text from "%!PS" to the end comment that is not one of an embedded document.
Extent walkPostScriptText(ByteView& view) {
    constexpr std::uint64_t kMostSilence = 64 * 1024 * 1024;  // without any comment line
    std::uint64_t embedded = 0;
    std::uint64_t sign = 0;
    // Many writers leave the end comment out: behind the trailer comes only text.
    std::optional<std::uint64_t> lines;
    // Bytes that nothing announced are another's, unless a comment follows soon.
    constexpr std::uint64_t kFewBytes = 4096;
    const auto text = textEnd(view, 0);
    const bool foreign = view.u8(text) && !announcesBytes(view, text);
    bool announced = false;  // by a comment that is still open, however much like text the bytes begin
    for (std::uint64_t at = 0;;) {
        const bool others = foreign && !announced;
        const auto reach = others ? std::min(view.size(), text + kFewBytes) : view.size();
        const auto silence = addClamped(sign, kMostSilence);
        const auto limit = lines.value_or(std::min(std::max(reach, sign), silence));
        const auto comment = view.find('%', at, limit);
        if (lines && !comment.found())
            return inexact(completeAt(view, *lines));
        if (comment.stopped())
            return cutOffAt(view, comment.at);
        if (!comment.found() && others && sign <= text)
            return inexact(completeAt(view, endOfLines(view, 0)));
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
        if (view.matches(at, "%%BeginData") || view.matches(at, "%%BeginBinary"))
            announced = true;
        else if (at < text && (view.matches(at, "%%EndData") || view.matches(at, "%%EndBinary")))
            announced = false;
        if (view.matches(at, "%%BeginDocument"))
            ++embedded;
        else if (view.matches(at, "%%EndDocument") && embedded != 0)
            --embedded;
        else if (view.matches(at, "%%EOF") && embedded == 0) {
            const auto end = behindLineEnd(view, at + 5);
            // A drawing program keeps its own form of the drawing behind the one for others.
            if (!view.matches(end, "%AI9_PrintingDataEnd"))
                return completeAt(view, end);
        }
        at += 2;
    }
}

Extent walkPostScript(ByteView& view) {
    // Written by hand, its first line often says no more than that it is PostScript.
    const auto third = view.u8(2).value_or(0);
    if (view.matches(0, "%!PS") || (view.matches(0, "%!") && isTextSpace(third)))
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

}  // namespace

extern constexpr Format kPostScript = {
    .name = "PostScript",
    .group = Group::Documents,
    .walk = walkPostScript,
    .extensions = " PS EPS EPSF ",
};

}  // namespace vantor

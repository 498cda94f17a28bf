// HTML by its closing tag. Source: HTML living standard.
#include "formats/documents/Html.h"

#include <cctype>

#include "formats/Format.h"
#include "formats/TextReader.h"
#include "formats/documents/Text.h"
#include "formats/documents/Xml.h"

namespace vantor {

namespace {

constexpr std::string_view kHtmlClose = "</html";

// Behind the remarks at `at`, as licences are put in front.
std::uint64_t behindRemarks(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kMost = 64 * 1024;
    const auto limit = addClamped(at, kMost);
    while (view.matches(at, "<!--")) {
        auto close = view.find('>', at + 4, limit);
        while (close.found() && !view.matches(close.at - 2, "--"))
            close = view.find('>', close.at + 1, limit);
        if (!close.found())
            break;
        at = close.at + 1;
        while (isTextSpace(view.u8(at).value_or(0)) && at < limit)
            ++at;
    }
    return at;
}

// Whether the closing tag that ends at `at` stands in a script's text: letters follow it on its line, and
// before `end`, where the text does, another closing tag.
bool isQuoted(ByteView& view, std::uint64_t at, std::uint64_t end) {
    if (isSectorStart(at) || view.u8(at) == '<' || at >= end)
        return false;
    auto tag = view.find('<', at, end);
    while (tag.found() && !matchesAnyCase(view, tag.at, kHtmlClose))
        tag = view.find('<', tag.at + 1, end);
    return tag.found();
}

}  // namespace

Extent walkHtml(ByteView& view) {
    constexpr std::string_view kLittle("\xFF\xFE<\0", 4), kBig("\xFE\xFF\0<", 4);
    if (view.matches(0, kLittle) || view.matches(0, kBig))
        return walkText(view);
    std::uint64_t at = behindByteOrderMark(view);
    while (isTextSpace(view.u8(at).value_or(0)) && at < 256)
        ++at;
    const auto second = view.u8(at + 1).value_or(0);
    if (view.u8(at) != '<' || (second != '!' && second != '?' && std::isalpha(second) == 0))
        return unknownExtent();
    // A remark begins drawings too.
    if (const auto root = behindRemarks(view, at);
        root != at && (matchesAnyCase(view, root, "<svg") || matchesAnyCase(view, root, "<?xml"))) {
        const Extent drawing = walkXml(view);
        return drawing.verdict == Verdict::Complete ? withContent(drawing) : drawing;
    }
    const auto end = textEnd(view, at);
    for (auto tag = view.find('<', at, end); tag.found(); tag = view.find('<', tag.at + 1, end)) {
        if (!matchesAnyCase(view, tag.at, kHtmlClose))
            continue;
        auto close = tag.at + kHtmlClose.size();
        while (close < end && isTextSpace(view.u8(close).value_or(0)))
            ++close;
        if (view.u8(close) != '>')
            continue;
        const Extent whole =
            completeAt(view, behindRemarks(view, behindBlanks(view, close + 1), "<!--", "-->"));
        if (whole.end != close + 1 || !isQuoted(view, whole.end, end))
            return whole;
    }
    return inexact(end == view.size() ? cutOffAt(view, end) : completeAt(view, readableEnd(view, at)));
}

extern constexpr Format kHtml = {
    .name = "HTML",
    .group = Group::Documents,
    .walk = walkHtml,
    .extensions = " HTML HTM XHT MHT ",
    .strongMagic = false,
};

}  // namespace vantor

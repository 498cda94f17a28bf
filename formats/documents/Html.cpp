// HTML by its closing tag. Source: HTML living standard.
#include "formats/documents/Html.h"

#include <cctype>

#include "formats/Format.h"
#include "formats/TextReader.h"
#include "formats/documents/Text.h"

namespace vantor {

Extent walkHtml(ByteView& view) {
    constexpr std::string_view kClose = "</html";
    constexpr std::string_view kLittle("\xFF\xFE<\0", 4), kBig("\xFE\xFF\0<", 4);
    if (view.matches(0, kLittle) || view.matches(0, kBig))
        return walkText(view);
    std::uint64_t at = behindByteOrderMark(view);
    while (isTextSpace(view.u8(at).value_or(0)) && at < 256)
        ++at;
    const auto second = view.u8(at + 1).value_or(0);
    if (view.u8(at) != '<' || (second != '!' && second != '?' && std::isalpha(second) == 0))
        return unknownExtent();
    const auto end = textEnd(view, at);
    for (auto tag = view.find('<', at, end); tag.found(); tag = view.find('<', tag.at + 1, end)) {
        if (!matchesAnyCase(view, tag.at, kClose))
            continue;
        auto close = tag.at + kClose.size();
        while (close < end && isTextSpace(view.u8(close).value_or(0)))
            ++close;
        if (view.u8(close) == '>')
            return completeAt(view, behindRemarks(view, behindBlanks(view, close + 1), "<!--", "-->"));
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

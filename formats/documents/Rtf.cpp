// RTF by its braces. Source: RTF 1.9.1.
#include <algorithm>
#include <cctype>
#include <string>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

// Behind the line ends after the last brace. The rich edit control of Windows, which names itself, and so the
// programs that leave the writing to it, closes with a zero; an editor may have put a line end behind that.
std::uint64_t behindLast(ByteView& view, std::uint64_t at) {
    constexpr std::size_t kHead = 4096;
    const auto end = behindEmptyLine(view, at);
    const auto head = view.window(0, kHead);
    const std::string_view text(reinterpret_cast<const char*>(head.data()), std::min(head.size(), kHead));
    const bool bySystem =
        text.find("\\generator Riched20") != text.npos || text.find("\\generator Msftedit") != text.npos;
    if (!bySystem || end != at + 2 || isSectorStart(end) || view.u8(end) != std::uint8_t{0})
        return end;
    return !isSectorStart(end + 1) && view.matches(end + 1, "\r\n") ? end + 3 : end + 1;
}

Extent walkRtf(ByteView& view) {
    if (!view.matches(0, "{\\rtf"))
        return unknownExtent();
    TextReader in(view, 0);
    std::uint64_t depth = 0;
    for (;;) {
        const auto at = in.at();
        int byte = in.next();
        if (byte < 0)
            return cutOffAt(view, at);
        if (isForeign(byte))
            return damagedAt(view, at);
        if (byte == '{')
            ++depth;
        if (byte == '}' && --depth == 0)
            return completeAt(view, behindLast(view, in.at()));
        if (byte != '\\')
            continue;
        // A control word; "\bin" is followed by that many bytes of anything.
        std::string word;
        std::uint64_t number = 0;
        byte = in.next();
        while (std::isalpha(byte) != 0 && word.size() < 32) {
            word.push_back(static_cast<char>(byte));
            byte = in.next();
        }
        if (word.empty())
            continue;
        while (byte >= '0' && byte <= '9' && number < 1'000'000'000) {
            number = number * 10 + static_cast<std::uint64_t>(byte - '0');
            byte = in.next();
        }
        if (word == "bin")
            in.skip(number);
        else if (byte == '{' || byte == '}' || byte == '\\')
            in.back();  // not part of the word
    }
}

}  // namespace

extern constexpr Format kRtf = {
    .name = "RTF",
    .group = Group::Documents,
    .walk = walkRtf,
    .extensions = " RTF ",
    .checksContent = true,
};

}  // namespace vantor

// RTF by its braces. Source: RTF 1.9.1.
#include <cctype>
#include <string>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

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
            return completeAt(view, behindLineEnd(view, in.at()));
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

// X bitmaps (XBM): C source of two sizes and a row of numbers, of which the sizes tell how many there are.
// Source: the X Window System's manual of XReadBitmapFile(3).
#include <cctype>
#include <string>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostXbmHead = 4096;
constexpr std::uint64_t kMostXbmSide = 1 << 15;

// The words of the head up to the brace, without remarks; empty where there is none.
std::string wordsUpToBrace(TextReader& in) {
    std::string words;
    for (int last = 0; words.size() < kMostXbmHead && in.at() < 2 * kMostXbmHead;) {
        int byte = in.next();
        if (byte < 0 || isForeign(byte))
            return {};
        if (last == '/' && byte == '*') {
            words.pop_back();
            for (int before = 0; before != '*' || byte != '/';) {
                before = byte;
                byte = in.next();
                if (byte < 0 || isForeign(byte) || in.at() >= 2 * kMostXbmHead)
                    return {};
            }
            byte = ' ';
        }
        if (byte == '{')
            return words;
        words.push_back(static_cast<char>(byte));
        last = byte;
    }
    return {};
}

// The number behind the first name that ends so.
std::uint64_t numberNamed(const std::string& words, std::string_view nameEnd) {
    auto at = words.find(nameEnd);
    if (at == words.npos)
        return 0;
    at += nameEnd.size();
    std::uint64_t value = 0;
    for (; at < words.size() && value <= kMostXbmSide && std::isdigit(static_cast<unsigned char>(words[at]));
         ++at)
        value = value * 10 + static_cast<std::uint64_t>(words[at] - '0');
    return value;
}

Extent walkXbm(ByteView& view) {
    TextReader in(view, 0);
    if (!view.matches(0, "#define ") && !view.matches(0, "/*"))
        return unknownExtent();
    const std::string words = wordsUpToBrace(in);
    Facts facts;
    facts.width = static_cast<std::uint32_t>(numberNamed(words, "_width "));
    facts.height = static_cast<std::uint32_t>(numberNamed(words, "_height "));
    if (words.find("#define ") == words.npos || words.find("_bits") == words.npos || facts.width == 0 ||
        facts.height == 0 || facts.width > kMostXbmSide || facts.height > kMostXbmSide)
        return unknownExtent();
    // The tenth version's numbers are of sixteen bits.
    const std::uint64_t bits = words.find(" short ") != words.npos ? 16 : 8;
    const std::uint64_t wanted = (facts.width + bits - 1) / bits * facts.height;
    std::uint64_t numbers = 0;
    bool within = false, closed = false;
    for (;;) {
        const auto at = in.at();
        const int byte = in.next();
        if (byte < 0)
            return cutOffAt(view, at, facts);
        const bool letter = std::isxdigit(byte) != 0 || byte == 'x' || byte == 'X';
        if (closed && byte == ';')
            return numbers == wanted ? withContent(completeAt(view, behindLineEnd(view, at + 1), facts))
                                     : spoiltUpTo(view, behindLineEnd(view, at + 1), facts);
        if (!isTextSpace(byte) && (closed || (!letter && byte != ',' && byte != '}')))
            return damagedAt(view, at, facts);
        numbers += letter && !within ? 1 : 0;
        within = letter;
        closed = closed || byte == '}';
    }
}

}  // namespace

extern constexpr Format kXbm = {
    .name = "XBM",
    .group = Group::Pictures,
    .walk = walkXbm,
    .extensions = " XBM ",
};

}  // namespace vantor

// Text documents: RTF by its braces, contacts and calendars by their last line, plain text by the first byte
// that is none. Sources: RTF 1.9.1; RFC 6350; RFC 5545.
#include <cctype>
#include <string>

#include "formats/TextReader.h"
#include "formats/Walkers.h"

namespace vantor {

namespace {

// Cards or calendars one behind the other.
Extent walkRecords(ByteView& view, std::string_view begin, std::string_view end) {
    std::uint64_t at = behindByteOrderMark(view);
    if (!matchesAnyCase(view, at, begin))
        return unknownExtent();
    std::uint64_t whole = 0;
    while (matchesAnyCase(view, at, begin)) {
        TextReader in(view, at);
        for (int last = '\n';;) {
            const auto here = in.at();
            if (last == '\n' && matchesAnyCase(view, here, end)) {
                at = whole = behindLineEnd(view, here + end.size());
                break;
            }
            last = in.next();
            if (last < 0)
                return cutOffAt(view, here);
            if (isForeign(last))
                return damagedAt(view, whole != 0 ? whole : here);
        }
    }
    return completeAt(view, whole);
}

}  // namespace

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

Extent walkContacts(ByteView& view) {
    return inexact(
        walkRecords(view, "begin:vcard", "end:vcard"));  // how many cards there are is told nowhere
}

Extent walkCalendar(ByteView& view) {
    return walkRecords(view, "begin:vcalendar", "end:vcalendar");
}

Extent walkText(ByteView& view) {
    constexpr std::uint64_t kLeast = 4;
    // Sixteen-bit text with its mark: until the first unit that is a control character.
    if (view.matches(0, "\xFF\xFE") || view.matches(0, "\xFE\xFF")) {
        const auto endian = view.matches(0, "\xFF\xFE") ? Endian::Little : Endian::Big;
        std::uint64_t at = 2;
        for (;; at += 2) {
            const auto unit = view.number(at, 2, endian);
            if (!unit || isControl(static_cast<int>(*unit)) || *unit >= 0xFFFE)
                break;
        }
        return at >= kLeast ? inexact(completeAt(view, at)) : unknownExtent();
    }
    const auto end = textEnd(view, 0);
    return end >= kLeast ? inexact(completeAt(view, end)) : unknownExtent();
}

// Types that are text in one form and something else in another: text only where it begins as such.
Extent walkMarkedText(ByteView& view) {
    static constexpr std::string_view kBeginnings[] = {
        "STARTFONT ", "# VobSub index", "  0\r\nSECTION", "  0\nSECTION", "999\r\n", "999\n", "OFF\n"};
    for (const auto beginning : kBeginnings) {
        if (view.matches(0, beginning))
            return walkText(view);
    }
    return unknownExtent();
}

}  // namespace vantor

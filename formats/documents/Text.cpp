// Plain text: anything until the first byte that is none.
#include "formats/documents/Text.h"

#include <algorithm>
#include <array>
#include <optional>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

// How far back the last whole line is looked for, and how much of the text before it tells its encoding.
constexpr std::uint64_t kLastLine = 64;
constexpr std::uint64_t kTold = 1024;
// Foreign bytes seldom begin with more letters than that.
constexpr std::uint64_t kFewLetters = 3;

// Where UTF-8 ends in [from, to), or else `to`; a letter that began before `from` is passed over.
std::uint64_t endOfUtf8(ByteView& view, std::uint64_t from, std::uint64_t to) {
    const auto isRest = [&](std::uint64_t at) { return at < to && (view.u8(at).value_or(0) & 0xC0) == 0x80; };
    while (from < to && isRest(from))
        ++from;
    for (std::uint64_t at = from; at < to;) {
        const auto lead = view.u8(at).value_or(0xFF);
        const int rest = lead < 0x80                   ? 0
                         : lead >= 0xC2 && lead < 0xE0 ? 1
                         : lead >= 0xE0 && lead < 0xF0 ? 2
                         : lead >= 0xF0 && lead < 0xF5 ? 3
                                                       : -1;
        for (int i = 1; i <= rest; ++i) {
            if (!isRest(at + static_cast<std::uint64_t>(i)))
                return at;
        }
        if (rest < 0)
            return at;
        at += 1 + static_cast<std::uint64_t>(rest);
    }
    return to;
}

// Where a text ends that runs into foreign bytes at `end`: they may begin with some that pass for letters.
std::uint64_t withoutForeignLetters(ByteView& view, std::uint64_t end) {
    const auto least = end - std::min(end, kLastLine);
    // What is no letter in an encoding that held until shortly before is the first foreign byte.
    const auto letters = least >= kTold ? endOfUtf8(view, least - kTold, end) : 0;
    if (letters > least)
        end = letters;
    std::uint64_t line = end;
    while (line > least && view.u8(line - 1) != '\n' && view.u8(line - 1) != '\r')
        --line;
    if (line == least)
        return end;
    const auto told = line - std::min(line, kTold);
    const auto last = endOfUtf8(view, told, line) == line ? endOfUtf8(view, line, end) : end;
    return last - line <= kFewLetters ? line : last;
}

// Texts that say where they end: by a last line behind which nothing comes.
std::optional<std::uint64_t> behindLastLine(ByteView& view, std::uint64_t end) {
    struct Marked {
        std::string_view first, last;
    };
    static constexpr std::array<Marked, 13> kMarked = {Marked{"ISO-10303-21;", "END-ISO-10303-21;"},
                                                       Marked{"  0\r\nSECTION", "EOF"},
                                                       Marked{"  0\nSECTION", "EOF"},
                                                       Marked{"999", "EOF"},
                                                       Marked{"0\nSECTION", "EOF"},
                                                       Marked{"0\r\nSECTION", "EOF"},
                                                       Marked{" 0\nSECTION", "EOF"},
                                                       Marked{" 0\r\nSECTION", "EOF"},
                                                       Marked{"StartFontMetrics ", "EndFontMetrics"},
                                                       Marked{"EESchema Schematic", "$EndSCHEMATC"},
                                                       Marked{"Microsoft Visual", "EndGlobal"},
                                                       Marked{"\xEF\xBB\xBF\nMicrosoft", "EndGlobal"},
                                                       Marked{"\xEF\xBB\xBF\r\nMicrosoft", "EndGlobal"}};
    for (const auto& [first, last] : kMarked) {
        if (!view.matches(0, first))
            continue;
        auto sign = view.find(static_cast<std::uint8_t>(last[0]), first.size(), end);
        for (; sign.found(); sign = view.find(static_cast<std::uint8_t>(last[0]), sign.at + 1, end)) {
            const auto before = view.u8(sign.at - 1), behind = view.u8(sign.at + last.size());
            const bool line = before == '\n' || before == '\r';
            if (line && view.matches(sign.at, last) &&
                (last.back() == ';' || behind == '\n' || behind == '\r'))
                return behindEmptyLine(view, sign.at + last.size());
        }
    }
    return std::nullopt;
}

// Behind the last closing line of keys and certificates in letters, unless whole lines of text follow it.
// Source: RFC 7468, RFC 4880 section 6.2.
std::optional<std::uint64_t> behindLastKey(ByteView& view, std::uint64_t end) {
    constexpr std::string_view kBegin = "-----BEGIN ", kEnd = "-----END ", kClose = "-----";
    constexpr std::string_view kBeginnings[] = {kBegin, "Certificate:\n", "X.509 Certificate Info",
                                                "Public Key Info:"};
    if (std::none_of(std::begin(kBeginnings), std::end(kBeginnings),
                     [&](std::string_view each) { return view.matches(0, each); }))
        return std::nullopt;
    std::optional<std::uint64_t> last;
    for (auto sign = view.find('\n', 0, end); sign.found(); sign = view.find('\n', sign.at + 1, end)) {
        if (view.matches(sign.at + 1, kEnd)) {
            auto dash = view.find('-', sign.at + 1 + kEnd.size(), end);
            while (dash.found() && !view.matches(dash.at, kClose))
                dash = view.find('-', dash.at + 1, end);
            last = dash.found() ? std::optional(behindLineEnd(view, dash.at + kClose.size())) : std::nullopt;
        } else if (last && sign.at >= *last) {
            last.reset();  // a whole line behind it
        }
    }
    return last;
}

// Texts that open with a bracket, or a word before one, and end with the bracket that closes it, where
// foreign bytes follow that begin with letters. Sources: RFC 8259, OGC 01-009, manuals of dot and ncgen.
std::optional<std::uint64_t> behindLastBracket(ByteView& view, std::uint64_t end) {
    constexpr std::string_view kBeginnings[] = {"{",         "GEOGCS[",  "PROJCS[",  "COMPD_CS[",
                                                "LOCAL_CS[", "PROJCRS[", "GEOGCRS[", "netcdf ",
                                                "digraph",   "graph",    "strict "};
    if (std::none_of(std::begin(kBeginnings), std::end(kBeginnings),
                     [&](std::string_view each) { return view.matches(0, each); }) ||
        view.u8(end).value_or(0) == 0)
        return std::nullopt;
    TextReader in(view, 0);
    std::uint64_t closed = 0;
    int open = 0;
    bool quoted = false;
    while (in.at() < end) {
        const int letter = in.next();
        if (quoted && letter == '\\')
            in.next();
        else if (letter == '"')
            quoted = !quoted;
        else if (!quoted && (letter == '{' || letter == '['))
            ++open;
        else if (!quoted && (letter == '}' || letter == ']') && --open == 0)
            closed = in.at();
    }
    if (closed == 0 || end - closed > kLastLine)
        return std::nullopt;
    // Whole lines behind it are the text's own.
    const auto behind = behindEmptyLine(view, closed);
    return view.find('\n', behind, end).found() ? std::nullopt : std::optional(behind);
}

}  // namespace

std::uint64_t readableEnd(ByteView& view, std::uint64_t from) {
    const auto end = textEnd(view, from);
    return view.u8(end).value_or(0) != 0 ? withoutForeignLetters(view, end) : end;
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
    if (const auto marked = behindLastLine(view, textEnd(view, 0)))
        return inexact(completeAt(view, *marked));
    if (const auto key = behindLastKey(view, textEnd(view, 0)))
        return inexact(completeAt(view, *key));
    if (const auto bracket = behindLastBracket(view, textEnd(view, 0)))
        return inexact(completeAt(view, *bracket));
    const auto end = readableEnd(view, 0);
    return end >= kLeast ? inexact(completeAt(view, end)) : unknownExtent();
}

extern constexpr Format kText = {
    .name = "Text",
    .group = Group::Documents,
    .walk = walkText,
    .extensions =
        " TXT EML MBOX CSV LOG INI JSON MD C H CPP HPP PY SH BAT JS CSS SQL TEX SRT SUB ASS M3U "
        "PLS NFO PHP PL JAVA TSV YAML YML AFM CCD CUBE CUE DIFF GCODE GPL IMY IPYNB LDIF OBJ OFX "
        "ORG PEM PGN PO QIF RIS SGF URL USDA VTT ASC ASPX BAS BIB CDL CIF DESKTOP ENW FASTA FRM "
        "GFF HQX IGS INF JDX JSP LRC LWS LY MIF MOL MOL2 MSF NB NMEA PBXPROJ PCB PFA PPD PPK RB REG "
        "RPP SCH SFD SHAR SLK SLN SMI STEP STP IFC UU VBP VNT WRL X_T FIG GEOJSON GV HL7 PLT PRJ VHDR WPT ",
    .strongMagic = false,
    .frameStream = true,
};

}  // namespace vantor

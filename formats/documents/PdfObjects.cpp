// Source: ISO 32000-1, 7.2 to 7.5.
#include "formats/documents/PdfObjects.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "formats/Inflate.h"
#include "formats/PartOfView.h"
#include "formats/Registry.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

constexpr std::size_t kMostWord = 64;
constexpr std::size_t kMostPlaces = 1 << 20;
constexpr int kMostDepth = 256;
constexpr std::uint64_t kMostString = 1 << 20;
constexpr std::uint64_t kMostStream = std::uint64_t{1} << 30;

enum class Kind : std::uint8_t { Word, Name, Opens, Closes, ArrayOpens, ArrayCloses, Text, End, Foreign };

struct Token {
    Kind kind = Kind::End;
    std::uint64_t at = 0;
    std::string word;  // of a word or a name

    std::optional<std::uint64_t> number() const {
        if (kind != Kind::Word || word.empty() || word.size() > 15 ||
            word.find_first_not_of("0123456789") != word.npos)
            return std::nullopt;
        return std::stoull(word);
    }
    bool is(std::string_view text) const { return kind == Kind::Word && word == text; }
};

bool isPdfSpace(int byte) {
    return byte == 0 || byte == '\f' || isTextSpace(byte);
}

bool isRegular(int byte) {
    return byte > ' ' && byte < 0x7F &&
           std::string_view("()<>[]{}/%").find(static_cast<char>(byte)) == std::string_view::npos;
}

class Tokens {
  public:
    Tokens(ByteView& view, std::uint64_t end) : m_in(view, 0), m_end(end) {}

    Token next();
    std::uint64_t at() const { return m_in.at(); }
    void goTo(std::uint64_t at) { m_in.skip(at - m_in.at()); }

  private:
    int byte() { return m_in.at() < m_end ? m_in.next() : -1; }
    Kind text();
    Kind hexText();

    TextReader m_in;
    const std::uint64_t m_end;
};

// Behind "(": up to the bracket that closes it.
Kind Tokens::text() {
    int open = 1;
    for (std::uint64_t read = 0; read < kMostString; ++read) {
        const int letter = byte();
        if (letter < 0)
            return Kind::Foreign;
        if (letter == '\\')
            byte();
        open += letter == '(' ? 1 : letter == ')' ? -1 : 0;
        if (open == 0)
            return Kind::Text;
    }
    return Kind::Foreign;
}

Kind Tokens::hexText() {
    for (std::uint64_t read = 0; read < kMostString; ++read) {
        const int letter = byte();
        if (letter == '>')
            return Kind::Text;
        const bool digit = (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'F') ||
                           (letter >= 'a' && letter <= 'f');
        if (!digit && !isPdfSpace(letter))
            return Kind::Foreign;
    }
    return Kind::Foreign;
}

Token Tokens::next() {
    Token token;
    int letter = byte();
    for (;;) {
        while (isPdfSpace(letter))
            letter = byte();
        if (letter != '%')
            break;
        while (letter >= 0 && letter != '\r' && letter != '\n')
            letter = byte();
    }
    token.at = m_in.at() - 1;
    if (letter < 0)
        return token;
    token.kind = Kind::Foreign;
    if (letter == '<' || letter == '>') {
        const int second = byte();
        if (second == letter)
            token.kind = letter == '<' ? Kind::Opens : Kind::Closes;
        else if (letter == '<') {
            m_in.back();
            token.kind = hexText();
        }
    } else if (letter == '(') {
        token.kind = text();
    } else if (letter == '[' || letter == ']') {
        token.kind = letter == '[' ? Kind::ArrayOpens : Kind::ArrayCloses;
    } else if (letter == '/' || isRegular(letter)) {
        token.kind = letter == '/' ? Kind::Name : Kind::Word;
        if (letter != '/')
            token.word.push_back(static_cast<char>(letter));
        while ((isRegular(letter = byte()) || (token.kind == Kind::Name && letter >= 0x7F))) {
            if (token.word.size() == kMostWord) {
                token.kind = Kind::Foreign;
                return token;
            }
            token.word.push_back(static_cast<char>(letter));
        }
        if (letter >= 0)
            m_in.back();
    }
    return token;
}

class ObjectsWalk {
  public:
    ObjectsWalk(ByteView& view, std::uint64_t end) : m_view(view), m_end(end), m_in(view, end) {}

    bool walk(PdfTables tables);

  private:
    // What an object's own dictionary says of its stream.
    struct Dictionary {
        std::optional<std::uint64_t> length;
        std::string filter;  // the first; more than one needs to be undone one after the other
    };

    bool object();
    bool rest(Token token, Dictionary& dictionary);
    bool stream(const Dictionary& dictionary);
    enum class Content : std::uint8_t { Proven, Blind, Spoilt };
    Content look(const Dictionary& dictionary, std::uint64_t from, std::uint64_t& to);
    std::optional<std::uint64_t> behindStream(std::uint64_t at);

    ByteView& m_view;
    const std::uint64_t m_end;
    Tokens m_in;
    std::vector<std::uint64_t> m_objects;  // where they begin, in the file's order
    std::vector<std::uint64_t> m_places;   // where tables say they do
    std::uint64_t m_blind = 0;             // bytes of streams that nothing was said of
};

// One value, or of a dictionary or array all of it; `token` is its first.
bool ObjectsWalk::rest(Token token, Dictionary& dictionary) {
    int depth = 0;
    std::string key;
    bool hasValue = true;
    for (;;) {
        if (token.kind == Kind::Foreign || token.kind == Kind::End)
            return false;
        const bool name = token.kind == Kind::Name;
        if (depth == 1 && name && hasValue) {
            key = token.word;
            hasValue = false;
        } else if (depth == 1) {
            if (key == "Length" && token.kind == Kind::Word)  // a second word says that another object tells
                dictionary.length = hasValue ? std::nullopt : token.number();
            hasValue = true;
        }
        if (key == "Filter" && name && token.word != key && dictionary.filter.empty())
            dictionary.filter = token.word;
        if (token.kind == Kind::Opens || token.kind == Kind::ArrayOpens)
            ++depth;
        if (token.kind == Kind::Closes || token.kind == Kind::ArrayCloses)
            --depth;
        if (depth < 0 || depth > kMostDepth)
            return false;
        if (depth == 0)
            return true;
        token = m_in.next();
    }
}

// Behind "endstream" at `at`, where only line ends may stand in front of it.
std::optional<std::uint64_t> ObjectsWalk::behindStream(std::uint64_t at) {
    constexpr int kMostLineEnds = 4;
    for (int i = 0; i < kMostLineEnds && isPdfSpace(m_view.u8(at).value_or(1)); ++i)
        ++at;
    return m_view.matches(at, "endstream") ? std::optional(at + 9) : std::nullopt;
}

// `to` comes as the told end, or as `from` where none is told, and leaves as the real one where the content
// tells it. What is encrypted looks spoilt.
ObjectsWalk::Content ObjectsWalk::look(const Dictionary& dictionary, std::uint64_t from, std::uint64_t& to) {
    if (dictionary.filter == "FlateDecode" || dictionary.filter == "Fl") {
        const auto result = inflateZlib(m_view, from, kAnyOutput);
        if (result.outcome != InflateOutcome::Done || (to != from && result.end > to))
            return result.outcome == InflateOutcome::TooMuch ? Content::Blind : Content::Spoilt;
        to = to == from ? result.end : to;
        return Content::Proven;
    }
    if (to == from)
        return dictionary.length ? Content::Proven : Content::Blind;
    if (dictionary.filter == "DCTDecode" || dictionary.filter == "DCT") {
        PartOfView part(m_view, from, to);
        ByteView picture(part);
        const Extent extent = walkAs(*formatFor("JPG"), picture);
        return extent.checked                        ? Content::Proven
               : extent.verdict == Verdict::Complete ? Content::Blind
                                                     : Content::Spoilt;
    }
    for (auto at = from; at < to; ++at) {  // plain text
        if (isForeign(m_view.u8(at).value_or(0)))
            return Content::Blind;
    }
    return Content::Proven;
}

// Behind the word "stream".
bool ObjectsWalk::stream(const Dictionary& dictionary) {
    std::uint64_t from = m_in.at();
    from += m_view.u8(from) == std::uint8_t{'\r'} ? 1 : 0;
    from += m_view.u8(from) == std::uint8_t{'\n'} ? 1 : 0;
    const auto told = dictionary.length.value_or(0);
    if (told > kMostStream || from + told > m_end)
        return false;
    std::uint64_t to = from + told;
    Content content = look(dictionary, from, to);
    auto behind = behindStream(to);
    for (auto search = m_view.find('e', from, m_end); !dictionary.length && !behind && search.found();
         search = m_view.find('e', search.at + 1, m_end)) {
        to = search.at;
        behind = behindStream(to);
    }
    if (!behind)
        return false;
    if (!dictionary.length && content == Content::Blind)
        content = look(dictionary, from, to);
    if (content == Content::Blind)
        m_blind += to - from;
    m_in.goTo(*behind);
    return content != Content::Spoilt && m_in.next().is("endobj");
}

// Behind "12 0 obj".
bool ObjectsWalk::object() {
    Dictionary dictionary;
    for (Token token = m_in.next(); !token.is("endobj"); token = m_in.next()) {
        if (token.is("stream"))
            return stream(dictionary);
        if (!rest(token, dictionary))
            return false;
    }
    return true;
}

bool ObjectsWalk::walk(PdfTables tables) {
    std::optional<Token> first, second;  // numbers that stood last
    for (;;) {
        Token token = m_in.next();
        if (token.kind == Kind::End)
            break;
        if (m_objects.size() + m_places.size() > kMostPlaces)
            return false;
        if (token.number()) {
            first = std::exchange(second, std::move(token));
            continue;
        }
        if (token.is("obj")) {
            if (!first || !second || !object())
                return false;
            m_objects.push_back(first->at);
        } else if (token.is("n") && first) {
            m_places.push_back(*first->number());
        } else if (token.kind == Kind::Opens) {
            Dictionary trailer;
            if (!rest(token, trailer))
                return false;
        } else if (!token.is("f") && !token.is("xref") && !token.is("trailer") && !token.is("startxref")) {
            return false;
        }
        first.reset();
        second.reset();
    }
    const bool placesHold =
        tables == PdfTables::MayBeWrong ||
        std::all_of(m_places.begin(), m_places.end(), [&](std::uint64_t place) {
            return place == 0 || std::binary_search(m_objects.begin(), m_objects.end(), place);
        });
    return !m_objects.empty() && placesHold && m_blind <= m_end / 4;
}

}  // namespace

bool isRowOfPdfObjects(ByteView& view, std::uint64_t end, PdfTables tables) {
    return ObjectsWalk(view, end).walk(tables);
}

}  // namespace vantor

// PDF: the end mark that belongs to this file, behind all its incremental updates. Source: ISO 32000-1, 7.5
// and annex F (linearized files).
#include <algorithm>

#include "formats/Format.h"
#include "formats/TextReader.h"
#include "formats/documents/PdfObjects.h"

namespace vantor {

namespace {

constexpr std::size_t kLookBack = 64;       // from the end mark to "startxref"
constexpr std::size_t kUpdateLead = 256;    // comments and the first words of an update
constexpr std::uint64_t kPdfMostLead = 16;  // line ends or a byte order mark in front
constexpr std::size_t kHeadBytes = 1024;    // where the linearization dictionary stands
// A file goes on as long as ends of objects turn up; this is the largest stream believed to lie between two.
constexpr std::uint64_t kPdfMostSilence = 64 * 1024 * 1024;

bool isSpace(char c) {
    return c == ' ' || c == '\r' || c == '\n' || c == '\t' || c == '\f';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view textAt(ByteView& view, std::uint64_t at, std::size_t most) {
    const auto bytes = view.window(at, most);
    return {reinterpret_cast<const char*>(bytes.data()), std::min(bytes.size(), most)};
}

// Cuts leading digits off `text`; nothing when there are none or too many.
std::optional<std::uint64_t> takeNumber(std::string_view& text) {
    std::uint64_t value = 0;
    std::size_t used = 0;
    while (used < text.size() && used < 12 && isDigit(text[used]))
        value = value * 10 + static_cast<std::uint64_t>(text[used++] - '0');
    text.remove_prefix(used);
    return used != 0 ? std::optional(value) : std::nullopt;
}

void skipSpaces(std::string_view& text) {
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
}

// "12 0 obj" or "xref": what a section or an update begins with.
bool beginsSection(std::string_view text) {
    skipSpaces(text);
    if (text.starts_with("xref"))
        return true;
    if (!takeNumber(text))
        return false;
    skipSpaces(text);
    if (!takeNumber(text))
        return false;
    skipSpaces(text);
    return text.starts_with("obj");
}

// The same behind comments that a program names its update with; "%PDF-" begins the next file.
bool beginsUpdate(std::string_view text) {
    skipSpaces(text);
    while (text.starts_with('%') && !text.starts_with("%PDF-") && !text.starts_with("%%EOF")) {
        text.remove_prefix(std::min(text.find_first_of("\r\n"), text.size()));
        skipSpaces(text);
    }
    return beginsSection(text);
}

constexpr std::size_t kSeam = 16;
constexpr std::size_t kPdfMostBlanks = 64;  // behind the end mark
constexpr std::size_t kLeastBlanks = 3;     // fewer may be another's

// The first end mark or beginning of a PDF in `text`.
std::size_t findWord(std::string_view text) {
    for (auto at = text.find('%'); at != text.npos; at = text.find('%', at + 1)) {
        const auto rest = text.substr(at, 5);
        if (rest == "%%EOF" || rest == "%PDF-")
            return at;
    }
    return text.npos;
}

class PdfWalk {
  public:
    explicit PdfWalk(ByteView& view) : m_view(view) {}

    Extent walk();

  private:
    enum class Mark { Foreign, Inner, Last };

    std::uint64_t linearizedLength();
    Mark judge(std::uint64_t at);
    std::uint64_t behindMark(std::uint64_t at);
    bool isSureEnd(std::uint64_t at);
    bool isForeignStart(std::uint64_t at);
    std::string_view stretch(std::uint64_t at);
    void noteSigns(std::uint64_t at, std::string_view text);

    ByteView& m_view;
    std::uint64_t m_lead = 0;      // where the head stands
    std::uint64_t m_lastMark = 0;  // behind the last end mark, valid or not
    bool m_lastMarkInner = false;
    std::uint64_t m_lastSign = 0;    // behind the last end of an object or stream
    std::uint64_t m_linearized = 0;  // length told by the linearization dictionary, while it may still apply
};

std::uint64_t PdfWalk::linearizedLength() {
    auto head = textAt(m_view, 0, kHeadBytes);
    const auto mark = head.find("/Linearized");
    if (mark == head.npos)
        return 0;
    head.remove_prefix(mark);
    head = head.substr(0, head.find(">>"));
    for (auto at = head.find("/L"); at != head.npos; at = head.find("/L", at + 2)) {
        auto rest = head.substr(at + 2);
        skipSpaces(rest);
        if (const auto length = takeNumber(rest))
            return *length;
    }
    return 0;
}

// Behind "%%EOF" and one line end. Some writers leave an empty line more, or a line of blanks (sensitive to
// being changed by who sends them).
std::uint64_t PdfWalk::behindMark(std::uint64_t at) {
    const auto end = behindLineEnd(m_view, at + 5);
    if (isSectorStart(end))
        return end;
    const auto text = textAt(m_view, at + 5, kPdfMostBlanks);
    auto blanks = text.substr(0, text.find_first_not_of(" \t\r\n"));
    blanks = blanks.substr(0, blanks.find_last_of("\r\n") + 1);
    const auto lineEnd = static_cast<std::size_t>(end - (at + 5));
    const bool emptyLine =
        lineEnd != 0 && blanks.size() == 2 * lineEnd && blanks.substr(0, lineEnd) == blanks.substr(lineEnd);
    return emptyLine || blanks.size() >= lineEnd + kLeastBlanks ? at + 5 + blanks.size() : end;
}

// What the end mark at `at` is to this file, judged by the cross-reference position told before it.
PdfWalk::Mark PdfWalk::judge(std::uint64_t at) {
    const auto start = at < kLookBack ? 0 : at - kLookBack;
    auto before = textAt(m_view, start, static_cast<std::size_t>(at - start));
    const auto key = before.rfind("startxref");
    if (key == before.npos)
        return Mark::Foreign;
    before.remove_prefix(key + 9);
    skipSpaces(before);
    const auto target = takeNumber(before);
    if (!target || *target >= at)
        return Mark::Foreign;
    if (*target == 0)
        return Mark::Inner;  // the first section of a linearized file
    // Places count from the first byte, or from the head where something stands in front of it.
    if (!beginsSection(textAt(m_view, *target, kLookBack)) &&
        !beginsSection(textAt(m_view, m_lead + *target, kLookBack)))
        return Mark::Foreign;
    const auto behind = behindMark(at);
    if (m_linearized > behind + kLookBack)
        return Mark::Inner;
    return beginsUpdate(textAt(m_view, behind, kUpdateLead)) ? Mark::Inner : Mark::Last;
}

// Whether the end mark at `at` has one line end at most behind it, and no PDF that was joined to this one:
// further blanks are the file's or another's.
bool PdfWalk::isSureEnd(std::uint64_t at) {
    if (m_lastMark != behindLineEnd(m_view, at + 5))
        return false;
    return isSectorStart(m_lastMark) ||
           (!isTextSpace(m_view.u8(m_lastMark).value_or(0)) && !m_view.matches(m_lastMark, "%PDF-"));
}

// Another PDF at a sector's start, unless it is the content of a stream of ours.
bool PdfWalk::isForeignStart(std::uint64_t at) {
    if (!isSectorStart(at) || at < 16 || !m_view.matches(at, "%PDF-"))
        return false;
    return textAt(m_view, at - 16, 16).find("stream") == std::string_view::npos;
}

// The buffered text from `at` on, beside the little before it that judging an end mark takes.
std::string_view PdfWalk::stretch(std::uint64_t at) {
    const auto lead = static_cast<std::size_t>(std::min<std::uint64_t>(at, kLookBack));
    const auto bytes = m_view.window(at - lead, lead + kSeam);
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.substr(std::min(lead, text.size()));
}

// Remembers the last end of an object or stream in `text`, which stands at `at`.
void PdfWalk::noteSigns(std::uint64_t at, std::string_view text) {
    if (const auto sign = text.rfind("endobj"); sign != text.npos)
        m_lastSign = at + sign + 6;
    else if (const auto stream = text.rfind("endstream"); stream != text.npos)
        m_lastSign = at + stream + 9;
}

Extent PdfWalk::walk() {
    while (m_lead < kPdfMostLead && !m_view.matches(m_lead, "%PDF-"))
        ++m_lead;
    if (!m_view.matches(m_lead, "%PDF-"))
        return unknownExtent();
    m_linearized = linearizedLength();
    std::uint64_t at = m_lead + 5;
    if (m_linearized > kHeadBytes && m_linearized <= m_view.size()) {
        // Hop to the told end; when no end mark stands there the file was changed and is read through.
        const auto tail = textAt(m_view, m_linearized - 32, 32);
        const auto mark = tail.rfind("%%EOF");
        if (mark != tail.npos)
            at = m_linearized - 32 + mark;
        else
            m_linearized = 0;
    }
    m_lastSign = at;
    while (at < m_view.size()) {
        const auto text = stretch(at);
        if (text.empty())
            break;
        const auto word = findWord(text);
        noteSigns(at, text.substr(0, word));
        if (at > m_lastSign && at - m_lastSign > kPdfMostSilence)
            break;
        if (word == text.npos) {
            at += text.size() > kSeam ? text.size() - kSeam : text.size();  // a word may straddle the seam
            continue;
        }
        at += word;
        if (m_view.matches(at, "%%EOF")) {
            m_lastMark = behindMark(at);
            const Mark mark = judge(at);
            if (mark == Mark::Last) {
                const bool joined = m_view.matches(m_lastMark, "%PDF-");
                const auto words = joined ? m_lastMark : behindStrayText(m_view, m_lastMark);
                if (words != m_lastMark)
                    return completeAt(m_view, words);
                const Extent whole = completeAt(m_view, m_lastMark);
                return isSureEnd(at) && isRowOfPdfObjects(m_view, at, PdfTables::Hold) ? withContent(whole)
                                                                                       : whole;
            }
            m_lastMarkInner = mark == Mark::Inner;
        } else if (isForeignStart(at)) {
            m_lastSign = std::min(m_lastSign, at);  // signs behind are the other's
            break;
        }
        ++at;
    }
    // A table of places that is wrong, as hand-written files and changed line ends have it, and nothing of a
    // PDF behind the end mark. Where each object and stream ends where it says, nothing else is missing.
    const bool ended = m_lastMark != 0 && m_lastMark >= m_lastSign && m_linearized == 0 && !m_lastMarkInner;
    if (ended && isRowOfPdfObjects(m_view, m_lastMark, PdfTables::MayBeWrong))
        return completeAt(m_view, m_lastMark);
    if (ended && m_view.size() > m_lastMark + kUpdateLead)
        return spoiltUpTo(m_view, m_lastMark);
    const auto kept = std::max(m_lastMark, std::min(m_lastSign, m_view.size()));
    return at >= m_view.size() ? cutOffAt(m_view, m_lastMark != 0 ? kept : m_view.size())
                               : damagedAt(m_view, kept);
}

Extent walkPdf(ByteView& view) {
    return PdfWalk(view).walk();
}

}  // namespace

extern constexpr Format kPdf = {
    .name = "PDF",
    .group = Group::Documents,
    .walk = walkPdf,
    .extensions = " PDF AI ",
    .mayNotTellEnd = true,
};

}  // namespace vantor

// Byte by byte reading and the small questions that all walkers of text ask.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "formats/ByteView.h"

namespace vantor {

// Bytes of a view one by one. Asks the view for each, so that other reading may go on in between.
class TextReader {
  public:
    TextReader(ByteView& view, std::uint64_t at) : m_view(view), m_at(at) {}

    std::uint64_t at() const { return m_at; }
    // The next byte, or -1 at the end.
    int next() {
        const auto bytes = m_view.window(m_at);
        if (bytes.empty())
            return -1;
        ++m_at;
        return bytes.front();
    }
    void back() { --m_at; }
    void skip(std::uint64_t bytes) { m_at = addClamped(m_at, bytes); }

  private:
    ByteView& m_view;
    std::uint64_t m_at;
};

// A byte (or a sixteen-bit unit) that no text holds.
inline bool isControl(int unit) {
    return unit < 0x20 && unit != '\t' && unit != '\n' && unit != '\r' && unit != '\f';
}

// A control character, or the value of an erased sector, which is no letter in any usual encoding of markup.
inline bool isForeign(int byte) {
    return isControl(byte) || byte == 0xFF;
}

inline bool isTextSpace(int byte) {
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

// Position behind one line end of any kind at `at`, else `at`. A carriage return alone is one where the line
// before ends with one.
std::uint64_t behindLineEnd(ByteView& view, std::uint64_t at);
// The same behind an empty line that some writers leave after their last one.
std::uint64_t behindEmptyLine(ByteView& view, std::uint64_t at);
// The same behind all blanks and line ends, which editors leave behind the last mark; in the next sector
// only one before zeros.
std::uint64_t behindBlanks(ByteView& view, std::uint64_t at);
// Behind the remarks at `at` between `open` and `close`, each with the blanks that follow, so far as each
// begins before the next sector and is text to its end; else `at`.
std::uint64_t behindRemarks(ByteView& view, std::uint64_t at, std::string_view open, std::string_view close);
// Behind the words that a server, a mail program or an editor left behind a file's end at `at`: a dozen
// letters of ASCII and more; else `at`. What begins at a sector's start is another's.
std::uint64_t behindStrayText(ByteView& view, std::uint64_t at);
// Position behind a UTF-8 byte order mark at the beginning.
std::uint64_t behindByteOrderMark(ByteView& view);
// Whether `lower` stands at `at` in letters of either case.
bool matchesAnyCase(ByteView& view, std::uint64_t at, std::string_view lower);
// The number behind `name`, blanks and a sign at the beginning of a line; nothing for another line.
std::optional<std::uint64_t> numberBehind(ByteView& view, std::uint64_t at, std::string_view name);
// Where a text that runs from `from` ends: at the first control byte, or at the view's end.
std::uint64_t textEnd(ByteView& view, std::uint64_t from);

}  // namespace vantor

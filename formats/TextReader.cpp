// The questions that walkers of text share.
#include "formats/TextReader.h"

#include <algorithm>
#include <cctype>

namespace vantor {

namespace {

// Whether the line before `at` ends with the carriage return alone, as old systems wrote it; a text of one
// line may.
bool endsLinesWithReturns(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kLongLine = 1024;
    const auto least = at - std::min(at, kLongLine);
    while (at > least && view.u8(at - 1) != '\r' && view.u8(at - 1) != '\n')
        --at;
    return at == least || view.u8(at - 1) == '\r';
}

}  // namespace

std::uint64_t behindLineEnd(ByteView& view, std::uint64_t at) {
    const bool returns = view.u8(at) == '\r';
    if (view.u8(returns ? at + 1 : at) == '\n')
        return returns ? at + 2 : at + 1;
    return returns && endsLinesWithReturns(view, at) ? at + 1 : at;
}

std::uint64_t behindEmptyLine(ByteView& view, std::uint64_t at) {
    const auto end = behindLineEnd(view, at);
    const auto bytes = static_cast<std::size_t>(end - at);
    const bool again = bytes != 0 && !isSectorStart(end) && view.holds(end, bytes) &&
                       view.number(at, bytes, Endian::Big) == view.number(end, bytes, Endian::Big);
    return again ? end + bytes : end;
}

std::uint64_t behindBlanks(ByteView& view, std::uint64_t at) {
    constexpr std::size_t kZeros = 32;
    const auto isEmpty = [&](std::uint64_t from) {
        const auto bytes = view.window(from, kZeros);
        return bytes.size() >= kZeros &&
               std::all_of(bytes.begin(), bytes.begin() + kZeros, [](int byte) { return byte == 0; });
    };
    at = behindLineEnd(view, at);
    const auto least = at;
    while (isTextSpace(view.u8(at).value_or(0)) && (!isSectorStart(at) || isEmpty(at + 1)))
        ++at;
    // Of blanks that run into foreign bytes those behind the last line end are foreign too, more likely.
    if (!isSectorStart(at) && view.u8(at).value_or(0) != 0) {
        while (at > least && view.u8(at - 1) != '\n')
            --at;
    }
    return at;
}

std::uint64_t behindRemarks(ByteView& view, std::uint64_t at, std::string_view open, std::string_view close) {
    constexpr std::uint64_t kMostRemark = 4096;
    for (std::uint64_t end = at;;) {
        const auto limit = addClamped(end, kMostRemark);
        while (end < limit && isTextSpace(view.u8(end).value_or(0)))
            ++end;
        if (isSectorStart(end) || !view.matches(end, open))
            return at;
        for (end += open.size(); !view.matches(end, close); ++end) {
            const auto byte = view.u8(end);
            if (!byte || isForeign(*byte) || end > limit)
                return at;
        }
        end += close.size();
        at = behindBlanks(view, end);
    }
}

std::uint64_t behindStrayText(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kLeast = 12, kMost = 4096, kFewLetters = 3;
    if (isSectorStart(at))
        return at;
    const auto isAscii = [](int byte) { return isTextSpace(byte) || (byte > ' ' && byte < 0x7F); };
    auto end = at, line = at;
    std::uint64_t letters = 0;
    for (int byte = 0; end - at < kMost && isAscii(byte = view.u8(end).value_or(0));) {
        letters += isTextSpace(byte) ? 0 : 1;
        line = byte == '\n' ? end + 1 : line;
        ++end;
    }
    if (letters < kLeast)
        return at;
    // Foreign bytes may begin with some letters.
    return view.u8(end).value_or(0) != 0 && end - line <= kFewLetters && line != at ? line : end;
}

std::uint64_t behindByteOrderMark(ByteView& view) {
    return view.matches(0, "\xEF\xBB\xBF") ? 3 : 0;
}

bool matchesAnyCase(ByteView& view, std::uint64_t at, std::string_view lower) {
    const auto here = view.window(at, lower.size());
    return here.size() >= lower.size() &&
           std::equal(lower.begin(), lower.end(), here.begin(),
                      [](char a, int b) { return a == static_cast<char>(std::tolower(b)); });
}

std::uint64_t textEnd(ByteView& view, std::uint64_t from) {
    constexpr int kErased = 0xFF;  // two of them are an erased sector, not letters
    // By the window: a walk over every sector of a card that is one text asks for each byte thousands of
    // times.
    int last = 0;
    for (auto bytes = view.window(from); !bytes.empty(); bytes = view.window(from)) {
        for (const int byte : bytes) {
            if (byte == kErased && last == kErased)
                return from - 1;
            if (isControl(byte))
                return from;
            last = byte;
            ++from;
        }
    }
    return from;
}

std::optional<std::uint64_t> numberBehind(ByteView& view, std::uint64_t at, std::string_view name) {
    constexpr std::uint64_t kMost = 1ULL << 40;
    constexpr int kMostBlanks = 80;
    if (!view.matches(at, name))
        return std::nullopt;
    at += name.size();
    for (int blanks = 0; blanks < kMostBlanks && (view.u8(at) == ' ' || view.u8(at) == '-'); ++blanks)
        ++at;
    std::uint64_t value = 0;
    for (auto digit = view.u8(at); digit && *digit >= '0' && *digit <= '9' && value < kMost;
         digit = view.u8(++at))
        value = value * 10 + (*digit - '0');
    return value;
}

}  // namespace vantor

// Pictures of ImageMagick (MIFF): words that describe, a mark, colours, and rows where they are not packed.
// Source: the format's description by its authors.
#include <algorithm>
#include <string>

#include "formats/Format.h"

namespace vantor {

namespace {

// The head as text up to its mark; empty when it is none.
std::string headAt(ByteView& view, std::uint64_t at, std::uint64_t& behind) {
    constexpr std::size_t kMost = 8192;
    const auto bytes = view.window(at, kMost);
    std::string head(reinterpret_cast<const char*>(bytes.data()), std::min(bytes.size(), kMost));
    const auto mark = head.find(":\x1A");
    if (mark == head.npos)
        return {};
    behind = at + mark + 2;
    return head.substr(0, mark);
}

std::string_view valueOf(const std::string& head, std::string_view key) {
    for (auto at = head.find(key); at != head.npos; at = head.find(key, at + 1)) {
        if (at != 0 && head[at - 1] != ' ' && head[at - 1] != '\n')
            continue;
        const std::string_view rest = std::string_view(head).substr(at + key.size());
        return rest.substr(0, rest.find_first_of(" \n\r"));
    }
    return {};
}

std::uint64_t numberOf(const std::string& head, std::string_view key) {
    std::uint64_t number = 0;
    for (const char digit : valueOf(head, key)) {
        if (digit < '0' || digit > '9' || number > (1U << 24))
            break;
        number = number * 10 + static_cast<std::uint64_t>(digit - '0');
    }
    return number;
}

// Behind rows of runs: a pixel, and how often more it stands there.
std::uint64_t behindRuns(ByteView& view, std::uint64_t at, std::uint64_t columns, std::uint64_t rows,
                         std::uint64_t pixel) {
    for (std::uint64_t row = 0; row < rows; ++row) {
        for (std::uint64_t done = 0; done < columns;) {
            const auto more = view.u8(at + pixel);
            if (!more)
                return view.size() + 1;
            done += *more + std::uint64_t{1};
            at += pixel + 1;
        }
    }
    return at;
}

Extent walkMiff(ByteView& view) {
    constexpr std::uint64_t kMostSide = 1 << 20;
    std::uint64_t at = 0;
    std::uint64_t end = 0;
    Facts facts;
    // Pictures may follow each other.
    while (view.matches(end, "id=ImageMagick")) {
        const std::string head = headAt(view, end, at);
        const auto columns = numberOf(head, "columns="), rows = numberOf(head, "rows="),
                   depth = numberOf(head, "depth="), colours = numberOf(head, "colors=");
        if (head.empty() || columns == 0 || columns > kMostSide || rows == 0 || rows > kMostSide ||
            depth == 0 || depth > 64)
            return unknownExtent();
        facts.width = static_cast<std::uint32_t>(columns);
        facts.height = static_cast<std::uint32_t>(rows);
        const auto packing = valueOf(head, "compression=");
        const bool runs = packing == "RLE";
        if ((!packing.empty() && packing != "None" && !runs) || head.find("profile") != head.npos)
            return unknownExtent();
        const std::uint64_t sample = depth > 32 ? 8 : depth > 16 ? 4 : depth > 8 ? 2 : 1;
        const bool alpha = valueOf(head, "matte=") == "True" || valueOf(head, "alpha-trait=") == "Blend";
        const auto space = valueOf(head, "colorspace=");
        const bool grey = valueOf(head, "type=") == "Grayscale" || space == "Gray" || space == "LinearGray";
        std::uint64_t channels = (grey ? 1 : space == "CMYK" ? 4 : 3) + (alpha ? 1 : 0);
        if (valueOf(head, "class=") == "PseudoClass") {
            at += colours * 3 * sample;
            const std::uint64_t index = colours > 65536 ? 4 : colours > 256 ? 2 : 1;
            channels = index + (alpha ? sample : 0);
        } else {
            channels *= sample;
        }
        end = runs ? behindRuns(view, at, columns, rows, channels)
                   : addClamped(at, mulClamped(columns * rows, channels));
        if (end > view.size())
            return cutOffAt(view, view.size(), facts);
        if (isSectorStart(end))
            break;
    }
    return end != 0 ? completeAt(view, end, facts) : unknownExtent();
}

}  // namespace

extern constexpr Format kMiff = {
    .name = "MIFF",
    .group = Group::Pictures,
    .walk = walkMiff,
    .extensions = " MIFF ",
    .mayNotTellEnd = true,
};

}  // namespace vantor

// Gathers what the formats say of themselves.
#include "formats/Registry.h"

#include <algorithm>
#include <array>
#include <string>

#include "formats/TextReader.h"

namespace vantor {

namespace {

constexpr const Format* kFormats[] = {
#define FORMAT(constant) &constant,
#include "formats/Formats.inc"
#undef FORMAT
};

// Some programs leave a few bytes behind a file's last mark, a line end mostly. They are the file's where
// nothing but zeros follows them in their sector: what lay there before would fill it. Few zeros prove it of
// blanks alone, and where a sector begins another file may. Only that sector is read.
Extent withLeftBehind(ByteSource& source, Extent extent) {
    constexpr std::uint64_t kMost = 64, kLeastZeros = 32, kMostBlanks = 4, kFewZeros = 4;
    if (extent.verdict != Verdict::Complete || !extent.exactEnd)
        return extent;
    std::array<std::uint8_t, 512> sector;
    const std::uint64_t within = extent.end % sector.size(), left = sector.size() - within;
    if (left <= kFewZeros || source.read(extent.end - within, sector) < sector.size())
        return extent;
    const auto rest = std::span(sector).subspan(static_cast<std::size_t>(within));
    const auto last = std::find_if(rest.rbegin(), rest.rend(), [](std::uint8_t byte) { return byte != 0; });
    const auto zeros = static_cast<std::uint64_t>(last - rest.rbegin());
    const bool blanks = left - zeros <= kMostBlanks && std::all_of(last, rest.rend(), isTextSpace);
    const bool few = within != 0 && zeros >= kLeastZeros && left - zeros <= kMost;
    if (few || (blanks && zeros >= kFewZeros))
        extent.end += left - zeros;
    return extent;
}

}  // namespace

std::span<const Format* const> allFormats() {
    return kFormats;
}

const Format* formatFor(std::string_view extension) {
    if (extension.empty() || extension.find(' ') != extension.npos)
        return nullptr;
    std::string framed(1, ' ');
    framed.append(extension.substr(0, 16)).append(1, ' ');
    const auto serves = [&](const Format* format) {
        return format->extensions.find(framed) != std::string_view::npos;
    };
    const auto hit = std::find_if(std::begin(kFormats), std::end(kFormats), serves);
    return hit != std::end(kFormats) ? *hit : nullptr;
}

Extent walkAs(const Format& format, ByteView& view) {
    Extent extent = format.walk(view);
    extent.checked =
        extent.verdict == Verdict::Complete && extent.exactEnd && (extent.checked || format.checksContent);
    return extent;
}

Extent walk(std::string_view extension, ByteSource& source) {
    ByteView view(source);
    const Format* own = formatFor(extension);
    Extent extent;
    if (own != nullptr)
        extent = walkAs(*own, view);
    for (const Format* format : kFormats) {
        if (extent.verdict != Verdict::Unknown)
            break;
        if (format == own || !format->strongMagic)
            continue;
        // Facts stay when only the end could not be told.
        Extent other = walkAs(*format, view);
        if (other.verdict != Verdict::Unknown || other.facts.width != 0 || other.facts.taken)
            extent = other;
    }
    return withLeftBehind(source, extent);
}

}  // namespace vantor

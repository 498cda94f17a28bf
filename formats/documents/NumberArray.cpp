// Arrays of numbers (NPY): a line of text tells their type and shape. Source: NumPy's NPY format, versions 1
// to 3.
#include <algorithm>
#include <string_view>

#include "formats/Format.h"

namespace vantor {

namespace {

std::optional<std::uint64_t> takeDigits(std::string_view& text) {
    std::uint64_t value = 0;
    std::size_t digits = 0;
    for (; digits < text.size() && text[digits] >= '0' && text[digits] <= '9'; ++digits)
        value = addClamped(mulClamped(value, 10), static_cast<std::uint64_t>(text[digits] - '0'));
    text.remove_prefix(digits);
    return digits != 0 ? std::optional(value) : std::nullopt;
}

// What stands behind a key of the dictionary; nothing where there is no such key.
std::optional<std::string_view> valueOf(std::string_view text, std::string_view key) {
    const auto at = text.find(key);
    if (at == text.npos)
        return std::nullopt;
    text.remove_prefix(at + key.size());
    text.remove_prefix(std::min(text.find_first_not_of(": "), text.size()));
    return text;
}

// Bytes of one number, by a description such as '<f8'; nothing for records of several and for objects.
std::optional<std::uint64_t> numberBytes(std::string_view text) {
    constexpr std::string_view kOrders = "<>=|", kKinds = "biufcmMSVU";
    if (text.size() < 4 || text[0] != '\'' || kOrders.find(text[1]) == kOrders.npos ||
        kKinds.find(text[2]) == kKinds.npos)
        return std::nullopt;
    const std::uint64_t unit = text[2] == 'U' ? 4 : 1;
    text.remove_prefix(3);
    const auto bytes = takeDigits(text);
    return bytes ? std::optional(mulClamped(*bytes, unit)) : std::nullopt;
}

// How many numbers a shape such as (3, 4) holds, one for ().
std::optional<std::uint64_t> countOf(std::string_view text) {
    if (!text.starts_with('('))
        return std::nullopt;
    std::uint64_t count = 1;
    for (text.remove_prefix(1); !text.starts_with(')');) {
        const auto side = takeDigits(text);
        if (!side)
            return std::nullopt;
        count = mulClamped(count, *side);
        text.remove_prefix(std::min(text.find_first_not_of(", L"), text.size()));
    }
    return count;
}

Extent walkNumberArray(ByteView& view) {
    constexpr std::uint64_t kMostText = 64 * 1024;
    const auto version = view.u8(6).value_or(0);
    if (!view.matches(0, "\x93NUMPY") || version == 0 || version > 3)
        return unknownExtent();
    const std::uint64_t head = version == 1 ? 10 : 12;
    const auto told = version == 1 ? view.number(8, 2, Endian::Little) : view.number(8, 4, Endian::Little);
    if (!told || *told > kMostText)
        return unknownExtent();
    const auto bytes = view.window(head, static_cast<std::size_t>(*told));
    if (bytes.size() < *told)
        return cutOffAt(view, view.size());
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(*told));
    const auto description = valueOf(text, "'descr'"), shape = valueOf(text, "'shape'");
    const auto each = description ? numberBytes(*description) : std::nullopt;
    const auto count = shape ? countOf(*shape) : std::nullopt;
    if (!each || !count)
        return unknownExtent();
    return completeAt(view, addClamped(head + *told, mulClamped(*each, *count)));
}

}  // namespace

extern constexpr Format kNumberArray = {
    .name = "NPY",
    .group = Group::Documents,
    .walk = walkNumberArray,
    .extensions = " NPY ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

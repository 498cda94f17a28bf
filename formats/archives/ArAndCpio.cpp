// Archives of member after member: ar and cpio. Sources: ar(5), cpio(5).
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMostMembers = 1 << 20;

// `count` digits from `at`; nothing when one of them is none. Blanks may follow in decimal fields.
std::optional<std::uint64_t> digits(ByteView& view, std::uint64_t at, std::size_t count, unsigned base) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const auto byte = view.u8(at + i).value_or(0);
        if (byte == ' ' && base == 10 && i > 0)
            return value;
        const unsigned lower = byte | 0x20U;
        const unsigned digit = byte >= '0' && byte <= '9'     ? byte - '0'
                               : lower >= 'a' && lower <= 'f' ? lower - 'a' + 10
                                                              : base;
        if (digit >= base)
            return std::nullopt;
        value = value * base + digit;
    }
    return value;
}

struct CpioFields {
    std::uint64_t head, nameAt, sizeAt, align;
    std::size_t nameDigits, sizeDigits;
    unsigned base;
};
constexpr CpioFields kNewCpio{110, 94, 54, 4, 8, 8, 16};
constexpr CpioFields kOldCpio{76, 59, 65, 1, 6, 11, 8};

const CpioFields* cpioFieldsAt(ByteView& view, std::uint64_t at) {
    if (view.matches(at, "070701") || view.matches(at, "070702"))
        return &kNewCpio;
    return view.matches(at, "070707") ? &kOldCpio : nullptr;
}

// Behind the zeros that fill the block in which `at` lies; `at` when others stand there.
std::uint64_t behindPadding(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kBlock = 512;
    const auto rest = static_cast<std::size_t>((kBlock - at % kBlock) % kBlock);
    const auto bytes = view.window(at, rest);
    if (bytes.size() < rest)
        return at;
    const bool blank = std::all_of(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(rest),
                                   [](std::uint8_t byte) { return byte == 0; });
    return blank ? at + rest : at;
}

// Nothing marks the end: it is where no further member begins.
Extent walkAr(ByteView& view) {
    constexpr std::uint64_t kHead = 60;
    if (!view.matches(0, "!<arch>\n"))
        return unknownExtent();
    std::uint64_t at = 8;
    for (std::uint32_t members = 0; members < kMostMembers; ++members) {
        const auto bytes = digits(view, at + 48, 10, 10);
        if (!bytes || !view.matches(at + 58, "`\n"))
            return members == 0 ? unknownExtent() : inexact(completeAt(view, at));
        const std::uint64_t end = at + kHead + *bytes;
        if (end > view.size())
            return cutOffAt(view, view.size());
        at = *bytes % 2 != 0 && view.u8(end) == '\n' ? end + 1 : end;
    }
    return damagedAt(view, at);
}

// Ends with a member of a given name; writers may fill the last block with zeros.
Extent walkCpio(ByteView& view) {
    constexpr std::uint64_t kLongestName = 4096;
    std::uint64_t at = 0;
    for (std::uint32_t members = 0; members < kMostMembers; ++members) {
        const CpioFields* fields = cpioFieldsAt(view, at);
        const auto up = [&](std::uint64_t n) {
            return (n + fields->align - 1) / fields->align * fields->align;
        };
        const auto name =
            fields ? digits(view, at + fields->nameAt, fields->nameDigits, fields->base) : std::nullopt;
        const auto bytes =
            fields ? digits(view, at + fields->sizeAt, fields->sizeDigits, fields->base) : std::nullopt;
        if (!name || !bytes || *name == 0 || *name > kLongestName) {
            if (members == 0)
                return unknownExtent();
            return view.holds(at, kNewCpio.head) ? damagedAt(view, at) : cutOffAt(view, view.size());
        }
        const bool last = view.matches(at + fields->head, std::string_view("TRAILER!!!", 11));
        at = up(at + fields->head + *name);
        if (!last)
            at = up(addClamped(at, *bytes));
        if (at > view.size())
            return cutOffAt(view, view.size());
        if (last)
            return inexact(completeAt(view, behindPadding(view, at)));
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kAr = {
    .name = "ar",
    .group = Group::Archives,
    .walk = walkAr,
    .extensions = " A AR LIB DEB ",
};

extern constexpr Format kCpio = {
    .name = "cpio",
    .group = Group::Archives,
    .walk = walkCpio,
    .extensions = " CPIO ",
};

}  // namespace vantor

// Signals of bodies (EDF, and BDF of 24 bits): a head of letters tells how many records of how many numbers
// follow. Sources: B. Kemp and others, "European Data Format"; BioSemi's page on BDF.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kField = 8;  // letters of most numbers

// The number in letters at `at`, with blanks behind it; nothing where it is none.
std::optional<std::uint64_t> writtenNumber(ByteView& view, std::uint64_t at, std::uint64_t letters) {
    std::uint64_t value = 0;
    bool blank = false;
    for (std::uint64_t i = 0; i < letters; ++i) {
        const auto letter = view.u8(at + i).value_or(0);
        if (letter == ' ' && i != 0)
            blank = true;
        else if (letter >= '0' && letter <= '9' && !blank)
            value = value * 10 + letter - '0';
        else
            return std::nullopt;
    }
    return value;
}

Extent walkBioSignals(ByteView& view) {
    constexpr std::uint64_t kHead = 256, kSamplesAt = 216;
    const bool wide = view.matches(0,
                                   "\xFF"
                                   "BIOSEMI");
    if (!wide && !view.matches(0, "0       "))
        return unknownExtent();
    const auto head = writtenNumber(view, 184, kField), records = writtenNumber(view, 236, kField);
    const auto signals = writtenNumber(view, 252, 4);
    // A recorder that never came back to it left -1 for the records.
    if (!head || !records || !signals || *signals == 0 || *head != (*signals + 1) * kHead)
        return unknownExtent();
    std::uint64_t samples = 0;
    for (std::uint64_t i = 0; i < *signals; ++i) {
        const auto at = kHead + *signals * kSamplesAt + i * kField;
        if (!view.holds(at, kField))
            return cutOffAt(view, view.size());
        const auto each = writtenNumber(view, at, kField);
        if (!each)
            return damagedAt(view, kHead);
        samples += *each;
    }
    return completeAt(view, addClamped(*head, mulClamped(*records, samples * (wide ? 3 : 2))));
}

}  // namespace

extern constexpr Format kBioSignals = {
    .name = "EDF",
    .group = Group::Documents,
    .walk = walkBioSignals,
    .extensions = " EDF ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

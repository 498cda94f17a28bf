// Oktalyzer modules (OKT): chunks behind a mark; the last is that of the last sound that has a length.
// Source: public descriptions of the format.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkOktalyzer(ByteView& view) {
    constexpr std::string_view kKinds[] = {"CMOD", "SAMP", "SPEE", "SLEN", "PLEN", "PATT", "PBOD", "SBOD"};
    constexpr std::uint64_t kSound = 32;
    if (!view.matches(0, "OKTASONG"))
        return unknownExtent();
    std::uint64_t sounds = 0, bodies = 0;
    for (std::uint64_t at = 8;;) {
        if (at != 8 && sounds != 0 && bodies == sounds)
            return completeAt(view, at);
        bool known = false;
        for (const auto kind : kKinds)
            known = known || view.matches(at, kind);
        const auto bytes = view.be32(at + 4);
        if (!known)
            return view.holds(at, 8) ? damagedAt(view, at) : cutOffAt(view, view.size());
        if (!bytes)
            return cutOffAt(view, view.size());
        if (view.matches(at, "SBOD"))
            ++bodies;
        if (view.matches(at, "SAMP")) {
            for (std::uint64_t head = at + 8; head + kSound <= at + 8 + *bytes && view.holds(head, kSound);
                 head += kSound)
                sounds += view.be32(head + 20).value_or(0) != 0 ? 1 : 0;
        }
        at += 8 + std::uint64_t{*bytes};
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
}

}  // namespace

extern constexpr Format kOktalyzer = {
    .name = "Oktalyzer",
    .group = Group::Sounds,
    .walk = walkOktalyzer,
    .extensions = " OKT ",
};

}  // namespace vantor

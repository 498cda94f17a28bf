// Camera movies in blocks of a length and a name (R3D); the last is named as such. Source: REDCODE page of
// the "MultimediaWiki".
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkRedCode(ByteView& view) {
    if (!view.matches(4, "RED1") && !view.matches(4, "RED2"))
        return unknownExtent();
    for (std::uint64_t at = 0;;) {
        const auto bytes = view.be32(at);
        if (!bytes || !view.holds(at, 8))
            return cutOffAt(view, view.size());
        const bool known = view.matches(at + 4, "RE") || view.matches(at + 4, "RD");
        if (!known || *bytes < 8)
            return damagedAt(view, at);
        const bool last = view.matches(at + 4, "REOB");
        at += *bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
        if (last)
            return completeAt(view, at);
    }
}

}  // namespace

extern constexpr Format kRedCode = {
    .name = "REDCODE",
    .group = Group::Movies,
    .walk = walkRedCode,
    .extensions = " R3D ",
    .large = true,
};

}  // namespace vantor

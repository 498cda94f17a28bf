// Contacts (vCard) and calendars (iCalendar) by their last line. Sources: RFC 6350; RFC 5545.
#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

// Cards or calendars one behind the other.
Extent walkRecords(ByteView& view, std::string_view begin, std::string_view end) {
    std::uint64_t at = behindByteOrderMark(view);
    if (!matchesAnyCase(view, at, begin))
        return unknownExtent();
    std::uint64_t whole = 0;
    while (matchesAnyCase(view, at, begin)) {
        TextReader in(view, at);
        for (int last = '\n';;) {
            const auto here = in.at();
            if (last == '\n' && matchesAnyCase(view, here, end)) {
                at = whole = behindLineEnd(view, here + end.size());
                break;
            }
            last = in.next();
            if (last < 0)
                return cutOffAt(view, here);
            if (isForeign(last))
                return damagedAt(view, whole != 0 ? whole : here);
        }
    }
    return completeAt(view, whole);
}

Extent walkContacts(ByteView& view) {
    return inexact(
        walkRecords(view, "begin:vcard", "end:vcard"));  // how many cards there are is told nowhere
}

Extent walkCalendar(ByteView& view) {
    return walkRecords(view, "begin:vcalendar", "end:vcalendar");
}

}  // namespace

extern constexpr Format kVCard = {
    .name = "vCard",
    .group = Group::Documents,
    .walk = walkContacts,
    .extensions = " VCF VCARD ",
};

extern constexpr Format kICalendar = {
    .name = "iCalendar",
    .group = Group::Documents,
    .walk = walkCalendar,
    .extensions = " ICS IFB VCS ",
};

}  // namespace vantor

// Contacts (vCard) and calendars (iCalendar) by their last line. Sources: RFC 6350; RFC 5545.
#include <algorithm>
#include <iterator>

#include "formats/Format.h"
#include "formats/TextReader.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

// The name of the record that begins at `at`, in small letters; empty where none of these does.
template <typename Names>
std::string_view recordAt(ByteView& view, std::uint64_t at, const Names& names) {
    constexpr std::string_view kBegin = "begin:";
    if (!matchesAnyCase(view, at, kBegin))
        return {};
    const auto name = std::find_if(std::begin(names), std::end(names), [&](std::string_view each) {
        return matchesAnyCase(view, at + kBegin.size(), each);
    });
    return name != std::end(names) ? *name : std::string_view();
}

// Cards or calendars one behind the other. Some writers leave empty lines in front.
template <typename Names>
Extent walkRecords(ByteView& view, const Names& names) {
    constexpr std::uint64_t kMostLead = 64;
    constexpr std::string_view kEnd = "end:";
    std::uint64_t at = behindByteOrderMark(view);
    for (std::uint64_t lead = 0; lead < kMostLead && isTextSpace(view.u8(at).value_or(0)); ++lead)
        ++at;
    std::uint64_t whole = 0;
    for (auto name = recordAt(view, at, names); !name.empty(); name = recordAt(view, at, names)) {
        TextReader in(view, at);
        for (int last = '\n';;) {
            const auto here = in.at();
            if (last == '\n' && matchesAnyCase(view, here, kEnd) &&
                matchesAnyCase(view, here + kEnd.size(), name)) {
                whole = behindEmptyLine(view, here + kEnd.size() + name.size());
                at = behindBlanks(view, whole);
                break;
            }
            last = in.next();
            if (last < 0)
                return cutOffAt(view, here);
            if (isForeign(last))
                return damagedAt(view, whole != 0 ? whole : here);
        }
    }
    return whole != 0 ? completeAt(view, whole) : unknownExtent();
}

Extent walkContacts(ByteView& view) {
    constexpr std::string_view kCards[] = {"vcard"};
    if (view.matches(0, "##fileformat=VCF"))  // variants of genes, which have the same ending
        return walkText(view);
    return inexact(walkRecords(view, kCards));  // how many cards there are is told nowhere
}

// Entries are also kept and sent without the calendar round them; how many there are is told nowhere then.
Extent walkCalendar(ByteView& view) {
    constexpr std::string_view kCalendars[] = {"vcalendar"};
    constexpr std::string_view kEntries[] = {"vevent",    "vtodo",     "vjournal",
                                             "vtimezone", "vfreebusy", "valarm"};
    const Extent calendars = walkRecords(view, kCalendars);
    return calendars.verdict != Verdict::Unknown ? calendars : inexact(walkRecords(view, kEntries));
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

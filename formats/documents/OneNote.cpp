// OneNote sections and their contents. Source: [MS-ONESTORE].
#include "formats/ToldLength.h"

namespace vantor {

namespace {

// Sections that come from a server are packed in another way and tell no length.
constexpr ToldLength::Mark kRevisionStore = {
    48, "\x3F\xDD\x9A\x10\x1B\x91\xF5\x49\xA5\xD0\x17\x91\xED\xC8\xAE\xD8"};

constexpr ToldLength kOneNoteForms[] = {
    {{0, "\xE4\x52\x5C\x7B\x8C\xD8\xA7\x4D\xAE\xB1\x53\x78\xD0\x29\x96\xD3"},
     kRevisionStore,
     196,
     8,
     Endian::Little,
     1024},
    {{0, "\xA1\x2F\xFF\x43\xD9\xEF\x76\x4C\x9E\xE2\x10\xEA\x57\x22\x76\x5F"},
     kRevisionStore,
     196,
     8,
     Endian::Little,
     1024},
};

}  // namespace

extern constexpr Format kOneNote = {
    .name = "OneNote",
    .group = Group::Documents,
    .walk = walkToldLength<kOneNoteForms>,
    .extensions = " ONE ONETOC2 ",
    .mayNotTellEnd = true,
};

}  // namespace vantor

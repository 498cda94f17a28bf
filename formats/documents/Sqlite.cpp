// SQLite databases. Source: SQLite file format.
#include "formats/Format.h"
#include "formats/documents/SqlitePages.h"

namespace vantor {

namespace {

Extent walkSqlite(ByteView& view) {
    if (!view.matches(0, std::string_view("SQLite format 3\0", 16)))
        return unknownExtent();
    std::uint64_t page = view.be16(16).value_or(0);
    if (page == 1)
        page = 65536;
    if (page < 512 || (page & (page - 1)) != 0)
        return damagedAt(view, 16);
    const auto changes = view.be32(24), pages = view.be32(28), validFor = view.be32(92);
    // Writers before 3.7.0 leave the count alone; it is valid only when both counters agree.
    if (!pages || *pages == 0 || changes != validFor) {
        const PageCensus census = countPages(view, page, 0);
        return census.outcome == PageCensus::Outcome::Sound
                   ? withContent(completeAt(view, page * census.pages))
                   : unknownExtent();
    }
    const Extent whole = completeAt(view, page * *pages);
    if (whole.verdict != Verdict::Complete)
        return whole;
    switch (countPages(view, page, *pages).outcome) {
        case PageCensus::Outcome::Sound:
            return withContent(whole);
        case PageCensus::Outcome::Broken:
            return spoiltUpTo(view, whole.end);
        case PageCensus::Outcome::Silent:
            break;
    }
    return whole;
}

}  // namespace

extern constexpr Format kSqlite = {
    .name = "SQLite",
    .group = Group::Documents,
    .walk = walkSqlite,
    .extensions = " SQLITE SQLITE3 DB3 GPKG MBTILES ",
    .large = true,
};

}  // namespace vantor

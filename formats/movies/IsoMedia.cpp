// MP4, QuickTime, 3GP, HEIF, AVIF, CR3: top-level boxes, hopped over by their size, to the first thing that
// is none. Sources: ISO/IEC 14496-12, QuickTime File Format.
#include <algorithm>
#include <array>
#include <vector>

#include "formats/Among.h"
#include "formats/Format.h"
#include "formats/IsoBox.h"
#include "formats/IsoSamples.h"

namespace vantor {

namespace {

// The last ones are a phone's notes and the movie behind a picture, and what action cameras, recorders and
// drones leave behind a movie. Source of these: ExifTool's public tables of QuickTime tags.
constexpr std::array<std::string_view, 34> kTopLevelNames = {
    "ftyp", "moov", "mdat", "free", "skip", "wide", "pnot", "PICT", "uuid", "moof", "mfra", "sidx",
    "ssix", "styp", "meta", "prft", "emsg", "pdin", "udta", "junk", "meco", "imda", "idat", "thum",
    "mfro", "bloc", "prev", "sefd", "mpvd", "inst", "ardt", "frea", "gps ", "GPS "};

// Boxes that can stand first in a file of this family.
constexpr std::array<std::string_view, 10> kFirstNames = {"ftyp", "moov", "mdat", "wide", "free",
                                                          "skip", "pnot", "styp", "sidx", "moof"};

constexpr std::uint32_t kIsoMediaMostBoxes = 1 << 20;
constexpr std::uint32_t kMostFillers = 64;  // in front of anything else
constexpr std::size_t kMostData = 1 << 14;  // media data boxes of a file whose content is checked

bool isNameLike(std::string_view name) {
    return std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ' ||
               c == '_';
    });
}

struct Seen {
    bool index = false;  // moov or meta: what makes the data readable
    bool movieIndex = false;
    bool data = false;
    bool fragment = false;
    bool fragmentIndex = false;   // mfra, which stands behind the last of them
    bool opensFragments = false;  // the movie leaves its data to fragments, perhaps of other files
    bool type = false;
    std::uint64_t dataEnd = 0;  // how far a picture's items reach; 0 = nowhere outside their index

    bool any() const { return type || index || data || fragment; }
    bool whole(std::uint64_t end) const {
        const bool movie = movieIndex ? data || (opensFragments && !isSectorStart(end)) : index;
        return (movie || (fragment && data)) && end >= dataEnd;
    }
};

struct IsoWalk {
    std::uint64_t at = 0;  // behind the last box
    Seen seen;
    bool openEnded = false;  // the last box claims the rest of the medium
    bool cut = false;
    std::optional<IsoBox> movie, pictures;
    std::vector<DataPlace> data;
    std::vector<IsoBox> fragments;
    Facts facts;
};

// Whether a box of that name stands right inside `outer`.
bool holdsBox(ByteView& view, const IsoBox& outer, std::string_view name) {
    for (auto inner = readIsoBox(view, outer.body);
         inner && inner->end > inner->at && inner->end <= outer.end; inner = readIsoBox(view, inner->end)) {
        if (inner->text() == name)
            return true;
    }
    return false;
}

IsoWalk walkBoxes(ByteView& view, std::uint64_t start, bool wantFacts) {
    IsoWalk walk;
    walk.at = start;
    for (std::uint32_t boxes = 0; boxes < kIsoMediaMostBoxes; ++boxes) {
        const auto box = readIsoBox(view, walk.at);
        if (!box)
            return walk;
        const std::string_view name = box->text();
        const bool known = walk.at == start ? isAmong(kFirstNames, name) : isAmong(kTopLevelNames, name);
        // A box of a maker's own is believed while the file still lacks something, not behind a whole one.
        if (!known && (walk.at == start || walk.seen.whole(walk.at) || !isNameLike(name)))
            return walk;
        const bool another = name == "ftyp" || (name == "styp" && isSectorStart(walk.at));
        if (another && walk.at != start)
            return walk;  // the next file
        // "To the end of the file": of a picture, its items tell where that is.
        if (box->toEnd && name == "mdat" && walk.seen.dataEnd > box->body) {
            walk.seen.data = true;
            walk.cut = walk.seen.dataEnd > view.size();
            walk.at = std::min(walk.seen.dataEnd, view.size());
            return walk;
        }
        if (box->toEnd) {
            walk.openEnded = name == "mdat" || walk.at == start;
            return walk;
        }
        if (boxes == kMostFillers && !walk.seen.any())
            return walk;
        walk.seen.type = walk.seen.type || name == "ftyp";
        walk.seen.movieIndex = walk.seen.movieIndex || name == "moov";
        walk.seen.index = walk.seen.index || name == "moov" || name == "meta";
        walk.seen.data = walk.seen.data || name == "mdat" || name == "imda";
        walk.seen.fragment = walk.seen.fragment || name == "moof";
        walk.seen.fragmentIndex = walk.seen.fragmentIndex || name == "mfra";
        if (wantFacts && (name == "moov" || name == "meta"))
            walk.seen.dataEnd = std::max(walk.seen.dataEnd, addIsoFacts(view, *box, walk.facts));
        if (name == "moov") {
            walk.movie = box;
            walk.seen.opensFragments = holdsBox(view, *box, "mvex");
        }
        if (name == "meta")
            walk.pictures = box;
        else if (name == "mdat" && walk.data.size() < kMostData)
            walk.data.push_back({box->body, box->end});
        else if (name == "moof" && walk.fragments.size() < kMostData)
            walk.fragments.push_back(*box);
        if (box->end > view.size()) {
            walk.cut = true;
            return walk;
        }
        walk.at = box->end;
    }
    return walk;
}

// Of the movie or of the pictures.
ContentCheck checkContent(ByteView& view, const IsoWalk& walk) {
    if (walk.data.size() == kMostData || walk.fragments.size() == kMostData)
        return {};
    if (walk.seen.fragment)
        return checkFragments(view, walk.movie, walk.fragments, walk.data);
    if (walk.movie)
        return checkSamples(view, *walk.movie, walk.data);
    return walk.pictures ? checkItems(view, *walk.pictures) : ContentCheck{};
}

Extent walkIsoMedia(ByteView& view) {
    const IsoWalk walk = walkBoxes(view, 0, true);
    if (walk.openEnded) {  // allowed in a file, meaningless on a medium
        Extent extent = unknownExtent();
        extent.facts = walk.facts;
        return extent;
    }
    if (walk.cut)
        return walk.seen.type || walk.at != 0 ? cutOffAt(view, view.size(), walk.facts) : unknownExtent();
    if (walk.at == 0 || (!walk.seen.type && !walk.seen.index && !walk.seen.data))
        return unknownExtent();
    if (!walk.seen.whole(walk.at)) {
        if (walk.at == view.size())
            return cutOffAt(view, walk.at, walk.facts);
        // An index alone, as programs leave it behind. What took the place of a lost rest would begin at a
        // sector's start.
        return walk.seen.index && walk.seen.dataEnd == 0 && !isSectorStart(walk.at)
                   ? spoiltUpTo(view, walk.at, walk.facts)
                   : damagedAt(view, walk.at, walk.facts);
    }
    if (!walk.seen.data && walk.seen.opensFragments)  // what fragments elsewhere go on from
        return inexact(completeAt(view, walk.at, walk.facts));
    const ContentCheck check = checkContent(view, walk);
    if (check.outcome == ContentCheck::Outcome::Broken)
        return spoiltUpTo(view, walk.at, walk.facts);
    const Extent extent = completeAt(view, walk.at, walk.facts);
    // Nothing else tells that no fragment followed the last one.
    const bool lastKnown = !walk.seen.fragment || walk.seen.fragmentIndex;
    if (check.outcome != ContentCheck::Outcome::Sound || !lastKnown)
        return extent;
    return withFrames(extent);
}

}  // namespace

std::uint64_t endOfIsoBoxes(ByteView& view, std::uint64_t start) {
    return std::min(walkBoxes(view, start, false).at, view.size());
}

extern constexpr Format kIsoMedia = {
    .name = "ISO media",
    .group = Group::Movies,
    .walk = walkIsoMedia,
    .extensions =
        " MP4 MOV QT 3GP 3G2 3GPP M4A M4B M4V M4P F4V F4A CR3 CRM HEIC HEIF HIF AVIF AVIFS INSV "
        "LRV GLV MQV AAX DVB ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

// JPEG: segments by their length, entropy data marker by marker, to the end of the last picture in the file.
// Sources: ITU-T T.81 annex B; CIPA DC-007 (multi-picture format).
#include <algorithm>

#include "formats/IsoBox.h"
#include "formats/PartOfView.h"
#include "formats/Registry.h"
#include "formats/TextReader.h"
#include "formats/TiffDirectory.h"
#include "formats/pictures/JpegScan.h"
#include "formats/pictures/MakerTrailer.h"

namespace vantor {

namespace {

constexpr std::uint8_t kEoi = 0xD9;
constexpr std::uint8_t kSos = 0xDA;
constexpr std::uint8_t kLosslessFrame = 0xF7;  // of JPEG-LS

// Coded pictures hold an 0xFF every 256 bytes on average. A stretch this long without one is foreign (zeros,
// text) unless the picture goes on properly behind it, as blank areas can.
constexpr std::uint64_t kSuspiciousRun = 8 * 1024;
// Beyond this nobody goes on looking.
constexpr std::uint64_t kJpegHopelessRun = 4 * 1024 * 1024;
constexpr std::uint64_t kMostFillBytes = 64;       // 0xFF before a marker
constexpr std::uint64_t kMostSegmentPadding = 64;  // stray bytes some writers leave between segments
constexpr std::uint64_t kMostPictures = 64;        // of a multi-picture file
constexpr std::uint64_t kExifHeaderBytes = 6;

class JpegWalk {
  public:
    JpegWalk(ByteView& view, std::uint64_t start) : m_view(view), m_start(start), m_at(start + 2) {}

    Extent walkPicture();
    Extent walkFile();

  private:
    enum class Step { Next, End, Cut, Broken };

    Step segment();
    Step scan();
    void application(std::uint8_t marker, std::uint64_t at, std::uint64_t length);
    Extent furtherPictures();
    Extent picturesDirectlyBehind(Extent extent);
    void judgeScan(std::uint64_t head, std::uint64_t from);
    std::optional<Extent> motionPhoto();

    ByteView& m_view;
    const std::uint64_t m_start;
    std::uint64_t m_at;
    std::uint64_t m_suspect = 0;       // start of the first suspicious run in the scan; 0 = none
    std::uint64_t m_multiPicture = 0;  // base of the multi-picture index; 0 = none
    bool m_sawFrame = false;
    bool m_stuffsBits = false;  // a frame of JPEG-LS
    bool m_sawScan = false;
    bool m_sawMotionNote = false;
    bool m_seesAround = false;  // was taken by a camera that sees all around
    JpegScan m_scan;
    bool m_scansSound = true;   // so far as they could be judged
    bool m_scansJudged = true;  // all of them
    Facts m_facts;
};

bool isFrame(std::uint8_t marker) {
    return (marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) ||
           marker == kLosslessFrame;
}

// Tables, applications, comments, JPEG-LS parameters.
bool isTable(std::uint8_t marker) {
    return marker == 0xC4 || marker == 0xCC || (marker >= 0xDB && marker <= 0xEF) || marker == 0xF8 ||
           marker == 0xFE;
}

bool holdsText(ByteView& view, std::uint64_t at, std::uint64_t bytes, std::string_view text) {
    const auto to = addClamped(at, bytes);
    auto first = view.find(static_cast<std::uint8_t>(text[0]), at, to);
    while (first.found() && !view.matches(first.at, text))
        first = view.find(static_cast<std::uint8_t>(text[0]), first.at + 1, to);
    return first.found();
}

void JpegWalk::application(std::uint8_t marker, std::uint64_t at, std::uint64_t length) {
    if (marker == 0xE1 && m_view.matches(at, std::string_view("Exif\0\0", kExifHeaderBytes))) {
        Facts exif;
        addTiffFacts(m_view, at + kExifHeaderBytes, exif);
        if (!m_facts.taken)
            m_facts.taken = exif.taken;
        m_seesAround = m_seesAround || holdsText(m_view, at, length, "Insta360");
    } else if (marker == 0xE2 && m_view.matches(at, std::string_view("MPF\0", 4))) {
        m_multiPicture = at + 4;
    } else if (marker == 0xE1 && m_view.matches(at, "http://ns.adobe.com/xap/1.0/")) {
        const auto text =
            m_view.window(at, static_cast<std::size_t>(std::min<std::uint64_t>(length, 32 * 1024)));
        const std::string_view xmp(reinterpret_cast<const char*>(text.data()),
                                   static_cast<std::size_t>(std::min<std::uint64_t>(text.size(), length)));
        m_sawMotionNote = xmp.find("MotionPhoto") != xmp.npos || xmp.find("MicroVideo") != xmp.npos;
    }
}

JpegWalk::Step JpegWalk::segment() {
    std::uint64_t at = m_at;
    if (!m_sawScan) {
        const auto limit = at + kMostSegmentPadding;
        while (at < limit && m_view.u8(at).value_or(0xFF) != 0xFF)
            ++at;
    }
    const auto lead = m_view.u8(at);
    if (!lead)
        return Step::Cut;
    if (*lead != 0xFF)
        return Step::Broken;
    const auto limit = at + kMostFillBytes;
    while (at < limit && m_view.u8(at + 1) == 0xFF)
        ++at;
    const auto marker = m_view.u8(at + 1);
    if (!marker)
        return Step::Cut;
    if (*marker == kEoi) {
        if (!m_sawScan)
            return Step::Broken;
        m_at = at + 2;
        return Step::End;
    }
    if (*marker != kSos && !isTable(*marker) && !isFrame(*marker))
        return Step::Broken;
    const auto length = m_view.be16(at + 2);
    if (!length)
        return Step::Cut;
    if (*length < 2)
        return Step::Broken;
    const std::uint64_t body = at + 4;
    const std::uint64_t end = at + 2 + *length;
    if (isFrame(*marker) && !m_sawFrame) {
        m_sawFrame = true;
        m_stuffsBits = *marker == kLosslessFrame;
        m_facts.height = m_view.be16(body + 1).value_or(0);
        m_facts.width = m_view.be16(body + 3).value_or(0);
    }
    if (isFrame(*marker))
        m_scan.frame(m_view, *marker, body);
    else if (*marker == 0xC4)
        m_scan.huffmanTables(m_view, body, *length - 2U);
    else if (*marker == 0xDD)
        m_scan.restartInterval(m_view.be16(body).value_or(0));
    if (*marker >= 0xE0 && *marker <= 0xEF)
        application(*marker, body, *length - 2U);
    if (end > m_view.size())
        return Step::Cut;
    m_at = end;
    if (*marker != kSos)
        return Step::Next;
    if (!m_sawFrame)
        return Step::Broken;
    m_sawScan = true;
    const Step step = scan();
    if (step == Step::Next)
        judgeScan(body, end);
    return step;
}

// The codes of a scan that ended at a marker, m_at.
void JpegWalk::judgeScan(std::uint64_t head, std::uint64_t from) {
    const auto outcome = m_scan.judge(m_view, head, from, m_at);
    m_scansSound = m_scansSound && outcome != JpegScan::Outcome::Broken;
    m_scansJudged = m_scansJudged && outcome != JpegScan::Outcome::NotJudged;
}

// From the first entropy-coded byte to the marker that ends the scan.
JpegWalk::Step JpegWalk::scan() {
    int restart = -1;
    for (;;) {
        const auto search = m_view.find(0xFF, m_at, std::min(m_view.size(), m_at + kJpegHopelessRun));
        const auto hit = search.at;
        if (hit - m_at >= kSuspiciousRun && m_suspect == 0)
            m_suspect = m_at;
        if (hit - m_at >= kJpegHopelessRun)
            return Step::Broken;
        m_at = hit;
        const auto next = search.found() ? m_view.u8(hit + 1) : std::nullopt;
        if (!next)
            return Step::Cut;
        // Behind 0xFF, JPEG-LS stuffs a bit where JPEG stuffs a byte (ITU-T T.87, A.1).
        if (*next == 0 || (m_stuffsBits && *next < 0x80)) {
            m_at = hit + 2;
            continue;
        }
        if (*next >= 0xD0 && *next <= 0xD7) {
            const int number = *next - 0xD0;
            if (restart >= 0 && number != (restart + 1) % 8)
                return Step::Broken;
            restart = number;
            m_at = hit + 2;
            continue;
        }
        if (*next == 0xFF) {
            std::uint64_t at = hit + 1;
            while (at - hit < kMostFillBytes && m_view.u8(at + 1) == 0xFF)
                ++at;
            if (at - hit >= kMostFillBytes)
                return Step::Broken;
            m_at = at;  // the last 0xFF may begin a stuffed byte or a marker: look again
            continue;
        }
        return Step::Next;  // judged as a segment
    }
}

// Walks the pictures that the multi-picture index lists behind the first.
Extent JpegWalk::furtherPictures() {
    constexpr std::uint16_t kTagEntries = 0xB002;
    constexpr std::uint64_t kEntryBytes = 16;
    Extent extent = withContent(completeAt(m_view, m_at, m_facts));
    const auto header = readTiffHeader(m_view, m_multiPicture);
    if (!header)
        return extent;
    const auto directory =
        readTiffDirectory(m_view, *header, addClamped(header->base, header->firstDirectory));
    for (std::uint64_t i = 0; directory && i < directory->entries; ++i) {
        const auto entry = readTiffEntry(m_view, *header, *directory, i);
        if (!entry || entry->tag != kTagEntries)
            continue;
        const auto pictures = std::min(entry->valueBytes / kEntryBytes, kMostPictures);
        for (std::uint64_t picture = 1; picture < pictures; ++picture) {
            Cursor in(m_view, entry->valueAt + picture * kEntryBytes + 8, header->endian);
            const std::uint64_t at = header->base + in.u32();
            // Editors strip the further pictures and leave the index: believe only what is there.
            if (!in.ok() || at < extent.end || !m_view.matches(at, "\xFF\xD8\xFF"))
                continue;
            const Extent further = JpegWalk(m_view, at).walkPicture();
            extent.verdict = further.verdict;
            extent.end = further.end;
            extent.checked = extent.checked && further.checked;
            extent.endFound = further.endFound;
            if (further.verdict != Verdict::Complete)
                return extent;
        }
        break;
    }
    return extent;
}

// What a camera put behind the picture: a trailer, or a short movie, either at once or inside a named block
// of a maker's trailer.
std::optional<Extent> JpegWalk::motionPhoto() {
    constexpr std::string_view kBlockName = "MotionPhoto_Data";
    std::uint64_t at = m_at;
    auto trailer = endOfMakerTrailer(m_view, at);
    if (trailer == 0)
        trailer = endOfRecipeTrailer(m_view, at);
    if (trailer == 0)
        trailer = endOfPhoneNotes(m_view, at);
    if (trailer == 0)
        trailer = endOfConcatenatedNotes(m_view, at);
    if (trailer != 0)
        return withContent(completeAt(m_view, trailer, m_facts));
    const auto sphere = m_seesAround ? endOfSphereTrailer(m_view, at) : 0;
    if (sphere != 0)
        return completeAt(m_view, sphere, m_facts);
    if (m_view.matches(at + 8, kBlockName))
        at += 8 + kBlockName.size();
    else if (!m_sawMotionNote && isSectorStart(at))
        return std::nullopt;  // a movie at a sector's start may be the next file
    if (!m_view.matches(at + 4, "ftyp"))
        return std::nullopt;
    const std::uint64_t movieEnd = endOfIsoBoxes(m_view, at);
    if (movieEnd <= at)
        return std::nullopt;
    PartOfView part(m_view, at, movieEnd);
    ByteView inside(part);
    const Extent movie = walkAs(kIsoMedia, inside);
    if (movie.verdict != Verdict::Complete && movie.endFound)
        return spoiltUpTo(m_view, at + movie.end, m_facts);
    if (movie.verdict != Verdict::Complete || at + movie.end != movieEnd)
        return damagedAt(m_view, at + movie.end, m_facts);
    // The maker's trailer of a block ends with these four bytes, close behind the movie.
    constexpr std::uint64_t kTrailerReach = 4096;
    std::uint64_t end = movieEnd;
    for (auto sign = movieEnd; at != m_at && end == movieEnd && sign < movieEnd + kTrailerReach; ++sign)
        end = m_view.matches(sign, "SEFT") ? sign + 4 : end;
    const Extent whole = completeAt(m_view, end, m_facts);
    return !movie.checked ? whole : movie.framesOnly ? withFrames(whole) : withContent(whole);
}

// One picture from SOI to EOI.
Extent JpegWalk::walkPicture() {
    if (!m_view.matches(m_start, "\xFF\xD8\xFF"))
        return unknownExtent();
    Step step = Step::Next;
    while (step == Step::Next)
        step = segment();
    if (step == Step::End && !m_scansSound)
        return spoiltUpTo(m_view, m_at, m_facts);
    if (step == Step::End) {
        const Extent whole = completeAt(m_view, m_at, m_facts);
        return m_scansJudged ? withContent(whole) : whole;
    }
    if (m_suspect != 0)
        return damagedAt(m_view, m_suspect, m_facts);
    return step == Step::Cut ? cutOffAt(m_view, m_at, m_facts) : damagedAt(m_view, m_at, m_facts);
}

// Pictures that follow at once, as maps of brightness or depth and the frames of a bare movie do, belong to
// the file though no index lists them. What begins at a sector's start is the next file.
Extent JpegWalk::picturesDirectlyBehind(Extent extent) {
    while (extent.verdict == Verdict::Complete && !isSectorStart(extent.end) &&
           m_view.matches(extent.end, "\xFF\xD8\xFF")) {
        const Extent further = JpegWalk(m_view, extent.end).walkPicture();
        if (further.verdict == Verdict::Unknown)
            break;
        extent.verdict = further.verdict;
        extent.end = further.end;
        extent.checked = extent.checked && further.checked;
        extent.endFound = further.endFound;
    }
    return extent;
}

Extent JpegWalk::walkFile() {
    const Extent first = walkPicture();
    if (first.verdict != Verdict::Complete)
        return first;
    Extent all = first;
    if (m_multiPicture != 0) {
        all = furtherPictures();
        all.checked = all.checked && first.checked;
    }
    all = picturesDirectlyBehind(all);
    if (all.verdict != Verdict::Complete)
        return all;
    m_at = all.end;
    if (auto motion = motionPhoto()) {
        motion->checked = motion->checked && all.checked;
        return *motion;
    }
    // Some programs write the end mark twice.
    if (!isSectorStart(all.end) && m_view.matches(all.end, "\xFF\xD9"))
        all.end += 2;
    const auto words = behindStrayText(m_view, all.end);
    const bool lineEnd = !isSectorStart(all.end) && m_view.matches(all.end, "\r\n");
    all.end = words == all.end && lineEnd ? all.end + 2 : words;
    return all;
}

Extent walkJpeg(ByteView& view) {
    return JpegWalk(view, 0).walkFile();
}

}  // namespace

extern constexpr Format kJpeg = {
    .name = "JPEG",
    .group = Group::Pictures,
    .walk = walkJpeg,
    .extensions = " JPG JPEG JPE JFIF JIF JLS MPO THM INSP ",
};

}  // namespace vantor

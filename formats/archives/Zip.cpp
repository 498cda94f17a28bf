// ZIP and everything that is one (office documents, e-books, packages): entries, central directory, end
// record. Source: PKWARE APPNOTE 6.3.10; Android package signature block v2.
#include <algorithm>

#include "formats/Crc.h"
#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

constexpr std::uint32_t kLocal = 0x04034B50;
constexpr std::uint32_t kZipDescriptor = 0x08074B50;
constexpr std::uint32_t kCentral = 0x02014B50;
constexpr std::uint32_t kZipEnd = 0x06054B50;
constexpr std::uint32_t kEnd64 = 0x06064B50;
constexpr std::uint32_t kLocator64 = 0x07064B50;
constexpr std::uint32_t kExtraData = 0x08064B50;
constexpr std::uint32_t kSpanned = 0x30304B50;
constexpr std::uint32_t kIn64 = 0xFFFFFFFF;  // the real number stands in the 64-bit extra field
constexpr std::uint64_t kMostStoredScan = 256 * 1024 * 1024;

// Contents up to these sizes are unpacked to prove them; beyond, the structure alone is judged.
constexpr std::uint64_t kMostProved = 64 * 1024 * 1024;
constexpr std::uint64_t kMostProvedInAll = 256 * 1024 * 1024;

struct LocalEntry {
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint32_t crc = 0;
    std::uint64_t packed = 0;
    std::uint64_t unpacked = 0;
    std::uint64_t data = 0;  // position of the packed bytes
    bool wide = false;       // 64-bit sizes
    bool named = false;

    bool encrypted() const { return (flags & 1) != 0; }
    bool sizesFollow() const { return (flags & 8) != 0; }
};

class ZipWalk {
  public:
    explicit ZipWalk(ByteView& view) : m_view(view) {}

    Extent walk();

  private:
    enum class Step { Next, Cut, Broken };

    std::optional<LocalEntry> readLocal();
    Step local();
    Step followData(const LocalEntry& entry);
    Step searchDescriptor(const LocalEntry& entry);
    bool skipDescriptor(const LocalEntry& entry);
    bool behindUntoldName();
    void prove(const LocalEntry& entry);
    bool isRecordAt(std::uint64_t at);
    bool signatureBlock();
    Extent directory();
    Extent stop(Step step);

    ByteView& m_view;
    std::uint64_t m_at = 0;
    std::uint64_t m_entries = 0;
    std::uint64_t m_proved = 0;
    bool m_allProved = true;
    std::uint64_t m_firstSpoilt = 0;  // behind the first entry whose content is bad; 0 = none
};

bool ZipWalk::isRecordAt(std::uint64_t at) {
    const auto signature = m_view.le32(at);
    return signature && (*signature == kLocal || *signature == kCentral || *signature == kZipEnd ||
                         *signature == kEnd64 || *signature == kExtraData);
}

std::optional<LocalEntry> ZipWalk::readLocal() {
    Cursor in(m_view, m_at + 6, Endian::Little);
    LocalEntry entry;
    entry.flags = in.u16();
    entry.method = in.u16();
    in.skip(4);
    entry.crc = in.u32();
    entry.packed = in.u32();
    entry.unpacked = in.u32();
    const std::uint64_t nameBytes = in.u16();
    const std::uint64_t extraBytes = in.u16();
    if (!in.ok())
        return std::nullopt;
    entry.named = nameBytes != 0;
    std::uint64_t extra = in.at() + nameBytes;
    entry.data = extra + extraBytes;
    while (extra + 4 <= entry.data) {
        Cursor field(m_view, extra, Endian::Little);
        const auto id = field.u16();
        const auto bytes = field.u16();
        if (id == 1 && bytes >= 16) {
            entry.wide = true;
            const auto unpacked = field.u64(), packed = field.u64();
            entry.unpacked = entry.unpacked == kIn64 ? unpacked : entry.unpacked;
            entry.packed = entry.packed == kIn64 ? packed : entry.packed;
        }
        if (!field.ok())
            return std::nullopt;
        extra += std::uint64_t{4} + bytes;
    }
    return entry;
}

// Unpacks a content of known length; a bad one is remembered, the walk goes on by the lengths.
void ZipWalk::prove(const LocalEntry& entry) {
    const bool packed = entry.method == 8, stored = entry.method == 0 && !entry.sizesFollow();
    if (entry.encrypted() || entry.unpacked > kMostProved || entry.packed > kMostProved ||
        m_proved > kMostProvedInAll || (!packed && !stored)) {
        m_allProved = m_allProved && entry.packed == 0;
        return;
    }
    bool good = true;
    if (packed) {
        const auto result = inflate(m_view, entry.data, entry.unpacked);
        m_proved += result.produced;
        good = result.outcome == InflateOutcome::Done && result.end == entry.data + entry.packed &&
               (entry.sizesFollow() || result.crc == entry.crc);
    } else {
        m_proved += entry.packed;
        good = crc32(m_view, entry.data, entry.data + entry.packed, good) == entry.crc;
    }
    if (!good && m_firstSpoilt == 0)
        m_firstSpoilt = entry.data + entry.packed;
}

// m_at is behind the data of an entry whose sizes follow: with or without signature, 32 or 64 bits.
bool ZipWalk::skipDescriptor(const LocalEntry& entry) {
    const bool marked = m_view.le32(m_at) == kZipDescriptor;
    const std::uint64_t narrow = marked ? 16 : 12;
    const std::uint64_t wide = narrow + 8;
    for (const auto bytes : {entry.wide ? wide : narrow, entry.wide ? narrow : wide}) {
        if (isRecordAt(m_at + bytes) || m_at + bytes == m_view.size()) {
            m_at += bytes;
            return true;
        }
    }
    return false;
}

// Stored data of unknown length: the descriptor that tells just the length so far.
ZipWalk::Step ZipWalk::searchDescriptor(const LocalEntry& entry) {
    const auto limit = std::min(m_view.size(), entry.data + kMostStoredScan);
    m_allProved = false;
    auto sign = m_view.find('P', entry.data, limit);
    for (; sign.found(); sign = m_view.find('P', sign.at + 1, limit)) {
        if (m_view.le32(sign.at) != kZipDescriptor ||
            m_view.le32(sign.at + 8) != static_cast<std::uint32_t>(sign.at - entry.data))
            continue;
        m_at = sign.at;
        return skipDescriptor(entry) ? Step::Next : Step::Broken;
    }
    return sign.stopped() || limit == m_view.size() ? Step::Cut : Step::Broken;
}

ZipWalk::Step ZipWalk::followData(const LocalEntry& entry) {
    if (entry.method != 8 || entry.encrypted())
        return searchDescriptor(entry);
    const auto result = inflate(m_view, entry.data, kAnyOutput);
    m_at = result.end;
    if (result.outcome == InflateOutcome::Cut)
        return Step::Cut;
    if (result.outcome != InflateOutcome::Done)
        return Step::Broken;
    const bool marked = m_view.le32(m_at) == kZipDescriptor;
    if (m_view.le32(marked ? m_at + 4 : m_at) != result.crc)
        return m_view.holds(m_at, 12) ? Step::Broken : Step::Cut;
    return skipDescriptor(entry) ? Step::Next : Step::Broken;
}

// Some writers put the name of the document's type in front of all else by a template whose sizes they never
// fill in; it is a few letters long.
bool ZipWalk::behindUntoldName() {
    constexpr std::string_view kName = "mimetype", kUntold = "CRCqCSIZUSIZ";
    constexpr std::uint64_t kMostLetters = 128;
    if (m_at != 0 || !m_view.matches(14, kUntold) || !m_view.matches(30, kName))
        return false;
    const auto from = 30 + kName.size();
    const auto sign = m_view.find('P', from, std::min(m_view.size(), from + kMostLetters));
    if (!sign.found() || m_view.le32(sign.at) != kLocal)
        return false;
    m_allProved = false;
    --m_entries;  // the directory lists another of that name
    m_at = sign.at;
    return true;
}

ZipWalk::Step ZipWalk::local() {
    const auto entry = readLocal();
    if (!entry)
        return Step::Cut;
    // Builders of Android packages fill room with entries without a name, which the directory leaves out.
    m_entries += entry->named ? 1 : 0;
    if (entry->sizesFollow() && entry->packed == 0)
        return followData(*entry);
    const auto end = addClamped(entry->data, entry->packed);
    if (end > m_view.size() && behindUntoldName())
        return Step::Next;
    if (end > m_view.size())
        return Step::Cut;
    prove(*entry);
    m_at = end;
    if (!entry->sizesFollow())
        return Step::Next;
    return isRecordAt(m_at) || skipDescriptor(*entry) ? Step::Next : Step::Broken;
}

// A package's signatures between the last entry and the central directory.
bool ZipWalk::signatureBlock() {
    const auto bytes = m_view.le64(m_at);
    if (!bytes || *bytes < 24 || *bytes > m_view.size() ||
        !m_view.matches(m_at + 8 + *bytes - 16, "APK Sig Block 42"))
        return false;
    m_at += 8 + *bytes;
    return true;
}

// From the first central record to behind the end record.
Extent ZipWalk::directory() {
    const std::uint64_t start = m_at;
    std::uint64_t records = 0;
    while (m_view.le32(m_at) == kCentral) {
        Cursor in(m_view, m_at + 28, Endian::Little);
        const std::uint64_t name = in.u16(), extra = in.u16(), comment = in.u16();
        if (!in.ok())
            return cutOffAt(m_view, m_at);
        m_at += 46 + name + extra + comment;
        ++records;
    }
    const std::uint64_t bytes = m_at - start;
    if (m_view.le32(m_at) == 0x05054B50)  // digital signature
        m_at += std::uint64_t{6} + m_view.le16(m_at + 4).value_or(0);
    if (m_view.le32(m_at) == kEnd64) {
        m_at = addClamped(m_at, addClamped(12, m_view.le64(m_at + 4).value_or(0)));
        if (m_view.le32(m_at) == kLocator64)
            m_at += 20;
    }
    Cursor in(m_view, m_at, Endian::Little);
    const auto signature = in.u32();
    in.skip(6);
    const std::uint64_t count = in.u16(), told = in.u32(), offset = in.u32(), comment = in.u16();
    if (!in.ok())
        return m_view.holds(m_at, 4) && signature != kZipEnd ? damagedAt(m_view, m_at)
                                                             : cutOffAt(m_view, m_at);
    if (signature != kZipEnd)
        return damagedAt(m_view, m_at);
    const bool agrees = (count == 0xFFFF || count == (records & 0xFFFF)) &&
                        (told == kIn64 || told == bytes) && (offset == kIn64 || offset <= start) &&
                        records >= m_entries;
    Extent extent = completeAt(m_view, in.at() + comment);
    if (extent.verdict == Verdict::Complete && (!agrees || m_firstSpoilt != 0))
        return spoiltUpTo(m_view, extent.end);  // all bytes are there to save; some are not what they were
    return m_allProved ? withContent(extent) : extent;
}

Extent ZipWalk::stop(Step step) {
    const auto end = m_view.size() - m_at < 4 ? m_view.size() : m_at;
    return step == Step::Cut ? cutOffAt(m_view, m_view.exhausted() ? end : m_view.size())
                             : damagedAt(m_view, end);
}

Extent ZipWalk::walk() {
    auto first = m_view.le32(0);
    if (first == kZipDescriptor || first == kSpanned) {
        m_at = 4;
        first = m_view.le32(m_at);
    }
    if (first != kLocal && first != kZipEnd)
        return unknownExtent();
    for (;;) {
        const auto signature = m_view.le32(m_at);
        if (!signature)
            return cutOffAt(m_view, m_at);
        if (*signature == kCentral || *signature == kZipEnd || *signature == kEnd64)
            return directory();
        Step step = Step::Broken;
        if (*signature == kLocal)
            step = local();
        else if (*signature == kExtraData)
            m_at += std::uint64_t{8} + m_view.le32(m_at + 4).value_or(0), step = Step::Next;
        else if (signatureBlock())
            step = Step::Next;
        if (step != Step::Next)
            return stop(step);
    }
}

Extent walkZip(ByteView& view) {
    return ZipWalk(view).walk();
}

}  // namespace

extern constexpr Format kZip = {
    .name = "ZIP",
    .group = Group::Archives,
    .walk = walkZip,
    .extensions =
        " ZIP DOCX DOCM DOTX XLSX XLSM XLTX XLSB PPTX PPTM PPSX POTX ODT ODS ODP ODG ODF ODB OTT "
        "EPUB JAR APK XPS OXPS KMZ PAGES NUMBERS KEY VSDX CBZ IPA WAR XPI SKETCH 3MF WHL SXW SXC "
        "SXI SXD SXM IDML ODC ODI ODM OTG OTH OTP OTS ORA KRA XD GGB SB3 FCSTD NPZ ASICE ",
    .large = true,
};

}  // namespace vantor

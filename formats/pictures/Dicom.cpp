// DICOM pictures of medicine. Sources: DICOM PS3.5 and PS3.10.
#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

constexpr std::uint32_t kUndefined = 0xFFFFFFFF;
constexpr std::uint32_t kPicture = 0x7FE00010;

// Data elements in either way of writing them. Those of undefined length are entered; what they hold looks
// alike.
class DicomWalk {
  public:
    explicit DicomWalk(ByteView& view) : m_view(view) {}
    Extent walk();

  private:
    enum class Step { Good, End, Packed, Cut, Broken };
    Step element();
    Extent behindPacked();
    // Whether `tag` may follow the picture; only looked at where nothing else tells an element from noise.
    static bool mayFollowPicture(std::uint32_t tag);
    // Length and head of the element at m_at; a length of its own kind says "until a delimiter".
    std::optional<std::pair<std::uint32_t, std::uint64_t>> lengthHere();

    ByteView& m_view;
    std::uint64_t m_at = 132;  // behind the preamble and its mark
    Endian m_endian = Endian::Little;
    bool m_explicit = true;
    bool m_inMeta = true;
    bool m_packed = false;
    std::uint32_t m_depth = 0;
    std::uint32_t m_last = 0;  // tag before, outside sequences
    Facts m_facts;
};

bool isPair(ByteView& view, std::uint64_t at) {
    const auto a = view.u8(at).value_or(0), b = view.u8(at + 1).value_or(0);
    return a >= 'A' && a <= 'Z' && b >= 'A' && b <= 'Z';
}

std::optional<std::pair<std::uint32_t, std::uint64_t>> DicomWalk::lengthHere() {
    const bool item = m_view.number(m_at, 2, m_endian) == 0xFFFEU;
    if (item || !m_explicit) {
        const auto bytes = m_view.number(m_at + 4, 4, m_endian);
        return bytes ? std::optional(std::pair(static_cast<std::uint32_t>(*bytes), std::uint64_t{8}))
                     : std::nullopt;
    }
    for (const std::string_view wide :
         {"OB", "OW", "OF", "OD", "OL", "OV", "SQ", "UC", "UR", "UT", "UN", "SV", "UV"}) {
        if (!m_view.matches(m_at + 4, wide))
            continue;
        const auto bytes = m_view.number(m_at + 8, 4, m_endian);
        return bytes ? std::optional(std::pair(static_cast<std::uint32_t>(*bytes), std::uint64_t{12}))
                     : std::nullopt;
    }
    const auto bytes = m_view.number(m_at + 6, 2, m_endian);
    return bytes ? std::optional(std::pair(static_cast<std::uint32_t>(*bytes), std::uint64_t{8}))
                 : std::nullopt;
}

// Older files have no preamble: the first element is the length of its group or the character set.
bool beginsBare(ByteView& view) {
    using namespace std::string_view_literals;
    return view.matches(0, "\x08\0\0\0UL\4\0"sv) || view.matches(0, "\x08\0\5\0CS\xA\0ISO_IR"sv) ||
           view.matches(0, "\x08\0\5\0\xA\0\0\0ISO_IR"sv);
}

// Signatures, padding, and what makers put into the odd groups behind that of the picture.
bool DicomWalk::mayFollowPicture(std::uint32_t tag) {
    constexpr std::uint32_t kSignatures = 0xFFFAFFFA, kPadding = 0xFFFCFFFC, kLastGroup = 0x8000;
    const auto group = tag >> 16;
    return tag == kSignatures || tag == kPadding || (group % 2 != 0 && group < kLastGroup);
}

DicomWalk::Step DicomWalk::element() {
    constexpr std::uint32_t kItem = 0xFFFEE000, kItemEnd = 0xFFFEE00D, kSequenceEnd = 0xFFFEE0DD;
    constexpr std::uint32_t kTransferSyntax = 0x00020010, kRows = 0x00280010, kColumns = 0x00280011;
    if (m_inMeta && m_view.number(m_at, 2, Endian::Little) != 2U) {
        // Behind the group that describes the file its own way of writing begins.
        m_inMeta = false;
        if (m_packed)
            return Step::Packed;
        m_explicit = isPair(m_view, m_at + 4);
        m_endian = m_view.u8(m_at) == 0 ? Endian::Big : Endian::Little;
    }
    const auto group = m_view.number(m_at, 2, m_endian), number = m_view.number(m_at + 2, 2, m_endian);
    if (!group || !number)
        return Step::End;
    const auto tag = static_cast<std::uint32_t>(*group << 16 | *number);
    const bool delimiter = tag == kItem || tag == kItemEnd || tag == kSequenceEnd;
    if (m_depth == 0 && (delimiter || tag <= m_last))
        return Step::End;
    if (m_depth == 0 && !m_explicit && m_last >= kPicture && !mayFollowPicture(tag))
        return Step::End;
    if (!delimiter && m_explicit && !isPair(m_view, m_at + 4))
        return m_depth == 0 ? Step::End : Step::Broken;
    const auto length = lengthHere();
    if (!length)
        return Step::Cut;
    const auto [bytes, head] = *length;
    if (tag == kTransferSyntax)
        m_packed = m_view.matches(m_at + head, "1.2.840.10008.1.2.1.99");
    if (tag == kRows)
        m_facts.height = m_view.le16(m_at + head).value_or(0);
    if (tag == kColumns)
        m_facts.width = m_view.le16(m_at + head).value_or(0);
    if (m_depth == 0)
        m_last = tag;
    if (bytes == kUndefined)
        ++m_depth;
    else if (tag == kItemEnd || tag == kSequenceEnd)
        --m_depth;
    m_at += head + (bytes == kUndefined ? 0 : bytes);
    return m_at > m_view.size() ? Step::Cut : Step::Good;
}

// The elements as one deflate stream, filled up to an even length.
Extent DicomWalk::behindPacked() {
    const auto stream = inflate(m_view, m_at, kAnyOutput);
    if (stream.outcome == InflateOutcome::Cut)
        return cutOffAt(m_view, m_view.size(), m_facts);
    if (stream.outcome != InflateOutcome::Done)
        return damagedAt(m_view, stream.end, m_facts);
    const bool odd = (stream.end - m_at) % 2 != 0 && m_view.u8(stream.end) == 0;
    return completeAt(m_view, stream.end + (odd ? 1 : 0), m_facts);
}

Extent DicomWalk::walk() {
    constexpr std::uint32_t kMostElements = 1 << 22, kDeepest = 1 << 16;
    if (!m_view.matches(128, std::string_view("DICM\2\0", 6))) {
        if (!beginsBare(m_view))
            return unknownExtent();
        m_at = 0;
    }
    Step step = Step::Good;
    for (std::uint32_t elements = 0; step == Step::Good && elements < kMostElements; ++elements)
        step = m_depth > kDeepest ? Step::Broken : element();
    if (step == Step::Packed)
        return behindPacked();
    if (step == Step::Cut || (step == Step::End && (m_depth != 0 || m_inMeta)))
        return cutOffAt(m_view, m_view.size(), m_facts);
    if (step != Step::End)
        return damagedAt(m_view, m_at, m_facts);
    return inexact(completeAt(m_view, m_at, m_facts));
}

Extent walkDicom(ByteView& view) {
    return DicomWalk(view).walk();
}

}  // namespace

extern constexpr Format kDicom = {
    .name = "DICOM",
    .group = Group::Pictures,
    .walk = walkDicom,
    .extensions = " DCM DICOM ",
    .large = true,
};

}  // namespace vantor

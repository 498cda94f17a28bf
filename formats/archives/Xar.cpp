// XAR archives, as of Apple's installers: a packed table in XML tells where each file lies in the heap
// behind. Source: the archive's format page ("xar format", header and table of contents).
#include <zlib.h>

#include <algorithm>
#include <array>
#include <string>

#include "formats/Format.h"

namespace vantor {

namespace {

// Reads the table letter by letter and keeps how far into the heap its places reach.
class TocReader {
  public:
    void letter(char c) {
        if (c == '<') {
            m_tag.clear();
            m_inTag = true;
        } else if (c == '>') {
            m_inTag = false;
            tag();
        } else if (m_inTag) {
            if (m_tag.size() < kLongestTag)
                m_tag += c;
        } else if (c >= '0' && c <= '9') {
            m_number = addClamped(mulClamped(m_number, 10), static_cast<std::uint64_t>(c - '0'));
        }
    }
    // Bytes of the heap that the table tells of.
    std::uint64_t heap() const { return m_heap; }
    bool ended() const { return m_ended; }

  private:
    static constexpr std::size_t kLongestTag = 16;

    // Data and attributes have a length in the heap beside the one they unpack to, sums and signatures only
    // one.
    void tag() {
        if (m_tag == "/offset")
            m_offset = m_number;
        else if (m_tag == "/length")
            m_length = m_number;
        else if (m_tag == "/size")
            m_size = m_number;
        else if (m_tag == "/data" || m_tag == "/ea" || m_tag == "/checksum" || m_tag == "/signature" ||
                 m_tag == "/x-signature")
            m_heap = std::max(m_heap, addClamped(m_offset, m_length != 0 ? m_length : m_size));
        else if (m_tag == "/xar")
            m_ended = true;
        if (m_tag == "data" || m_tag.starts_with("ea") || m_tag.starts_with("checksum") ||
            m_tag.starts_with("signature") || m_tag.starts_with("x-signature"))
            m_offset = m_length = m_size = 0;
        m_number = 0;
    }

    std::string m_tag;
    bool m_inTag = false, m_ended = false;
    std::uint64_t m_number = 0, m_offset = 0, m_length = 0, m_size = 0, m_heap = 0;
};

enum class TocState { Whole, Cut, Broken };

// Unpacks `bytes` of the table at `at` into `reader`.
TocState readToc(ByteView& view, std::uint64_t at, std::uint64_t bytes, TocReader& reader) {
    constexpr std::uint64_t kMostLetters = 64 * 1024 * 1024;
    std::array<std::uint8_t, 16 * 1024> letters;
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK)
        return TocState::Broken;
    TocState outcome = TocState::Broken;
    for (std::uint64_t read = 0, made = 0; made < kMostLetters;) {
        if (stream.avail_in == 0) {
            const auto packed = view.window(at + read);
            if (packed.empty() || read >= bytes) {
                outcome = TocState::Cut;
                break;
            }
            stream.next_in = packed.data();
            stream.avail_in = static_cast<uInt>(std::min<std::uint64_t>(packed.size(), bytes - read));
            read += stream.avail_in;
        }
        stream.next_out = letters.data();
        stream.avail_out = static_cast<uInt>(letters.size());
        const int result = inflate(&stream, Z_NO_FLUSH);
        const auto count = letters.size() - stream.avail_out;
        made += count;
        for (std::size_t i = 0; i < count; ++i)
            reader.letter(static_cast<char>(letters[i]));
        if (result == Z_STREAM_END)
            outcome = reader.ended() ? TocState::Whole : TocState::Broken;
        if (result != Z_OK && result != Z_BUF_ERROR)
            break;
    }
    inflateEnd(&stream);
    return outcome;
}

Extent walkXar(ByteView& view) {
    constexpr std::uint64_t kMostToc = 64 * 1024 * 1024;
    const auto head = view.be16(4), version = view.be16(6);
    const auto packed = view.be64(8);
    if (!view.matches(0, "xar!") || !packed || *head < 28 || version != 1)
        return unknownExtent();
    if (*packed > kMostToc)
        return damagedAt(view, *head);
    TocReader table;
    switch (readToc(view, *head, *packed, table)) {
        case TocState::Cut:
            return cutOffAt(view, view.size());
        case TocState::Broken:
            return damagedAt(view, *head);
        case TocState::Whole:
            break;
    }
    return completeAt(view, addClamped(*head + *packed, table.heap()));
}

}  // namespace

extern constexpr Format kXar = {
    .name = "XAR",
    .group = Group::Archives,
    .walk = walkXar,
    .extensions = " XAR ",
    .large = true,
};

}  // namespace vantor

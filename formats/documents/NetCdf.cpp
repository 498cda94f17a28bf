// NetCDF in its classic forms: a header that lists every variable with its place and shape. Source: NetCDF
// classic, 64-bit offset and 64-bit data format specifications (Unidata).
#include <algorithm>
#include <array>
#include <vector>

#include "formats/Format.h"

namespace vantor {

namespace {

std::uint64_t padded(std::uint64_t bytes) {
    return addClamped(bytes, 3) / 4 * 4;
}

class NetCdfWalk {
  public:
    explicit NetCdfWalk(ByteView& view) : m_view(view) {}
    Extent walk();

  private:
    std::uint64_t take(std::size_t bytes);
    std::uint64_t count() { return take(m_version == 5 ? 8 : 4); }
    std::uint64_t list(std::uint64_t tag);
    void name();
    void attributes();
    void variable();
    static std::uint64_t bytesOf(std::uint64_t type);

    static constexpr std::uint64_t kMostParts = 1 << 20;
    ByteView& m_view;
    std::uint64_t m_at = 4;
    std::uint8_t m_version = 1;
    bool m_ok = true;                         // what was read was there
    bool m_sound = true;                      // and had sense
    std::vector<std::uint64_t> m_dimensions;  // lengths; 0 is the one that grows
    std::uint64_t m_end = 0, m_firstRecord = ~std::uint64_t{0}, m_recordBytes = 0, m_lastBytes = 0;
    std::uint64_t m_recordVariables = 0;
};

std::uint64_t NetCdfWalk::take(std::size_t bytes) {
    const auto value = m_view.number(m_at, bytes, Endian::Big);
    m_ok = m_ok && value;
    m_at += bytes;
    return value.value_or(0);
}

// The count of a list that begins with its tag, or is absent and then two zeros.
std::uint64_t NetCdfWalk::list(std::uint64_t tag) {
    const auto found = take(4);
    const auto parts = count();
    m_sound = m_sound && (found == tag || (found == 0 && parts == 0)) && parts <= kMostParts;
    return m_ok && m_sound ? parts : 0;
}

void NetCdfWalk::name() {
    constexpr std::uint64_t kLongest = 4096;
    const auto letters = count();
    m_sound = m_sound && letters <= kLongest;
    m_at = addClamped(m_at, padded(letters));
}

std::uint64_t NetCdfWalk::bytesOf(std::uint64_t type) {
    static constexpr std::array<std::uint8_t, 12> kBytes = {0, 1, 1, 2, 4, 4, 8, 1, 2, 4, 8, 8};
    return type < kBytes.size() ? kBytes[static_cast<std::size_t>(type)] : 0;
}

void NetCdfWalk::attributes() {
    constexpr std::uint64_t kAttribute = 12;
    for (auto left = list(kAttribute); left != 0 && m_ok && m_sound; --left) {
        name();
        const auto bytes = bytesOf(take(4));
        const auto values = count();
        m_sound = m_sound && bytes != 0;
        m_at = addClamped(m_at, padded(mulClamped(values, bytes)));
        m_ok = m_ok && m_at <= m_view.size();
    }
}

void NetCdfWalk::variable() {
    name();
    const auto rank = count();
    m_sound = m_sound && rank <= 1024;
    bool grows = false;
    std::uint64_t values = 1;
    for (std::uint64_t i = 0; i < rank && m_ok && m_sound; ++i) {
        const auto id = count();
        m_sound = m_sound && id < m_dimensions.size();
        if (!m_sound)
            return;
        const auto length = m_dimensions[static_cast<std::size_t>(id)];
        if (length == 0 && i == 0)
            grows = true;
        else
            values = mulClamped(values, length);
    }
    attributes();
    const auto bytes = mulClamped(values, bytesOf(take(4)));
    count();  // told bytes, which large variables overflow
    const auto begin = take(m_version == 1 ? 4 : 8);
    if (grows) {
        ++m_recordVariables;
        m_firstRecord = std::min(m_firstRecord, begin);
        m_recordBytes = addClamped(m_recordBytes, padded(bytes));
        m_lastBytes = bytes;
    } else {
        m_end = std::max(m_end, addClamped(begin, padded(bytes)));
    }
}

Extent NetCdfWalk::walk() {
    m_version = m_view.u8(3).value_or(0);
    if (!m_view.matches(0, "CDF") || (m_version != 1 && m_version != 2 && m_version != 5))
        return unknownExtent();
    constexpr std::uint64_t kDimension = 10, kVariable = 11, kStreaming = 0xFFFFFFFF;
    const auto records = count();
    for (auto left = list(kDimension); left != 0 && m_ok && m_sound; --left) {
        name();
        m_dimensions.push_back(count());
    }
    attributes();
    for (auto left = list(kVariable); left != 0 && m_ok && m_sound; --left)
        variable();
    if (!m_ok)
        return cutOffAt(m_view, m_view.size());
    if (!m_sound || records == kStreaming)
        return unknownExtent();
    m_end = std::max(m_end, m_at);
    if (m_recordVariables != 0 && records != 0) {
        // A single variable's records are not padded.
        const auto record = m_recordVariables == 1 ? m_lastBytes : m_recordBytes;
        m_end = std::max(m_end, addClamped(m_firstRecord, mulClamped(records, record)));
    }
    return completeAt(m_view, m_end);
}

Extent walkNetCdf(ByteView& view) {
    return NetCdfWalk(view).walk();
}

}  // namespace

extern constexpr Format kNetCdf = {
    .name = "NetCDF",
    .group = Group::Documents,
    .walk = walkNetCdf,
    .extensions = " NC ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

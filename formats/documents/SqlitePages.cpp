// Source: SQLite file format, "Database Pages", "B-tree Pages", "Cell Payload Overflow Pages", "The
// Freelist".
#include "formats/documents/SqlitePages.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace vantor {

namespace {

constexpr std::uint64_t kMostPages = 1 << 18;
constexpr std::uint64_t kHeaderBytes = 100;
constexpr std::uint64_t kLockingByte = std::uint64_t{1} << 30;  // its page holds nothing

enum PageKind : std::uint8_t { kInnerIndex = 2, kInnerTable = 5, kLeafIndex = 10, kLeafTable = 13 };

// In groups of seven bits, the highest first, the ninth byte whole; moves `at` behind it.
std::uint64_t bigNumber(ByteView& view, std::uint64_t& at) {
    std::uint64_t value = 0;
    for (int i = 0; i < 9; ++i) {
        const std::uint64_t byte = view.u8(at++).value_or(0);
        if (i == 8)
            return value << 8 | byte;
        value = value << 7 | (byte & 0x7F);
        if ((byte & 0x80) == 0)
            break;
    }
    return value;
}

// Bytes of a column's value.
std::uint64_t valueBytes(std::uint64_t type) {
    constexpr std::uint64_t kBytes[] = {0, 1, 2, 3, 4, 6, 8, 8, 0, 0, 0, 0};
    return type < 12 ? kBytes[type] : (type - 12) / 2;
}

class Census {
  public:
    Census(ByteView& view, std::uint64_t pageBytes, std::uint64_t told)
        : m_view(view),
          m_page(pageBytes),
          m_usable(pageBytes - view.u8(20).value_or(0)),
          m_most(told != 0 ? told : view.size() / pageBytes) {}

    PageCensus count(bool told);

  private:
    // A page to look at: what stands on it is the schema's, a table's or an index's.
    struct Node {
        std::uint64_t page;
        bool schema;
    };

    std::uint64_t placeOf(std::uint64_t page) const { return (page - 1) * m_page; }
    bool take(std::uint64_t page);
    bool follow(const Node& node);
    bool cell(std::uint64_t at, std::uint8_t kind, const Node& node);
    bool payload(std::uint64_t at, std::uint64_t bytes, bool table, bool schema);
    bool root(std::uint64_t at, std::uint64_t here);
    bool freeList();
    void takePointerMap();

    ByteView& m_view;
    const std::uint64_t m_page;
    const std::uint64_t m_usable;  // of a page
    const std::uint64_t m_most;
    std::vector<bool> m_seen;
    std::uint64_t m_taken = 0;
    std::uint64_t m_last = 0;
    std::vector<Node> m_waiting;
};

// False where it is none, or was pointed at before.
bool Census::take(std::uint64_t page) {
    if (page == 0 || page > m_most || m_seen[page])
        return false;
    m_seen[page] = true;
    m_last = std::max(m_last, page);
    ++m_taken;
    return true;
}

// A row of the schema, `here` bytes of which stand at `at`: its fourth column tells where a table begins.
bool Census::root(std::uint64_t at, std::uint64_t here) {
    std::uint64_t in = at;
    const auto head = bigNumber(m_view, in);
    std::uint64_t value = addClamped(at, head);
    for (int column = 0; column < 3; ++column)
        value = addClamped(value, valueBytes(bigNumber(m_view, in)));
    const auto type = bigNumber(m_view, in);
    if (addClamped(value, valueBytes(type)) > at + here || in > at + head)
        return false;
    const auto page = type == 9                ? std::optional<std::uint64_t>(1)
                      : type >= 1 && type <= 6 ? m_view.number(value, valueBytes(type), Endian::Big)
                                               : std::optional<std::uint64_t>(0);
    if (!page)
        return false;
    if (*page != 0)  // views and triggers have none
        m_waiting.push_back({*page, false});
    return true;
}

// What a cell holds: at its place as much as fits, the rest on pages that each name the next.
bool Census::payload(std::uint64_t at, std::uint64_t bytes, bool table, bool schema) {
    const std::uint64_t least = (m_usable - 12) * 32 / 255 - 23;
    const std::uint64_t most = table ? m_usable - 35 : (m_usable - 12) * 64 / 255 - 23;
    std::uint64_t here = bytes;
    if (bytes > most) {
        here = least + (bytes - least) % (m_usable - 4);
        here = here <= most ? here : least;
        std::uint64_t next = m_view.be32(at + here).value_or(0);
        for (std::uint64_t left = bytes - here; left != 0; left -= std::min(left, m_usable - 4)) {
            if (!take(next))
                return false;
            next = m_view.be32(placeOf(next)).value_or(~0U);
        }
        if (next != 0)
            return false;
    }
    return !schema || root(at, here);
}

bool Census::cell(std::uint64_t at, std::uint8_t kind, const Node& node) {
    if (kind == kInnerTable || kind == kInnerIndex) {
        m_waiting.push_back({m_view.be32(at).value_or(0), node.schema});
        at += 4;
    }
    if (kind == kInnerTable)
        return true;
    const auto bytes = bigNumber(m_view, at);
    if (kind == kLeafTable)
        bigNumber(m_view, at);
    return payload(at, bytes, kind == kLeafTable, node.schema);
}

bool Census::follow(const Node& node) {
    if (!take(node.page))
        return false;
    const auto start = placeOf(node.page);
    Cursor in(m_view, start + (node.page == 1 ? kHeaderBytes : 0));
    const auto kind = in.u8();
    const bool inner = kind == kInnerTable || kind == kInnerIndex;
    if (kind != kInnerTable && kind != kLeafTable &&
        (node.schema || (kind != kInnerIndex && kind != kLeafIndex)))
        return false;
    in.skip(2);
    const std::uint64_t cells = in.u16();
    in.skip(3);
    if (inner)
        m_waiting.push_back({in.u32(), node.schema});
    const auto firstFree = in.at() - start + cells * 2;
    if (!in.ok() || firstFree > m_usable)
        return false;
    std::vector<std::uint64_t> places;  // read in one go
    for (std::uint64_t i = 0; i < cells; ++i) {
        places.push_back(in.u16());
        if (places.back() < firstFree || places.back() >= m_usable)
            return false;
    }
    return in.ok() && std::all_of(places.begin(), places.end(),
                                  [&](std::uint64_t place) { return cell(start + place, kind, node); });
}

bool Census::freeList() {
    std::uint64_t trunk = m_view.be32(32).value_or(0);
    for (std::uint64_t i = 0; trunk != 0 && i < m_most; ++i) {
        if (!take(trunk))
            return false;
        Cursor in(m_view, placeOf(trunk));
        trunk = in.u32();
        const std::uint64_t leaves = in.u32();
        if (leaves * 4 + 8 > m_usable)
            return false;
        for (std::uint64_t leaf = 0; leaf < leaves; ++leaf) {
            if (!take(in.u32()))
                return false;
        }
    }
    return true;
}

// Pages that tell where others are pointed at, in databases that can shrink by themselves.
void Census::takePointerMap() {
    if (m_view.be32(52).value_or(0) == 0)
        return;
    const std::uint64_t step = m_usable / 5 + 1;
    for (std::uint64_t page = 2; page <= m_most; page += step)
        take(page == kLockingByte / m_page + 1 ? page + 1 : page);
}

PageCensus Census::count(bool told) {
    if (m_most == 0 || m_most > kMostPages || m_usable < 480)
        return {};
    m_seen.assign(m_most + 1, false);
    if (told)
        takePointerMap();
    const auto locked = kLockingByte / m_page + 1;
    if (locked <= m_most && told)
        take(locked);
    m_waiting.push_back({1, true});
    bool sound = freeList();
    while (sound && !m_waiting.empty()) {
        const Node next = m_waiting.back();
        m_waiting.pop_back();
        sound = follow(next) && m_waiting.size() <= m_most;
    }
    const std::uint64_t pages = told ? m_most : m_last;
    if (m_view.exhausted())
        return {};
    if (!sound)
        return {PageCensus::Outcome::Broken, pages};
    return {m_taken == pages ? PageCensus::Outcome::Sound : PageCensus::Outcome::Silent, pages};
}

}  // namespace

PageCensus countPages(ByteView& view, std::uint64_t pageBytes, std::uint64_t told) {
    return Census(view, pageBytes, told).count(told != 0);
}

}  // namespace vantor

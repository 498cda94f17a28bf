// What the Redis database keeps on disk (RDB): keys with values of many kinds, an end mark, a sum. R's stores
// share the ending.
// Source: "Redis RDB Dump File Format" and the history of its versions up to 11.
#include <algorithm>
#include <array>

#include "formats/Format.h"
#include "formats/documents/RStore.h"

namespace vantor {

namespace {

// CRC-64 with the polynomial of D. T. Jones, reflected, from 0.
constexpr std::array<std::uint64_t, 256> jonesTable() {
    constexpr std::uint64_t kPolynomial = 0x95AC9329AC4BC9B5;
    std::array<std::uint64_t, 256> table{};
    for (std::uint64_t i = 0; i < table.size(); ++i) {
        std::uint64_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = value >> 1 ^ ((value & 1) != 0 ? kPolynomial : 0);
        table[i] = value;
    }
    return table;
}

// The sum of [0, to); nothing when not all of it could be read.
std::optional<std::uint64_t> jonesSum(ByteView& view, std::uint64_t to) {
    static constexpr auto kTable = jonesTable();
    std::uint64_t sum = 0;
    for (std::uint64_t at = 0; at < to;) {
        const auto bytes = view.window(at);
        if (bytes.empty())
            return std::nullopt;
        for (const auto byte :
             bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), to - at))))
            sum = kTable[(sum ^ byte) & 0xFF] ^ sum >> 8;
        at += bytes.size();
    }
    return sum;
}

// Passes over the parts of a file one after the other. What is not wholly there or not known makes it stop:
// ok() is false from then on, cut() says which of the two it was.
class RedisReader {
  public:
    RedisReader(ByteView& view, std::uint64_t at) : m_view(view), m_at(at) {}

    std::uint64_t at() const { return m_at; }
    bool ok() const { return m_ok; }
    bool cut() const { return m_cut; }

    std::uint8_t byte() {
        const auto value = m_view.u8(m_at);
        skip(1);
        return m_ok ? *value : 0;
    }
    void skip(std::uint64_t bytes) {
        if (m_ok && m_view.holds(m_at, bytes))
            m_at += bytes;
        else
            stop(true);
    }
    // Of six, fourteen, 32 or 64 bits.
    std::uint64_t length() {
        const auto first = byte();
        switch (first >> 6) {
            case 0:
                return first;
            case 1:
                return (first & 0x3FU) << 8 | byte();
            case 2:
                return first == 0x80 ? wide(4) : first == 0x81 ? wide(8) : stop(false);
            default:
                return stop(false);
        }
    }
    // Plain, a number of one, two or four bytes, or packed.
    void string() {
        constexpr std::uint8_t kPacked = 0xC3;
        const auto first = m_view.u8(m_at).value_or(0);
        if (first < 0xC0) {
            const auto bytes = length();
            countEmpty(bytes == 0);
            skip(bytes);
            return;
        }
        skip(1);
        if (first < kPacked) {
            skip(std::uint64_t{1} << (first & 3));
        } else if (first == kPacked) {
            const auto packed = length();
            length();
            skip(packed);
        } else {
            stop(false);
        }
    }
    void strings(std::uint64_t count) {
        for (std::uint64_t i = 0; m_ok && i < count; ++i)
            string();
    }
    // The value of a key, of one of the kinds that the file names by number.
    void value(std::uint8_t kind);
    std::uint64_t stop(bool cut) {  // the first time counts
        m_cut = m_ok ? cut : m_cut;
        m_ok = false;
        return 0;
    }

  private:
    std::uint64_t wide(std::size_t bytes) {
        const auto value = m_view.number(m_at, bytes, Endian::Big);
        skip(bytes);
        return m_ok ? *value : 0;
    }
    void lengths(int count) {
        for (int i = 0; i < count; ++i)
            length();
    }
    // An empty medium reads as empty strings without end.
    void countEmpty(bool empty) {
        constexpr int kMostInARow = 4096;
        m_empty = empty ? m_empty + 1 : 0;
        if (m_empty > kMostInARow)
            stop(false);
    }
    // A number as text behind a byte that tells its letters, or says that it is none or has no end.
    void score() {
        constexpr std::uint8_t kNoLetters = 253;
        const auto letters = byte();
        skip(letters < kNoLetters ? letters : 0);
    }
    void stream(int version);
    void module();

    ByteView& m_view;
    std::uint64_t m_at;
    bool m_ok = true;
    bool m_cut = false;
    int m_empty = 0;  // strings in a row
};

// Entries in lists, then groups of readers with what each has not confirmed yet.
void RedisReader::stream(int version) {
    constexpr std::uint64_t kEntry = 16, kTime = 8;
    strings(2 * std::min<std::uint64_t>(length(), m_view.size()));
    lengths(version >= 2 ? 8 : 3);
    const auto groups = length();
    for (std::uint64_t group = 0; m_ok && group < groups; ++group) {
        string();
        lengths(version >= 2 ? 3 : 2);
        const auto open = length();
        for (std::uint64_t i = 0; m_ok && i < open; ++i) {
            skip(kEntry + kTime);
            countEmpty(length() == 0);
        }
        const auto readers = length();
        for (std::uint64_t reader = 0; m_ok && reader < readers; ++reader) {
            string();
            skip(version >= 3 ? 2 * kTime : kTime);
            skip(mulClamped(length(), kEntry));
        }
    }
}

// A row of marked values, up to the mark 0.
void RedisReader::module() {
    length();
    while (m_ok) {
        switch (length()) {
            case 0:
                return;
            case 1:
            case 2:
                length();
                break;
            case 3:
                skip(4);
                break;
            case 4:
                skip(8);
                break;
            case 5:
                string();
                break;
            default:
                stop(false);
        }
    }
}

void RedisReader::value(std::uint8_t kind) {
    enum : std::uint8_t {
        String,
        List,
        Set,
        SortedSet,
        Hash,
        SortedSetOfDoubles,
        Module = 7,
        QuickList = 14,
        Stream,
        QuickListOfKinds = 18,
        Stream2,
        Stream3 = 21
    };
    switch (kind) {
        case String:
        case 9:
        case 10:
        case 11:
        case 12:
        case 13:
        case 16:
        case 17:
        case 20:  // packed into one string
            return string();
        case List:
        case Set:
        case QuickList:
            return strings(length());
        case Hash:
            return strings(mulClamped(length(), 2));
        case SortedSet:
        case SortedSetOfDoubles: {
            const auto count = length();
            for (std::uint64_t i = 0; m_ok && i < count; ++i) {
                string();
                if (kind == SortedSet)
                    score();
                else
                    skip(8);
            }
            return;
        }
        case QuickListOfKinds: {
            const auto count = length();
            for (std::uint64_t i = 0; m_ok && i < count; ++i) {
                length();
                string();
            }
            return;
        }
        case Stream:
            return stream(1);
        case Stream2:
            return stream(2);
        case Stream3:
            return stream(3);
        case Module:
            return module();
        default:
            stop(false);
    }
}

Extent behindRedisEnd(ByteView& view, std::uint64_t at, unsigned version) {
    constexpr unsigned kSummed = 5;
    if (version < kSummed)
        return completeAt(view, at);
    const auto told = view.le64(at);
    if (!told)
        return cutOffAt(view, view.size());
    // Where the sum is switched off it reads zero.
    if (*told == 0)
        return completeAt(view, at + 8);
    const auto sum = jonesSum(view, at);
    return sum == told ? withContent(completeAt(view, at + 8)) : spoiltUpTo(view, at + 8);
}

Extent walkRedis(ByteView& view) {
    constexpr std::uint64_t kHead = 9;
    constexpr unsigned kLastVersion = 11;  // whose kinds are all known here
    constexpr std::uint8_t kLastKind = 21;
    enum : std::uint8_t { Idle = 0xF8, Frequency, Named, Sizes, ExpiresMs, Expires, Database, End };
    if (!view.matches(0, "REDIS"))
        return walkRStore(view);
    unsigned version = 0;
    for (std::uint64_t i = 5; i < kHead; ++i) {
        const auto digit = view.u8(i).value_or(0);
        if (digit < '0' || digit > '9')
            return unknownExtent();
        version = version * 10 + digit - '0';
    }
    RedisReader in(view, kHead);
    for (;;) {
        const auto start = in.at();
        const auto mark = in.byte();
        switch (mark) {
            case Idle:
            case Database:
                in.length();
                break;
            case Frequency:
                in.skip(1);
                break;
            case Named:
                in.strings(2);
                break;
            case Sizes:
                in.length();
                in.length();
                break;
            case ExpiresMs:
                in.skip(8);
                break;
            case Expires:
                in.skip(4);
                break;
            case 0xF5:  // functions
                in.string();
                break;
            case End:
                return behindRedisEnd(view, in.at(), version);
            default:
                if (mark > kLastKind)
                    in.stop(false);
                in.string();
                in.value(mark);
        }
        if (in.ok())
            continue;
        if (in.cut())
            return cutOffAt(view, view.size());
        return version > kLastVersion ? unknownExtent() : damagedAt(view, start);
    }
}

}  // namespace

extern constexpr Format kRedis = {
    .name = "Redis",
    .group = Group::Documents,
    .walk = walkRedis,
    .extensions = " RDB ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor

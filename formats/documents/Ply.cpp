// Polygon models (PLY): a header of lines counts elements and types, which follow in bytes or as lines.
// Source: the PLY polygon file format by G. Turk.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

struct Property {
    std::uint64_t bytes = 0;
    std::uint64_t countBytes = 0;  // of a list's count; 0 for a single value
};

struct PlyElement {
    std::uint64_t count = 0;
    std::vector<Property> properties;
};

constexpr std::size_t kPlyMostElements = 64, kPlyMostProperties = 256;

std::uint64_t bytesOf(std::string_view type) {
    struct Named {
        std::string_view name;
        std::uint64_t bytes;
    };
    static constexpr std::array<Named, 16> kTypes = {{{"char", 1},
                                                      {"int8", 1},
                                                      {"uchar", 1},
                                                      {"uint8", 1},
                                                      {"short", 2},
                                                      {"int16", 2},
                                                      {"ushort", 2},
                                                      {"uint16", 2},
                                                      {"int", 4},
                                                      {"int32", 4},
                                                      {"uint", 4},
                                                      {"uint32", 4},
                                                      {"float", 4},
                                                      {"float32", 4},
                                                      {"double", 8},
                                                      {"float64", 8}}};
    for (const auto& [name, bytes] : kTypes) {
        if (type == name)
            return bytes;
    }
    return 0;
}

// Cuts the first word off `line`.
std::string_view takeWord(std::string_view& line) {
    const auto from = std::min(line.find_first_not_of(" \t"), line.size());
    line.remove_prefix(from);
    const auto word = line.substr(0, line.find_first_of(" \t"));
    line.remove_prefix(word.size());
    return word;
}

class PlyWalk {
  public:
    explicit PlyWalk(ByteView& view) : m_view(view) {}
    Extent walk();

  private:
    std::string line();
    bool readHeader();
    bool takeElement(std::string_view line);
    bool takeProperty(std::string_view line);
    Extent walkLines();
    Extent walkBytes();

    ByteView& m_view;
    std::uint64_t m_at = 0;
    bool m_lines = false;
    Endian m_endian = Endian::Little;
    std::vector<PlyElement> m_elements;
};

// The line at m_at without its end, which may be of any kind; nothing for one that is too long.
std::string PlyWalk::line() {
    constexpr std::size_t kMost = 512;
    const auto bytes = m_view.window(m_at, kMost);
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), std::min(bytes.size(), kMost));
    text = text.substr(0, text.find_first_of("\r\n"));
    const std::string taken(text);
    m_at = behindLineEnd(m_view, m_at + text.size());
    return taken;
}

bool PlyWalk::takeElement(std::string_view line) {
    takeWord(line);
    std::uint64_t count = 0;
    for (const char digit : takeWord(line)) {
        if (digit < '0' || digit > '9' || count > (1ULL << 40))
            return false;
        count = count * 10 + static_cast<std::uint64_t>(digit - '0');
    }
    m_elements.push_back({count, {}});
    return m_elements.size() <= kPlyMostElements;
}

bool PlyWalk::takeProperty(std::string_view line) {
    if (m_elements.empty() || m_elements.back().properties.size() >= kPlyMostProperties)
        return false;
    Property property;
    auto type = takeWord(line);
    if (type == "list") {
        property.countBytes = bytesOf(takeWord(line));
        type = takeWord(line);
        if (property.countBytes == 0 || property.countBytes > 4)
            return false;
    }
    property.bytes = bytesOf(type);
    m_elements.back().properties.push_back(property);
    return property.bytes != 0;
}

bool PlyWalk::readHeader() {
    constexpr int kMostLines = 1024;
    for (int i = 0; i < kMostLines && m_at < m_view.size(); ++i) {
        const std::string whole = line();
        std::string_view rest = whole;
        const auto word = takeWord(rest);
        if (word == "end_header")
            return !m_elements.empty();
        if (word == "format") {
            const auto kind = takeWord(rest);
            m_lines = kind == "ascii";
            m_endian = kind == "binary_big_endian" ? Endian::Big : Endian::Little;
        } else if (word == "element") {
            if (!takeElement(rest))
                return false;
        } else if (word == "property") {
            if (!takeProperty(rest))
                return false;
        }
    }
    return false;
}

// A line an element, perhaps with empty ones between.
Extent PlyWalk::walkLines() {
    std::uint64_t left = 0;
    for (const PlyElement& element : m_elements)
        left = addClamped(left, element.count);
    TextReader in(m_view, m_at);
    for (bool filled = false; left != 0;) {
        const int byte = in.next();
        if (byte < 0)
            return filled && left == 1 ? inexact(completeAt(m_view, in.at())) : cutOffAt(m_view, in.at());
        if (isControl(byte) || byte >= 0x80)
            return filled && left == 1 ? inexact(completeAt(m_view, in.at() - 1))
                                       : damagedAt(m_view, in.at() - 1);
        if (byte != '\n' && byte != '\r') {
            filled = filled || byte != ' ';
        } else if (filled) {
            filled = false;
            --left;
        }
        if (left == 0 && byte == '\r' && m_view.u8(in.at()) == '\n')
            return completeAt(m_view, in.at() + 1);
    }
    return completeAt(m_view, in.at());
}

Extent PlyWalk::walkBytes() {
    for (const PlyElement& element : m_elements) {
        std::uint64_t fixed = 0;
        bool lists = false;
        for (const Property& property : element.properties) {
            fixed += property.bytes;
            lists = lists || property.countBytes != 0;
        }
        if (!lists) {
            m_at = addClamped(m_at, mulClamped(element.count, fixed));
            continue;
        }
        if (element.properties.empty())
            continue;
        for (std::uint64_t i = 0; i < element.count; ++i) {
            for (const Property& property : element.properties) {
                std::uint64_t values = 1;
                if (property.countBytes != 0) {
                    const auto told =
                        m_view.number(m_at, static_cast<std::size_t>(property.countBytes), m_endian);
                    if (!told)
                        return cutOffAt(m_view, m_view.size());
                    values = *told;
                    m_at += property.countBytes;
                }
                m_at = addClamped(m_at, values * property.bytes);
            }
            if (m_at > m_view.size())
                return cutOffAt(m_view, m_view.size());
        }
    }
    return completeAt(m_view, m_at);
}

Extent PlyWalk::walk() {
    if (!m_view.matches(0, "ply\n") && !m_view.matches(0, "ply\r"))
        return unknownExtent();
    if (!readHeader())
        return m_at >= m_view.size() ? cutOffAt(m_view, m_view.size()) : unknownExtent();
    return m_lines ? walkLines() : walkBytes();
}

Extent walkPly(ByteView& view) {
    return PlyWalk(view).walk();
}

}  // namespace

extern constexpr Format kPly = {
    .name = "PLY",
    .group = Group::Documents,
    .walk = walkPly,
    .extensions = " PLY ",
    .strongMagic = false,
};

}  // namespace vantor

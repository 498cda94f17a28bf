// XML and SVG by their root element. Source: XML 1.0.
#include "formats/documents/Xml.h"

#include <cctype>
#include <string>

#include "formats/Format.h"
#include "formats/TextReader.h"
#include "formats/documents/Html.h"

namespace vantor {

namespace {

// Walks the tags of an XML document, counting how deep they stand.
class XmlWalk {
  public:
    XmlWalk(ByteView& view, std::uint64_t at) : m_in(view, at), m_view(view) {}

    Extent walk();

  private:
    enum class Step { Next, Root, Cut, Broken };

    Step tag();
    Step skipTo(std::string_view mark);
    Step doctype();
    Extent behindRoot();
    bool follows(std::string_view text) { return m_view.matches(m_in.at(), text); }

    TextReader m_in;
    ByteView& m_view;
    std::uint64_t m_depth = 0;
    bool m_packet = false;  // one of metadata, whose last line is still to come
};

XmlWalk::Step XmlWalk::skipTo(std::string_view mark) {
    std::string recent;
    for (;;) {
        const int byte = m_in.next();
        if (byte < 0)
            return Step::Cut;
        if (isForeign(byte))
            return Step::Broken;
        recent.push_back(static_cast<char>(byte));
        if (recent.size() > mark.size())
            recent.erase(0, 1);
        if (recent == mark)
            return Step::Next;
    }
}

// A document type may hold declarations in brackets, with quoted texts.
XmlWalk::Step XmlWalk::doctype() {
    int brackets = 0;
    int quote = 0;
    for (;;) {
        const int byte = m_in.next();
        if (byte < 0)
            return Step::Cut;
        if (isForeign(byte))
            return Step::Broken;
        if (quote != 0)
            quote = byte == quote ? 0 : quote;
        else if (byte == '"' || byte == '\'')
            quote = byte;
        else if (byte == '[' || byte == ']')
            brackets += byte == '[' ? 1 : -1;
        else if (byte == '>' && brackets <= 0)
            return Step::Next;
    }
}

// Behind a '<'.
XmlWalk::Step XmlWalk::tag() {
    if (follows("!--"))
        return skipTo("-->");
    if (follows("![CDATA["))
        return skipTo("]]>");
    if (follows("?"))
        return skipTo("?>");
    if (follows("!"))
        return doctype();
    const bool closes = follows("/");
    int quote = 0;
    int last = 0;
    for (;;) {
        const int byte = m_in.next();
        if (byte < 0)
            return Step::Cut;
        if (isForeign(byte) || (byte == '<' && quote == 0))
            return Step::Broken;
        if (quote != 0) {
            quote = byte == quote ? 0 : quote;
        } else if (byte == '"' || byte == '\'') {
            quote = byte;
        } else if (byte == '>') {
            break;
        }
        last = byte;
    }
    if (closes && m_depth == 0)
        return Step::Broken;
    if (closes)
        --m_depth;
    else if (last != '/')
        ++m_depth;
    return m_depth == 0 ? Step::Root : Step::Next;
}

// Ends behind the comments and instructions that follow the root element, as the last line of a metadata
// packet does; not behind those with which another file begins.
Extent XmlWalk::behindRoot() {
    constexpr std::uint64_t kMostBlanks = 8192;  // writers leave room for growth
    for (;;) {
        const auto end = m_in.at();
        const auto whole = [&] { return completeAt(m_view, behindBlanks(m_view, end)); };
        while (m_in.at() - end < kMostBlanks && isTextSpace(m_view.u8(m_in.at()).value_or(0)))
            m_in.skip(1);
        const bool instruction = follows("<?") && !follows("<?xml");
        if (isSectorStart(m_in.at()) || (!instruction && !follows("<!--"))) {
            const bool ended = m_in.at() + 1 >= m_view.size();
            return m_packet && ended ? cutOffAt(m_view, m_view.size()) : whole();
        }
        m_packet = m_packet && !follows("<?xpacket end");
        m_in.skip(2);
        const Step step = skipTo(instruction ? "?>" : "-->");
        if (step == Step::Cut)
            return cutOffAt(m_view, m_view.size());
        if (step != Step::Next)
            return whole();
    }
}

Extent XmlWalk::walk() {
    m_packet = follows("<?xpacket begin");
    for (;;) {
        const auto at = m_in.at();
        const int byte = m_in.next();
        if (byte < 0)
            return cutOffAt(m_view, at);
        if (isForeign(byte))
            return damagedAt(m_view, at);
        if (byte != '<')
            continue;
        switch (tag()) {
            case Step::Next:
                break;
            case Step::Root:
                return behindRoot();
            case Step::Cut:
                return cutOffAt(m_view, m_in.at());
            case Step::Broken:
                return damagedAt(m_view, at);
        }
    }
}

}  // namespace

Extent walkXml(ByteView& view) {
    std::uint64_t at = behindByteOrderMark(view);
    constexpr std::uint64_t kMostLead = 256;
    for (std::uint64_t lead = 0; lead < kMostLead && isTextSpace(view.u8(at).value_or(0)); ++lead)
        ++at;
    if (matchesAnyCase(view, at, "<!doctype html") || matchesAnyCase(view, at, "<html"))
        return walkHtml(view);
    const auto next = view.u8(at + 1).value_or(0);
    const bool begins = next == '?' || next == '!' || std::isalpha(next) != 0;
    return view.u8(at) == '<' && begins ? XmlWalk(view, at).walk() : unknownExtent();
}

extern constexpr Format kXml = {
    .name = "XML",
    .group = Group::Documents,
    .walk = walkXml,
    .extensions =
        " XML SVG XMP GPX KML XSL XSD RSS FB2 XHTML WPL ABW AMF ATOM CML CSPROJ DAE DBK "
        "DRAWIO ENEX FCPXML FDX FODT GML GRAPHML JMX KDENLIVE MM MPD MUSICXML MZML NZB OPML OSM "
        "QGS QRC SBML TCX TTML UI X3D XLF XSPF ASX AUP BRD JNLP ",
    .strongMagic = false,
    .checksContent = true,
};

}  // namespace vantor

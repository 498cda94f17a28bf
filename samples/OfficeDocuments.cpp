// The documents that are archives of XML files.
#include "samples/Archives.h"
#include "samples/Documents.h"

namespace vantor::samples {

namespace {

const QByteArray kXml = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
const QByteArray kParagraphs[] = {
    "Holiday notes", "We left the harbour at ten with a light wind from the west.",
    "By noon the bay lay flat as glass.", "In the evening the sun went down behind the hills."};

QByteArray contentTypes(const QByteArray& overrides) {
    return kXml +
           "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
           "<Default Extension=\"rels\" "
           "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
           "<Default Extension=\"xml\" ContentType=\"application/xml\"/>" +
           overrides + "</Types>";
}

QByteArray contentType(const QByteArray& part, const QByteArray& type) {
    return "<Override PartName=\"" + part +
           "\" ContentType=\"application/vnd.openxmlformats-officedocument." + type + "+xml\"/>";
}

struct Relation {
    QByteArray type;
    QByteArray target;
};

QByteArray relations(const std::vector<Relation>& relations) {
    QByteArray text =
        kXml + "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">";
    for (std::size_t i = 0; i < relations.size(); ++i)
        text += "<Relationship Id=\"rId" + QByteArray::number(i + 1) +
                "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/" +
                relations[i].type + "\" Target=\"" + relations[i].target + "\"/>";
    return text + "</Relationships>";
}

const QByteArray kRelationSpace =
    "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"";
const QByteArray kDrawingSpace = "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"";

QByteArray openDocument(const QByteArray& kind, const QByteArray& body) {
    const QByteArray type = "application/vnd.oasis.opendocument." + kind;
    const QByteArray manifest =
        kXml +
        "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\" "
        "manifest:version=\"1.2\">"
        "<manifest:file-entry manifest:full-path=\"/\" manifest:version=\"1.2\" manifest:media-type=\"" +
        type +
        "\"/>"
        "<manifest:file-entry manifest:full-path=\"content.xml\" "
        "manifest:media-type=\"text/xml\"/></manifest:manifest>";
    const QByteArray space = "urn:oasis:names:tc:opendocument:xmlns:";
    const QByteArray content = kXml + "<office:document-content xmlns:office=\"" + space +
                               "office:1.0\" xmlns:text=\"" + space + "text:1.0\" xmlns:table=\"" + space +
                               "table:1.0\" xmlns:draw=\"" + space + "drawing:1.0\" xmlns:svg=\"" + space +
                               "svg-compatible:1.0\" office:version=\"1.2\"><office:body>" + body +
                               "</office:body></office:document-content>";
    // The type comes first and uncompressed, so that it can be read at a fixed place.
    return zipFile(
        {{"mimetype", type, Packing::Stored}, {"content.xml", content}, {"META-INF/manifest.xml", manifest}});
}

const QByteArray kEmptyTree =
    "<p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr/>";

QByteArray slidePart(const QByteArray& element, const QByteArray& shapes, const QByteArray& after) {
    return kXml + "<p:" + element +
           " xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\" " + kDrawingSpace + " " +
           kRelationSpace + "><p:cSld><p:spTree>" + kEmptyTree + shapes + "</p:spTree></p:cSld>" + after +
           "</p:" + element + ">";
}

QByteArray themePart() {
    QByteArray colours;
    const char* const names[] = {"dk1",     "lt1",     "dk2",     "lt2",     "accent1", "accent2",
                                 "accent3", "accent4", "accent5", "accent6", "hlink",   "folHlink"};
    const char* const values[] = {"000000", "FFFFFF", "1F3864", "F2F2F2", "2F5597", "C55A11",
                                  "7F7F7F", "BF9000", "2E75B6", "548235", "0563C1", "954F72"};
    for (int i = 0; i < 12; ++i)
        colours +=
            QByteArray("<a:") + names[i] + "><a:srgbClr val=\"" + values[i] + "\"/></a:" + names[i] + ">";
    const QByteArray font = "<a:latin typeface=\"Helvetica\"/><a:ea typeface=\"\"/><a:cs typeface=\"\"/>";
    const QByteArray fill = "<a:solidFill><a:schemeClr val=\"phClr\"/></a:solidFill>";
    const QByteArray line = "<a:ln>" + fill + "</a:ln>";
    const QByteArray effect = "<a:effectStyle><a:effectLst/></a:effectStyle>";
    return kXml + "<a:theme " + kDrawingSpace +
           " name=\"Plain\"><a:themeElements><a:clrScheme name=\"Plain\">" + colours +
           "</a:clrScheme><a:fontScheme name=\"Plain\"><a:majorFont>" + font + "</a:majorFont><a:minorFont>" +
           font + "</a:minorFont></a:fontScheme><a:fmtScheme name=\"Plain\"><a:fillStyleLst>" +
           fill.repeated(3) + "</a:fillStyleLst><a:lnStyleLst>" + line.repeated(3) +
           "</a:lnStyleLst><a:effectStyleLst>" + effect.repeated(3) +
           "</a:effectStyleLst><a:bgFillStyleLst>" + fill.repeated(3) +
           "</a:bgFillStyleLst></a:fmtScheme></a:themeElements></a:theme>";
}

}  // namespace

QByteArray docxFile() {
    QByteArray body;
    for (const QByteArray& paragraph : kParagraphs)
        body += "<w:p><w:r><w:t>" + paragraph + "</w:t></w:r></w:p>";
    const QByteArray document =
        kXml +
        "<w:document xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\"><w:body>" +
        body + "<w:sectPr/></w:body></w:document>";
    return zipFile({{"[Content_Types].xml",
                     contentTypes(contentType("/word/document.xml", "wordprocessingml.document.main"))},
                    {"_rels/.rels", relations({{"officeDocument", "word/document.xml"}})},
                    {"word/document.xml", document}});
}

QByteArray xlsxFile() {
    const QByteArray space = "xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"";
    QByteArray rows;
    for (int row = 1; row <= 12; ++row)
        rows += "<row r=\"" + QByteArray::number(row) + "\"><c r=\"A" + QByteArray::number(row) + "\"><v>" +
                QByteArray::number(row) + "</v></c><c r=\"B" + QByteArray::number(row) + "\"><v>" +
                QByteArray::number(row * row) + "</v></c></row>";
    return zipFile(
        {{"[Content_Types].xml",
          contentTypes(contentType("/xl/workbook.xml", "spreadsheetml.sheet.main") +
                       contentType("/xl/worksheets/sheet1.xml", "spreadsheetml.worksheet"))},
         {"_rels/.rels", relations({{"officeDocument", "xl/workbook.xml"}})},
         {"xl/workbook.xml",
          kXml + "<workbook " + space + " " + kRelationSpace +
              "><sheets><sheet name=\"Squares\" sheetId=\"1\" r:id=\"rId1\"/></sheets></workbook>"},
         {"xl/_rels/workbook.xml.rels", relations({{"worksheet", "worksheets/sheet1.xml"}})},
         {"xl/worksheets/sheet1.xml",
          kXml + "<worksheet " + space + "><sheetData>" + rows + "</sheetData></worksheet>"}});
}

QByteArray pptxFile() {
    const QByteArray title =
        "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" "
        "name=\"Title\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr><a:xfrm><a:off x=\"900000\" "
        "y=\"900000\"/><a:ext cx=\"7000000\" cy=\"1500000\"/></a:xfrm>"
        "<a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom></p:spPr><p:txBody><a:bodyPr/><a:p><a:r><a:rPr "
        "lang=\"en-GB\" sz=\"4000\"/><a:t>Holiday</a:t></a:r></a:p></p:txBody></p:sp>";
    const QByteArray colourMap =
        "<p:clrMap bg1=\"lt1\" tx1=\"dk1\" bg2=\"lt2\" tx2=\"dk2\" accent1=\"accent1\" accent2=\"accent2\" "
        "accent3=\"accent3\" accent4=\"accent4\" accent5=\"accent5\" accent6=\"accent6\" hlink=\"hlink\" "
        "folHlink=\"folHlink\"/>";
    const QByteArray inherit = "<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>";
    const QByteArray presentation =
        kXml + "<p:presentation xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\" " +
        kDrawingSpace + " " + kRelationSpace +
        "><p:sldMasterIdLst><p:sldMasterId id=\"2147483648\" "
        "r:id=\"rId1\"/></p:sldMasterIdLst><p:sldIdLst><p:sldId id=\"256\" "
        "r:id=\"rId2\"/></p:sldIdLst><p:sldSz cx=\"9144000\" cy=\"6858000\"/><p:notesSz cx=\"6858000\" "
        "cy=\"9144000\"/></p:presentation>";
    const QByteArray types = contentType("/ppt/presentation.xml", "presentationml.presentation.main") +
                             contentType("/ppt/slides/slide1.xml", "presentationml.slide") +
                             contentType("/ppt/slideLayouts/slideLayout1.xml", "presentationml.slideLayout") +
                             contentType("/ppt/slideMasters/slideMaster1.xml", "presentationml.slideMaster") +
                             contentType("/ppt/theme/theme1.xml", "theme");
    return zipFile(
        {{"[Content_Types].xml", contentTypes(types)},
         {"_rels/.rels", relations({{"officeDocument", "ppt/presentation.xml"}})},
         {"ppt/presentation.xml", presentation},
         {"ppt/_rels/presentation.xml.rels", relations({{"slideMaster", "slideMasters/slideMaster1.xml"},
                                                        {"slide", "slides/slide1.xml"},
                                                        {"theme", "theme/theme1.xml"}})},
         {"ppt/slides/slide1.xml", slidePart("sld", title, inherit)},
         {"ppt/slides/_rels/slide1.xml.rels",
          relations({{"slideLayout", "../slideLayouts/slideLayout1.xml"}})},
         {"ppt/slideLayouts/slideLayout1.xml", slidePart("sldLayout", {}, inherit)},
         {"ppt/slideLayouts/_rels/slideLayout1.xml.rels",
          relations({{"slideMaster", "../slideMasters/slideMaster1.xml"}})},
         {"ppt/slideMasters/slideMaster1.xml",
          slidePart(
              "sldMaster", {},
              colourMap +
                  "<p:sldLayoutIdLst><p:sldLayoutId id=\"2147483649\" r:id=\"rId1\"/></p:sldLayoutIdLst>")},
         {"ppt/slideMasters/_rels/slideMaster1.xml.rels",
          relations({{"slideLayout", "../slideLayouts/slideLayout1.xml"}, {"theme", "../theme/theme1.xml"}})},
         {"ppt/theme/theme1.xml", themePart()}});
}

QByteArray odtFile() {
    QByteArray body;
    for (const QByteArray& paragraph : kParagraphs)
        body += "<text:p>" + paragraph + "</text:p>";
    return openDocument("text", "<office:text>" + body + "</office:text>");
}

QByteArray odsFile() {
    QByteArray rows;
    for (int row = 1; row <= 12; ++row) {
        rows += "<table:table-row>";
        for (const int value : {row, row * row})
            rows += "<table:table-cell office:value-type=\"float\" office:value=\"" +
                    QByteArray::number(value) + "\"><text:p>" + QByteArray::number(value) +
                    "</text:p></table:table-cell>";
        rows += "</table:table-row>";
    }
    return openDocument("spreadsheet", "<office:spreadsheet><table:table table:name=\"Squares\">" + rows +
                                           "</table:table></office:spreadsheet>");
}

QByteArray odpFile() {
    return openDocument("presentation",
                        "<office:presentation><draw:page draw:name=\"Holiday\"><draw:frame "
                        "svg:width=\"20cm\" svg:height=\"4cm\" svg:x=\"4cm\" svg:y=\"4cm\">"
                        "<draw:text-box><text:p>Holiday</text:p></draw:text-box></draw:frame></draw:page></"
                        "office:presentation>");
}

QByteArray epubFile() {
    QByteArray chapter =
        kXml +
        "<html "
        "xmlns=\"http://www.w3.org/1999/xhtml\"><head><title>Holiday</title></head><body><h1>Holiday</h1>";
    for (const QByteArray& paragraph : kParagraphs)
        chapter += "<p>" + paragraph + "</p>";
    chapter += "</body></html>";
    const QByteArray container =
        kXml +
        "<container version=\"1.0\" "
        "xmlns=\"urn:oasis:names:tc:opendocument:xmlns:container\"><rootfiles><rootfile "
        "full-path=\"book.opf\" media-type=\"application/oebps-package+xml\"/></rootfiles></container>";
    const QByteArray navigation =
        kXml +
        "<html xmlns=\"http://www.w3.org/1999/xhtml\" "
        "xmlns:epub=\"http://www.idpf.org/2007/ops\"><head><title>Contents</title></head><body><nav "
        "epub:type=\"toc\"><ol><li><a href=\"chapter.xhtml\">Holiday</a></li></ol></nav></body></html>";
    const QByteArray package =
        kXml +
        "<package version=\"3.0\" unique-identifier=\"id\" xmlns=\"http://www.idpf.org/2007/opf\"><metadata "
        "xmlns:dc=\"http://purl.org/dc/elements/1.1/\"><dc:identifier "
        "id=\"id\">urn:vantor:holiday</dc:identifier><dc:title>Holiday</dc:title>"
        "<dc:language>en</dc:language><meta "
        "property=\"dcterms:modified\">2024-06-01T10:00:00Z</meta></metadata><manifest><item id=\"nav\" "
        "href=\"nav.xhtml\" media-type=\"application/xhtml+xml\" properties=\"nav\"/>"
        "<item id=\"chapter\" href=\"chapter.xhtml\" "
        "media-type=\"application/xhtml+xml\"/></manifest><spine><itemref "
        "idref=\"chapter\"/></spine></package>";
    return zipFile({{"mimetype", "application/epub+zip", Packing::Stored},
                    {"META-INF/container.xml", container},
                    {"book.opf", package},
                    {"nav.xhtml", navigation},
                    {"chapter.xhtml", chapter}});
}

}  // namespace vantor::samples

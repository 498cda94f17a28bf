// Drawings, models, fonts and machine work that are written as text, and the kinds of XML by their root.
#include "samples/ListedTexts.h"

namespace vantor::samples {

namespace {

const QByteArray kXml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

// A polygon of points on a parabola: x, y as the format's own lines.
QByteArray points(int count, const char* before, const char* between, const char* after) {
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += before + QByteArray::number(i) + between + QByteArray::number(i * i) + after;
    return text;
}

QByteArray dxf() {
    return "  0\nSECTION\n  2\nENTITIES\n  0\nLWPOLYLINE\n  8\n0\n 90\n12\n" +
           points(12, " 10\n", "\n 20\n", "\n") + "  0\nENDSEC\n  0\nEOF\n";
}

QByteArray ply() {
    return "ply\nformat ascii 1.0\nelement vertex 12\nproperty float x\nproperty float y\nproperty float z\n"
           "end_header\n" +
           points(12, "", " ", " 0\n");
}

QByteArray bitmapFont() {
    return "STARTFONT 2.1\nFONT sample\nSIZE 8 75 75\nFONTBOUNDINGBOX 8 8 0 0\nCHARS 1\nSTARTCHAR A\n"
           "ENCODING 65\nSWIDTH 500 0\nDWIDTH 8 0\nBBX 8 8 0 0\nBITMAP\n18\n24\n42\n42\n7E\n42\n42\n00\n"
           "ENDCHAR\nENDFONT\n";
}

}  // namespace

std::vector<TextSpecimen> drawnTexts() {
    return {
        {"BAY.DXF", dxf()},
        {"BAY.PLY", ply()},
        {"BAY.OBJ", "mtllib bay.mtl\n" + points(12, "v ", " ", " 0\n") + "f 1 2 3\n"},
        {"BAY.STL",
         "solid bay\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\nendloop\n"
         "endfacet\nendsolid bay\n"},
        {"BAY.WRL", "#VRML V2.0 utf8\nShape { geometry Sphere { radius 2 } }\n"},
        {"BAY.USDA", "#usda 1.0\ndef Sphere \"Sun\"\n{\n    double radius = 2\n}\n"},
        {"BAY.GCODE", ";FLAVOR:Marlin\nG28\n" + points(12, "G1 X", " Y", "\n") + "M84\n"},
        {"BAY.PS", "%!PS-Adobe-3.0\n%%Pages: 1\n%%Page: 1 1\n" + points(12, "", " ", " moveto\n") +
                       "showpage\n%%EOF\n"},
        {"WARM.CUBE", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n"},
        {"SUNSET.GPL", "GIMP Palette\nName: Sunset\n#\n253 187 110 Sky\n 51  85 128 Sea\n"},
        {"LETTER.BDF", bitmapFont()},
    };
}

std::vector<TextSpecimen> markedUpTexts() {
    return {
        {"NEWS.RSS", kXml + "<rss version=\"2.0\"><channel><title>Harbour</title></channel></rss>\n"},
        {"NEWS.ATOM", kXml + "<feed xmlns=\"http://www.w3.org/2005/Atom\"><title>Harbour</title></feed>\n"},
        {"NEWS.OPML", kXml + "<opml version=\"2.0\"><body><outline text=\"Harbour\"/></body></opml>\n"},
        {"TUNES.XSPF", kXml + "<playlist version=\"1\" xmlns=\"http://xspf.org/ns/0/\"><trackList/>"
                              "</playlist>\n"},
        {"BOOK.FB2", kXml + "<FictionBook xmlns=\"http://www.gribuser.ru/xml/fictionbook/2.0\"><body>"
                            "<section><p>We left the harbour.</p></section></body></FictionBook>\n"},
        {"NOTES.FODT", kXml + "<office:document xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:"
                              "1.0\" office:mimetype=\"application/vnd.oasis.opendocument.text\">"
                              "<office:body/></office:document>\n"},
        {"NOTES.ENEX", kXml +
                           "<!DOCTYPE en-export SYSTEM \"http://xml.evernote.com/pub/evernote-export3.dtd\">"
                           "\n<en-export><note><title>Harbour</title></note></en-export>\n"},
        {"BOAT.TTML", kXml + "<tt xmlns=\"http://www.w3.org/ns/ttml\"><body><div><p begin=\"0s\" end=\"2s\">"
                             "The boat</p></div></body></tt>\n"},
        {"FORM.UI", kXml + "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\"/></ui>\n"},
    };
}

}  // namespace vantor::samples

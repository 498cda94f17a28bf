// Documents, archives and data of programs, each small but whole.
#pragma once

#include <QByteArray>
#include <QImage>
#include <vector>

namespace vantor::samples {

struct Member {
    QByteArray name;
    QByteArray bytes;
};

// Formats and filters in libarchive's names: "ustar", "7zip", "raw"; "gzip", "xz".
QByteArray archived(const std::vector<Member>& members, const char* format, const char* filter = nullptr);

// By hand, since an office document's first member must be stored as it is and without extra fields
// ("mimetype").
QByteArray zipFile(const std::vector<Member>& members);
QByteArray cabFile(const std::vector<Member>& members);  // MS-CAB without compression
QByteArray lhaFile(const std::vector<Member>& members);  // level 0 headers, "-lh0-"

// A document of texts.json: one text, or the members of a document that is a ZIP archive.
struct TextDocument {
    QByteArray name;
    std::vector<Member> members;  // a single one without a name is the document itself
};

// All of texts.json in its order; there, "NAME/member" is a member of the archive NAME.
const std::vector<TextDocument>& textDocuments();
QByteArray contentOf(const TextDocument& document);
// The text of this name; throws std::runtime_error when there is none.
QByteArray textNamed(const char* name);

QByteArray pdfFile(const QImage& photo);  // one page with a drawing and a photo
QByteArray sqliteFile();                  // one table of places
QByteArray dbfFile();                     // dBASE III, the same table
QByteArray numpyFile();                   // 256 squares
QByteArray shapeFile();                   // Esri shapefile of points
QByteArray pcapFile();                    // empty Ethernet packets
QByteArray wasmFile();                    // one function

}  // namespace vantor::samples

// Documents and data of programs, each small but whole.
#pragma once

#include <QByteArray>
#include <QImage>
#include <vector>

#include "samples/Archives.h"

namespace vantor::samples {

// A document of texts.tsv: one text, or the members of a document that is a ZIP archive.
struct TextDocument {
    QByteArray name;
    std::vector<Member> members;  // a single one without a name is the document itself
};

// All of texts.tsv in its order. Each line is a name, a tab and the text with \n, \r, \t and \\ for what
// cannot stand in it; "NAME/member" is a member of the archive NAME.
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

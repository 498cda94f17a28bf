// Documents and data files of many kinds, each small but whole.
#pragma once

#include <QByteArray>

#include "samples/Canvas.h"

namespace vantor::samples {

QByteArray pdfFile(const Picture& photo);  // ISO 32000, one page
QByteArray postScriptFile();               // encapsulated PostScript
QByteArray rtfFile();
QByteArray textFile();
QByteArray csvFile();
QByteArray htmlFile();
QByteArray xmlFile();
QByteArray svgFile();
QByteArray gpxFile();
QByteArray kmlFile();
QByteArray icsFile();  // RFC 5545
QByteArray vcfFile();  // RFC 2426
QByteArray emlFile();  // RFC 5322

QByteArray docxFile();  // ECMA-376
QByteArray xlsxFile();
QByteArray pptxFile();
QByteArray odtFile();  // OASIS OpenDocument 1.2
QByteArray odsFile();
QByteArray odpFile();
QByteArray epubFile();  // EPUB 3

QByteArray sqliteFile();  // one table of places, pages of 4096 bytes
QByteArray dbfFile();     // dBASE III, the same table

}  // namespace vantor::samples

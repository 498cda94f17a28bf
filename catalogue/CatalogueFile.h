// Reading one catalogue file into a flat array of signature records.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

namespace vantor {

// The six catalogue files as they are called in the resources folder; plain text in spite of their ending.
inline constexpr const char* kPhotoCatalogue = "/ZelExt2.dll";
inline constexpr const char* kPhotoThoroughCatalogue = "/ZelExt2Adv.dll";
inline constexpr const char* kVideoCatalogue = "/ZelVideo.dll";
inline constexpr const char* kVideoThoroughCatalogue = "/ZelVideoAdv.dll";
inline constexpr const char* kRawFileCatalogue = "/ZelRaw.dll";
inline constexpr const char* kRawFileThoroughCatalogue = "/ZelRawAdv.dll";

// Value lines of a record in the file; the seventh string of a record is derived from its header line.
inline constexpr int kValueLinesPerRecord = 6;

// One value line: `key` is all up to and including the first colon. `value` is trimmed, cut at its first dot
// and, when there was one, upper-cased.
struct CatalogueLine {
    QString key;
    QString rawValue;  // trimmed only
    QString value;
    bool isHeader = false;  // the key is exactly "Header :"
};

// Splits one line (without its line feed); a line without a colon is no value line and gives false.
bool parseCatalogueLine(QStringView line, CatalogueLine& out);

// Appends the values of a catalogue's text to `array`. Bytes that are no UTF-8 leave the array as it was and
// give false. The values of an incomplete last record stay in the array, without a seventh string.
bool appendCatalogueText(QByteArrayView utf8, QStringList& array);

// Reads the file at `path`; one that is absent, no regular file or unreadable leaves the array as it was
// (false).
bool appendCatalogueFile(const QString& path, QStringList& array);

}  // namespace vantor

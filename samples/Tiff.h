// The directories of fields of TIFF 6.0, which Exif, DNG and the index of MPO files are made of.
#pragma once

#include <QByteArray>
#include <vector>

namespace vantor::samples {

enum class Order { Little, Big };
enum FieldType {
    kByte = 1,
    kAscii = 2,
    kShort = 3,
    kLong = 4,
    kRational = 5,
    kUndefined = 7,
    kSignedRational = 10
};

struct Field {
    int tag;
    FieldType type;
    std::vector<qint64> values;  // of rationals, numerator and denominator in turn
};

// A text as a field's values, with its closing zero where it is ASCII.
std::vector<qint64> characters(const QByteArray& text, bool isClosed = true);

// "II" or "MM", and where the first directory stands: right behind these eight bytes.
QByteArray tiffHeader(Order order);
// How many bytes a directory of these fields takes, and its bytes when it stands at `at`; `next` is the place
// of the directory after it, 0 for none.
qsizetype directoryBytes(const std::vector<Field>& fields);
QByteArray directory(Order order, const std::vector<Field>& fields, qsizetype at, qsizetype next = 0);

}  // namespace vantor::samples

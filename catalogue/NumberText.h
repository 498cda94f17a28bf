// Numbers that the program keeps as text, converted where they are used: junk gives 0, overflow is clamped.
#pragma once

#include <QStringView>
#include <optional>

namespace vantor {

// Leading white space and one sign are accepted, the number ends at the first character that is no ASCII
// digit, no digits give 0, values beyond 64 (32) signed bits are clamped.
qint64 textToInt64(QStringView text);
qint32 textToInt32(QStringView text);

// As textToInt64, but says when no integer begins the text.
std::optional<qint64> scanInt64(QStringView text);

// The number that begins the text, read as a double; nothing when none does.
std::optional<double> scanDouble(QStringView text);

// As scanDouble, with 0 for junk.
double textToDouble(QStringView text);

// Hexadecimal text, as a base for whoever has these as members.
struct HexText {
    // Value of one hexadecimal digit, taken from the low 8 bits of the first character; anything else, and
    // the empty string, is 0.
    static int hex2dec(QStringView digit);

    // Value of a string of hexadecimal digits in 32-bit arithmetic; characters that are no digits count as 0.
    static qint32 hex2int(QStringView digits);
};

}  // namespace vantor

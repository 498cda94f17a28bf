// The one road from text to number, so that junk and overflow mean the same everywhere.
#include "catalogue/NumberText.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

namespace vantor {

namespace {

bool isAsciiDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

qsizetype skipBlanks(QStringView text) {
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace()) {
        ++i;
    }
    return i;
}

}  // namespace

std::optional<qint64> scanInt64(QStringView text) {
    qsizetype i = skipBlanks(text);
    bool negative = false;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) {
        negative = text[i] == u'-';
        ++i;
    }
    if (i >= text.size() || !isAsciiDigit(text[i])) {
        return std::nullopt;
    }
    // The magnitude of the smallest value is one more than that of the largest.
    const quint64 bound = static_cast<quint64>(std::numeric_limits<qint64>::max()) + (negative ? 1u : 0u);
    quint64 magnitude = 0;
    for (; i < text.size() && isAsciiDigit(text[i]); ++i) {
        const quint64 digit = text[i].unicode() - u'0';
        if (magnitude > (bound - digit) / 10) {
            magnitude = bound;
            break;
        }
        magnitude = magnitude * 10 + digit;
    }
    return static_cast<qint64>(negative ? 0 - magnitude : magnitude);
}

qint64 textToInt64(QStringView text) {
    return scanInt64(text).value_or(0);
}

qint32 textToInt32(QStringView text) {
    return static_cast<qint32>(std::clamp<qint64>(textToInt64(text), std::numeric_limits<qint32>::min(),
                                                  std::numeric_limits<qint32>::max()));
}

std::optional<double> scanDouble(QStringView text) {
    // Only the decimal forms count: strtod would also take "inf", "nan" and hexadecimal.
    qsizetype i = skipBlanks(text);
    std::string number;
    const auto take = [&](auto accepts) {
        const auto before = number.size();
        while (i < text.size() && accepts(text[i])) {
            number.push_back(static_cast<char>(text[i++].unicode()));
        }
        return number.size() - before;
    };
    const auto takeOne = [&](auto accepts) {
        if (i < text.size() && accepts(text[i])) {
            number.push_back(static_cast<char>(text[i++].unicode()));
        }
    };
    const auto isSign = [](QChar c) { return c == u'-' || c == u'+'; };
    takeOne(isSign);
    std::size_t digits = take(isAsciiDigit);
    takeOne([](QChar c) { return c == u'.'; });
    digits += take(isAsciiDigit);
    if (digits == 0) {
        return std::nullopt;
    }
    // An exponent counts only when digits follow it.
    if (i < text.size() && (text[i] == u'e' || text[i] == u'E')) {
        const std::string mantissa = number;
        number.push_back('e');
        ++i;
        takeOne(isSign);
        if (take(isAsciiDigit) == 0) {
            number = mantissa;
        }
    }
    return std::strtod(number.c_str(), nullptr);
}

double textToDouble(QStringView text) {
    return scanDouble(text).value_or(0.0);
}

int HexText::hex2dec(QStringView digit) {
    if (digit.isEmpty()) {
        return 0;
    }
    const auto c = static_cast<unsigned char>(digit.front().unicode() & 0xFF);
    if (c >= '1' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return 0;
}

qint32 HexText::hex2int(QStringView digits) {
    quint32 sum = 0;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        sum = sum * 16u + static_cast<quint32>(hex2dec(digits.sliced(i, 1)));
    }
    return static_cast<qint32>(sum);
}

}  // namespace vantor

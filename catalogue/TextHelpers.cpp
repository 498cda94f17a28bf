// The string helpers; each is a line or two over QString, whose indices are UTF-16 units too.
#include "catalogue/TextHelpers.h"

#include <algorithm>

namespace vantor {

QString Left_Str_substringToIndex(const QString& string, qint32 count) {
    return string.left(std::max(count, 0));
}

QString Right_Str_substringFromIndex(const QString& string, qint32 count) {
    return string.right(std::max(count, 0));
}

QString Read_Str_FromIndex(const QString& string, quint32 index) {
    if (index > static_cast<quint64>(string.size())) {
        return QStringLiteral("");
    }
    return string.mid(static_cast<qsizetype>(index));
}

QString Read_Str_Upto_Index(const QString& string, quint32 index) {
    if (index > static_cast<quint64>(string.size())) {
        return QStringLiteral("");
    }
    return string.left(static_cast<qsizetype>(index));
}

QString Trim_Str(const QString& string) {
    return string.trimmed();
}

bool Find_Str(const QString& string, const QString& text) {
    return !text.isEmpty() && string.contains(text, Qt::CaseSensitive);
}

void Show_NSLog_Message(const QString&) {}

}  // namespace vantor

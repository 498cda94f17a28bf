// Control characters that JSON itself lets stand.
#include "cli/JsonLine.h"

#include <QJsonDocument>
#include <cstdio>

namespace vantor {

QByteArray jsonLine(const QJsonObject& object) {
    constexpr char kDelete = '\x7f';
    constexpr char kBeforeControls =
        '\xc2';  // UTF-8 of U+0080 to U+00bf, of which the lower half are controls
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    QByteArray line;
    for (qsizetype i = 0; i < json.size(); ++i) {
        const auto next = static_cast<unsigned char>(i + 1 < json.size() ? json[i + 1] : 0);
        if (json[i] == kDelete) {
            line += "\\u007f";
        } else if (json[i] == kBeforeControls && next >= 0x80 && next < 0xa0) {
            line += "\\u00" + QByteArray::number(next, 16);
            ++i;
        } else {
            line += json[i];
        }
    }
    return line;
}

void printJsonLine(const QJsonObject& object) {
    std::printf("%s\n", jsonLine(object).constData());
}

}  // namespace vantor
